#pragma once
// The "Passo a passo" of a calculation: each step as the formula in the program's
// notation, the same formula with the numbers and units put in, the result as the
// screen rounds it and the clause of the code it comes from. The calculation writes
// it as it goes, from the very values it puts in the boxes, so the two never differ.
//
// A calculation reaches its trace through the Prompter it already receives
// (`prompter.trace()`); with no trace asked for the pointer is null and every call
// of a TraceRecorder returns at once, so a module joins by adding steps only.
#include <initializer_list>
#include <string>
#include <vector>

namespace morve {

enum class StepKind {
    Stage,        // a heading: "Materiais", "Armaduras"
    Calculation,  // formula, substitution, result
    Check,        // a condition that passes, or stops the run with its message
    Note,         // a sentence: which branch the calculation took
};

struct TraceStep {
    StepKind kind = StepKind::Calculation;
    std::string title;
    std::string formula;      // "As = ω · b · d · σcd / fyd"
    std::string substituted;  // "0.2147 · 20 cm · 36 cm · 1.214 kN/cm² / 43.48 kN/cm²"
    std::string result;       // "4.32", as the screen shows it; "" for none
    std::string unit;         // "cm²"
    std::string clause;       // "NBR-6118:2014, 17.2.2"
    bool passed = true;       // a check that stopped the run is false
    std::string message;      // the text of a check that stopped the run
};

struct Trace {
    std::string module;  // "Form7"
    std::string title;   // the screen's caption
    std::vector<TraceStep> steps;
    bool ran = false;      // a CALCULAR has been pressed
    bool stopped = false;  // and a check stopped it
    std::string stopMessage;
};

// A value put into a formula: the number with its unit ("" for none).
struct TraceValue {
    double value;
    const char* unit = "";
};

// Numbers in substitutions: four significant figures, never fewer than the whole
// part, shortest form, "." as the mark. A value that is not finite shows as "—":
// the trace never prints nan or inf.
std::string traceNumber(double x);

class TraceRecorder {
public:
    explicit TraceRecorder(Trace* trace) : trace_(trace) {}
    bool on() const { return trace_ != nullptr; }

    void stage(const char* title) {
        if (trace_) add(StepKind::Stage, title);
    }
    // A literal note builds no string when nothing is recorded; a note put together
    // from values is built under `if (rec.on())` by its caller.
    void note(const char* text) {
        if (trace_) add(StepKind::Note, text);
    }
    void note(const std::string& text) {
        if (trace_) add(StepKind::Note, text);
    }
    // `pattern` is the right-hand side with "{}" where each value goes, in order.
    // decimals >= 0 rounds the result as a result box does (the screen's own
    // rounding); -1 writes it with four significant figures.
    void step(const char* title, const char* formula, const char* pattern,
              std::initializer_list<TraceValue> values, double result, const char* unit,
              int decimals = -1, const char* clause = "") {
        if (trace_) addStep(StepKind::Calculation, title, formula, pattern, values, result, unit, decimals, clause, true);
    }
    // A condition worked out with its numbers: `formula` states it ("ρ ≤ 4 %"),
    // the substitution gives the value compared.
    void check(const char* title, const char* formula, const char* pattern,
               std::initializer_list<TraceValue> values, double result, const char* unit, bool passed,
               const char* clause = "") {
        if (trace_) addStep(StepKind::Check, title, formula, pattern, values, result, unit, -1, clause, passed);
    }
    // A check of the data that passed or stopped, by the text it shows when it stops.
    void dataCheck(const std::string& message, bool passed) {
        if (trace_) addDataCheck(message, passed);
    }

private:
    void add(StepKind kind, const std::string& title);
    void addDataCheck(const std::string& message, bool passed);
    void addStep(StepKind kind, const char* title, const char* formula, const char* pattern,
                 std::initializer_list<TraceValue> values, double result, const char* unit, int decimals,
                 const char* clause, bool passed);
    Trace* trace_;
};

// The trace as one self-contained HTML page (styles inline, UTF-8): headings per
// stage, formulas with sub- and superscripts and Greek letters, the stop in red.
// The desktop shows the same text in its window, prints it and saves it as PDF.
std::string traceHtml(const Trace& trace);

// The formula notation written as rich text: "fyd" -> f<sub>yd</sub>, "A's" ->
// A'<sub>s</sub>, "x²" kept, functions (max, min, √) left as they are.
std::string formulaHtml(const std::string& formula);

}  // namespace morve
