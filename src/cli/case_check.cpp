#include "cli/case_check.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <sstream>

#include "app/texts.h"
#include "cli/project_case.h"
#include "reports/report_dispatch.h"

namespace morve {

using nlohmann::json;

namespace {

std::string inQuotes(const std::string& text) {
    return json(text).dump(-1, ' ', false, json::error_handler_t::replace);
}

// An expected text: written as a string, or as a number or boolean by its JSON text.
std::string expectedText(const json& v, const std::string& where) {
    if (v.is_string()) return v.get<std::string>();
    if (v.is_number() || v.is_boolean()) return v.dump();
    throw CaseError("esperado um texto em " + where);
}

const json& objectAt(const json& expect, const char* key) {
    const json& v = expect.at(key);
    if (!v.is_object()) throw CaseError(std::string("\"expect\".\"") + key + "\" deve ser um objeto");
    return v;
}

class Checker {
public:
    explicit Checker(const CaseRun& run) : run_(run), state_(run.session->state()) {}

    void completed(const json& v) {
        if (!v.is_boolean()) throw CaseError("\"completed\" deve ser true ou false");
        const bool came = lastStep().value("completed", false);
        if (came != v.get<bool>()) miss("completed", v.dump(), came ? "true" : "false");
    }

    // The last message of the last press; null when it showed none.
    void message(const json& v) {
        const json& messages = lastStep().at("messages");
        const std::string came = messages.empty() ? "null" : inQuotes(messages.back().at("text"));
        const std::string want = v.is_null() ? "null" : inQuotes(expectedText(v, "\"message\""));
        if (came != want) miss("message", want, came);
    }

    void title(const json& v) {
        const json& messages = lastStep().at("messages");
        const std::string came = messages.empty() ? "null" : inQuotes(messages.back().at("title"));
        const std::string want = v.is_null() ? "null" : inQuotes(expectedText(v, "\"title\""));
        if (came != want) miss("title", want, came);
    }

    // Every message of the last press, in order.
    void messages(const json& v) {
        if (!v.is_array()) throw CaseError("\"messages\" deve ser uma lista de textos");
        const json& shown = lastStep().at("messages");
        for (std::size_t i = 0; i < std::max(v.size(), shown.size()); ++i) {
            const std::string where = "messages " + std::to_string(i);
            const std::string want = i < v.size() ? inQuotes(expectedText(v[i], where)) : "nenhuma";
            const std::string came = i < shown.size() ? inQuotes(shown[i].at("text")) : "nenhuma";
            if (came != want) miss(where, want, came);
        }
    }

    void focus(const json& v) {
        const json& f = lastStep().at("focus");
        const std::string came = f.is_null() ? "null" : f.get<std::string>();
        const std::string want = v.is_null() ? "null" : state_.qualify(expectedText(v, "\"focus\""));
        if (came != want) miss("focus", want, came);
    }

    void fields(const json& fields) {
        for (const auto& [name, v] : fields.items()) {
            if (!state_.has(name)) throw CaseError("controle desconhecido em \"fields\": " + quoteText(name));
            compare(state_.qualify(name), expectedText(v, name), state_.text(name));
        }
    }

    // {"Form34d.Grade1": [[row, column, "text"], ...]}, row 0 being the header.
    void cells(const json& grids) {
        for (const auto& [name, list] : grids.items()) {
            const ControlDecl* decl = state_.declaration(name);
            if (!decl || decl->kind != ControlKind::Grid) throw CaseError("grade desconhecida: " + quoteText(name));
            if (!list.is_array()) throw CaseError("as células de " + name + " devem ser uma lista");
            const GridRows& rows = state_.grid(name);
            for (const auto& c : list) {
                if (!c.is_array() || c.size() != 3 || !c[0].is_number_integer() || !c[1].is_number_integer())
                    throw CaseError("célula de " + name + " deve ser [linha, coluna, \"texto\"]");
                const int row = c[0].get<int>(), column = c[1].get<int>();
                const std::string where = name + "[" + std::to_string(row) + "][" + std::to_string(column) + "]";
                const std::string want = expectedText(c[2], where);
                const bool inside = row >= 0 && column >= 0 && static_cast<std::size_t>(row) < rows.size() &&
                                    static_cast<std::size_t>(column) < rows[row].size();
                if (!inside) miss(where, inQuotes(want), "nenhuma célula");
                else compare(where, want, rows[row][column]);
            }
        }
    }

