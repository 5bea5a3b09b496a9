
#include <cstring>

#include "app/trace.h"

namespace morve {

namespace {

std::string escape(const std::string& text) {
    std::string out;
    for (char c : text) {
        if (c == '&') out += "&amp;";
        else if (c == '<') out += "&lt;";
        else if (c == '>') out += "&gt;";
        else out += c;
    }
    return out;
}

// Letters that start a symbol: Latin, and Greek (two bytes, lead 0xCE or 0xCF).
std::size_t letterLength(const std::string& s, std::size_t i) {
    const unsigned char c = static_cast<unsigned char>(s[i]);
    if ((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')) return 1;
    if ((c == 0xCE || c == 0xCF) && i + 1 < s.size()) return 2;
    return 0;
}

bool isFunction(const std::string& word) {
    for (const char* f : {"max", "min", "ln", "log", "exp", "sqrt", "tan", "sen", "cos", "arctan"})
        if (word == f) return true;
    return false;
}

// A symbol: a letter, then letters, digits and primes, and ",nec"-style suffixes
// written without a blank.
std::size_t symbolEnd(const std::string& s, std::size_t i) {
    std::size_t j = i + letterLength(s, i);
    while (j < s.size()) {
        if (std::size_t n = letterLength(s, j)) j += n;
        else if ((s[j] >= '0' && s[j] <= '9') || s[j] == '\'') ++j;
        else if (s[j] == ',' && j + 1 < s.size() && letterLength(s, j + 1)) ++j;
        else break;
    }
    return j;
}

std::string symbolHtml(const std::string& word) {
    if (isFunction(word)) return word;
    std::size_t head = letterLength(word, 0);
    while (head < word.size() && word[head] == '\'') ++head;
    if (head >= word.size()) return escape(word);
    return escape(word.substr(0, head)) + "<sub>" + escape(word.substr(head)) + "</sub>";
}

// "^" with a number or a parenthesised group after it becomes a superscript.
std::size_t exponentEnd(const std::string& s, std::size_t i) {
    if (i < s.size() && s[i] == '(') {
        int depth = 0;
        for (std::size_t j = i; j < s.size(); ++j) {
            if (s[j] == '(') ++depth;
            if (s[j] == ')' && --depth == 0) return j + 1;
        }
        return s.size();
    }
    std::size_t j = i;
    while (j < s.size() && ((s[j] >= '0' && s[j] <= '9') || s[j] == '.' || s[j] == '-')) ++j;
    return j;
}

// The power after the "^" at i as a superscript, its parentheses dropped; returns
// where the text goes on.
std::size_t appendPower(const std::string& s, std::size_t i, std::string& out) {
    const std::size_t end = exponentEnd(s, i + 1);
    std::string power = s.substr(i + 1, end - i - 1);
    if (power.size() > 2 && power.front() == '(' && power.back() == ')') power = power.substr(1, power.size() - 2);
    out += "<sup>" + escape(power) + "</sup>";
    return end;
}

// The numbers put into a formula keep their units as written; only powers rise.
std::string substitutionHtml(const std::string& s) {
    std::string out;
    for (std::size_t i = 0; i < s.size();) {
        if (s[i] == '^') i = appendPower(s, i, out);
        else out += escape(std::string(1, s[i++]));
    }
    return out;
}

const char* kStyle =
    "body{font-family:'DejaVu Sans',Arial,sans-serif;font-size:11pt;color:#000;}"
    "h1{font-size:15pt;margin:0 0 2px 0;}"
    "h2{font-size:12.5pt;color:#003080;margin:14px 0 4px 0;border-bottom:1px solid #8090b0;}"
    "p{margin:3px 0 8px 0;}"
    ".f{font-family:'DejaVu Serif','Times New Roman',serif;font-size:12pt;}"
    ".c{color:#505050;font-size:9.5pt;}"
    ".ok{color:#006000;}"
    ".stop{color:#b00000;font-weight:bold;}";

bool at(const std::string& s, std::size_t i, const char* token) { return s.compare(i, std::strlen(token), token) == 0; }

// Drops parentheses that wrap the whole of an expression.
std::string unwrapped(const std::string& e) {
    if (e.size() < 2 || e.front() != '(' || e.back() != ')') return e;
    int depth = 0;
    for (std::size_t i = 0; i + 1 < e.size(); ++i) {
        if (e[i] == '(') ++depth;
        if (e[i] == ')' && --depth == 0) return e;
    }
    return e.substr(1, e.size() - 2);
}

// "N / D" with its one division at the top level, nothing added or compared there
// and a single factor under the line: a fraction. Anything else stays on one line.
bool splitFraction(const std::string& e, std::string& numerator, std::string& denominator) {
    int depth = 0;
    std::size_t slash = std::string::npos;
    bool productAfter = false;
    for (std::size_t i = 0; i < e.size(); ++i) {
        if (e[i] == '(') ++depth;
        else if (e[i] == ')') --depth;
        if (depth != 0) continue;
        if (at(e, i, " + ") || at(e, i, " − ") || at(e, i, " ≤ ") || at(e, i, " ≥ ") || at(e, i, ", ")) return false;
        if (at(e, i, " / ")) {
            if (slash != std::string::npos) return false;
            slash = i;
        } else if (at(e, i, " · ") && slash != std::string::npos) {
            productAfter = true;
        }
    }
    if (slash == std::string::npos || productAfter) return false;
    numerator = unwrapped(e.substr(0, slash));
    denominator = unwrapped(e.substr(slash + 3));
    return true;
}

// One line of a step: `lead` and `tail` around the expression, which stands as a
// fraction where it is one.
void writeLine(std::string& out, const std::string& lead, const std::string& expression, const std::string& tail,
               std::string (*html)(const std::string&)) {
    std::string top, bottom;
    if (!splitFraction(expression, top, bottom)) {
        out += "<p class=\"f\" style=\"margin:0\">" + lead + html(expression) + tail + "</p>\n";
        return;
    }
    out += "<table class=\"f\" cellspacing=\"0\" cellpadding=\"1\" style=\"margin:1px 0\"><tr>"
           "<td rowspan=\"2\" valign=\"middle\">" + lead + "</td>"
           "<td align=\"center\" style=\"border-bottom:1px solid #000000\">" + html(top) + "</td>"
           "<td rowspan=\"2\" valign=\"middle\">" + tail + "</td></tr>"
           "<tr><td align=\"center\">" + html(bottom) + "</td></tr></table>\n";
}

void writeStep(std::string& out, const TraceStep& s) {
    const bool numbers = !s.substituted.empty() || !s.result.empty();
    out += "<p style=\"margin:8px 0 1px 0\"><b>" + escape(s.title) + "</b>";
    if (!s.clause.empty()) out += " <span class=\"c\">(" + escape(s.clause) + ")</span>";
    out += "</p>\n";
    if (!s.formula.empty()) {
        const std::size_t equals = s.formula.find(" = ");
        if (equals == std::string::npos) writeLine(out, "", s.formula, "", formulaHtml);
        else writeLine(out, formulaHtml(s.formula.substr(0, equals + 3)), s.formula.substr(equals + 3), "", formulaHtml);
    }
    std::string tail;
    if (numbers) tail = "= <b>" + escape(s.result) + (s.unit.empty() ? "" : " " + escape(s.unit)) + "</b>";
    if (s.kind == StepKind::Check)
        tail += s.passed ? " <span class=\"ok\">— atendida</span>" : " <span class=\"stop\">— não atendida</span>";
    if (!s.substituted.empty()) writeLine(out, "= ", s.substituted, "&nbsp;" + tail, substitutionHtml);
    else if (!tail.empty()) out += "<p class=\"f\" style=\"margin:0\">" + tail + "</p>\n";
}

}  // namespace

std::string formulaHtml(const std::string& f) {
    std::string out;
    std::size_t i = 0;
    while (i < f.size()) {
        if (letterLength(f, i)) {
            // A digit before the letter ("25φ") keeps the letter a plain symbol.
            std::size_t end = symbolEnd(f, i);
            out += symbolHtml(f.substr(i, end - i));
            i = end;
        } else if (f[i] == '^') {
            i = appendPower(f, i, out);
        } else if ((f[i] >= '0' && f[i] <= '9') || f[i] == '.') {
            // Numbers stay as they are, letters right after them included ("25φ").
            std::size_t end = i;
            while (end < f.size() && ((f[end] >= '0' && f[end] <= '9') || f[end] == '.')) ++end;
            out += f.substr(i, end - i);
            i = end;
        } else {
            out += escape(std::string(1, f[i]));
            ++i;
        }
    }
    return out;
}

std::string traceHtml(const Trace& t) {
    std::string out =
        "<!DOCTYPE html>\n<html lang=\"pt-BR\"><head><meta charset=\"utf-8\">\n<title>MORVE — Passo a passo";
    if (!t.module.empty()) out += " — " + escape(t.module);
    out += "</title>\n<style>" + std::string(kStyle) + "</style></head>\n<body>\n<h1>MORVE — Passo a passo</h1>\n";
    if (!t.title.empty()) out += "<p class=\"c\">" + escape(t.title) + " (" + escape(t.module) + ")</p>\n";
    if (!t.ran) {
        out += "<p>Nenhum cálculo realizado ainda: o passo a passo aparece depois de um CALCULAR.</p>\n";
        return out + "</body></html>\n";
    }
    int passedData = 0;
    auto flushPassed = [&] {
        if (passedData == 0) return;
        out += "<p class=\"ok\">✓ " + std::to_string(passedData) +
               (passedData == 1 ? " verificação dos dados atendida." : " verificações dos dados atendidas.") + "</p>\n";
        passedData = 0;
    };
    for (const TraceStep& s : t.steps) {
        const bool dataCheck = s.kind == StepKind::Check && s.formula.empty() && s.result.empty();
        if (dataCheck && s.passed) {
            ++passedData;
            continue;
        }
        flushPassed();
        if (s.kind == StepKind::Stage) out += "<h2>" + escape(s.title) + "</h2>\n";
        else if (s.kind == StepKind::Note) out += "<p><i>" + escape(s.title) + "</i></p>\n";
        else if (dataCheck) out += "<p class=\"stop\">O cálculo parou: " + escape(s.message) + "</p>\n";
        else writeStep(out, s);
    }
    flushPassed();
    if (t.stopped && t.steps.empty()) out += "<p class=\"stop\">O cálculo parou: " + escape(t.stopMessage) + "</p>\n";
    if (t.steps.empty() && !t.stopped) out += "<p>Este cálculo não registrou passos.</p>\n";
    return out + "</body></html>\n";
}

}  // namespace morve