    // Texts that must be, whole, the text of some box, list item or cell of a screen:
    // for results whose place on the screen depends on the case.
    void contains(const json& screens) {
        for (const auto& [screen, list] : screens.items()) {
            if (!list.is_array()) throw CaseError("\"contains\" de " + screen + " deve ser uma lista");
            const std::vector<std::string> shown = textsOf(screen);
            if (shown.empty()) throw CaseError("tela desconhecida em \"contains\": " + quoteText(screen));
            for (const auto& v : list) {
                const std::string want = expectedText(v, screen);
                if (std::find(shown.begin(), shown.end(), want) == shown.end())
                    miss("contains " + screen, inQuotes(want), "ausente");
            }
        }
    }

    // {"KEY": ["line", ...]}: the report's lines, all of them in order;
    // {"KEY": {"3": "line", "title": "..."}}: single lines by place (from 0), the title.
    void report(const json& reports) {
        for (const auto& [key, want] : reports.items()) {
            ReportWriter writer;
            if (!generateReport(key, run_.session->module(), state_, writer)) {
                miss("report " + key, "um relatório", "nenhum");
                continue;
            }
            std::vector<std::string> lines;
            for (const auto& block : writer.document().blocks)
                if (const auto* l = std::get_if<ReportLine>(&block)) lines.push_back(l->text());
            if (want.is_array()) {
                for (std::size_t i = 0; i < std::max(want.size(), lines.size()); ++i) {
                    const std::string where = "report " + key + " linha " + std::to_string(i);
                    if (i >= lines.size()) miss(where, inQuotes(expectedText(want[i], where)), "nenhuma linha");
                    else if (i >= want.size()) miss(where, "nenhuma linha", inQuotes(lines[i]));
                    else compare(where, expectedText(want[i], where), lines[i]);
                }
            } else if (want.is_object()) {
                for (const auto& [place, text] : want.items()) {
                    if (place == "title") {
                        compare("report " + key + " título", expectedText(text, place), writer.document().title);
                        continue;
                    }
                    const std::string where = "report " + key + " linha " + place;
                    std::size_t i = 0;
                    try {
                        i = std::stoul(place);
                    } catch (const std::exception&) {
                        throw CaseError("linha de relatório inválida: " + quoteText(place));
                    }
                    if (i >= lines.size()) miss(where, inQuotes(expectedText(text, where)), "nenhuma linha");
                    else compare(where, expectedText(text, where), lines[i]);
                }
            } else {
                throw CaseError("o relatório " + key + " espera uma lista de linhas ou um objeto");
            }
        }
    }

    const std::vector<std::string>& misses() const { return misses_; }

private:
    const json& lastStep() const {
        const json& steps = run_.outcome.at("steps");
        if (steps.empty()) throw CaseError("o caso não pressiona nenhum botão");
        return steps.back();
    }

    std::vector<std::string> textsOf(const std::string& screen) const {
        std::vector<std::string> shown;
        const std::string prefix = screen + ".";
        for (const auto& [name, text] : state_.texts())
            if (name.rfind(prefix, 0) == 0) {
                shown.push_back(text);
                const ControlDecl* decl = state_.declaration(name);
                if (decl && decl->kind == ControlKind::List)
                    for (const auto& item : state_.items(name)) shown.push_back(item);
            }
        for (const auto& [name, rows] : state_.grids())
            if (name.rfind(prefix, 0) == 0)
                for (const auto& row : rows) shown.insert(shown.end(), row.begin(), row.end());
        return shown;
    }

    void compare(const std::string& where, const std::string& want, const std::string& came) {
        if (want != came) miss(where, inQuotes(want), inQuotes(came));
    }
    void miss(const std::string& where, const std::string& want, const std::string& came) {
        misses_.push_back(where + ": esperado " + want + ", veio " + came);
    }

    const CaseRun& run_;
    const FormState& state_;
    std::vector<std::string> misses_;
};

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw CaseError("não foi possível ler o arquivo");
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// A case of a file's "cases": the file's own keys with the variant's over them;
// "set", "grids" and "expect" are merged key by key, so a variant only says what
// it changes from the file's case.
json variantOf(const json& file, const json& variant) {
    if (!variant.is_object()) throw CaseError("cada item de \"cases\" deve ser um objeto");
    json merged = file;
    merged.erase("cases");
    for (const auto& [key, value] : variant.items()) {
        const bool mergeable = key == "set" || key == "grids" || key == "expect";
        if (mergeable && value.is_object() && merged.contains(key) && merged.at(key).is_object())
            merged[key].update(value);
        else merged[key] = value;
    }
    return merged;
}

// What falls short in one case, or why it could not be run.
std::vector<std::string> missesOf(json caseFile, const std::string& path) {
    try {
        resolveCaseProject(caseFile, path);
        CaseRun run = runCase(caseFile);
        return checkCase(caseFile, run);
    } catch (const CaseError& e) {
        return {e.what()};
    } catch (const std::exception& e) {
        return {std::string("erro inesperado: ") + quoteText(e.what(), 200)};
    }
}

}  // namespace

std::vector<std::string> checkCase(const json& caseFile, const CaseRun& run) {
    if (!caseFile.contains("expect")) return {};
    const json& expect = caseFile.at("expect");
    if (!expect.is_object()) throw CaseError("\"expect\" deve ser um objeto");
    Checker check(run);
    for (const auto& [key, value] : expect.items()) {
        if (key == "completed") check.completed(value);
        else if (key == "message") check.message(value);
        else if (key == "title") check.title(value);
        else if (key == "messages") check.messages(value);
        else if (key == "focus") check.focus(value);
        else if (key == "fields") check.fields(objectAt(expect, "fields"));
        else if (key == "cells") check.cells(objectAt(expect, "cells"));
        else if (key == "contains") check.contains(objectAt(expect, "contains"));
        else if (key == "report") check.report(objectAt(expect, "report"));
        else throw CaseError("expectativa desconhecida: " + quoteText(key));
    }
    return check.misses();
}

int checkCaseFiles(const std::vector<std::string>& paths) {
    int passed = 0, failed = 0;
    auto tally = [&](const std::string& label, const std::vector<std::string>& misses) {
        if (misses.empty()) {
            ++passed;
            return;
        }
        ++failed;
        std::string line = label + ": ";
        for (std::size_t i = 0; i < misses.size(); ++i) line += (i ? "; " : "") + misses[i];
        std::cout << line << "\n";
    };
    for (const auto& path : paths) {
        json file;
        try {
            file = parseCase(readFile(path));
        } catch (const CaseError& e) {
            tally(path, {e.what()});
            continue;
        }
        if (!file.is_object() || !file.contains("cases")) {
            tally(path, missesOf(file, path));
            continue;
        }
        const json& variants = file.at("cases");
        if (!variants.is_array() || variants.empty()) {
            tally(path, {"\"cases\" deve ser uma lista de casos"});
            continue;
        }
        for (std::size_t i = 0; i < variants.size(); ++i) {
            std::vector<std::string> misses;
            try {
                misses = missesOf(variantOf(file, variants[i]), path);
            } catch (const CaseError& e) {
                misses = {e.what()};
            }
            tally(path + " #" + std::to_string(i + 1), misses);
        }
    }
    std::cout << passed << " passed, " << failed << " failed\n";
    return failed == 0 ? 0 : 1;
}

}  // namespace morve
