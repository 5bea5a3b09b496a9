#include "app/trace.h"

#include <cmath>
#include <cstdio>

#include "app/numbers.h"
#include "numeric/elementary.h"

namespace morve {

std::string traceNumber(double x) {
    if (!std::isfinite(x)) return "—";
    if (x == 0) return "0";
    const int magnitude = static_cast<int>(std::floor(portable::log10(std::fabs(x))));
    int decimals = 3 - magnitude;
    if (decimals < 0) decimals = 0;
    if (decimals > 12) decimals = 12;
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*f", decimals, x);
    std::string text = buffer;
    if (text.find('.') != std::string::npos) {
        while (text.back() == '0') text.pop_back();
        if (text.back() == '.') text.pop_back();
    }
    if (text == "-0") text = "0";
    return text;
}

void TraceRecorder::add(StepKind kind, const std::string& title) {
    TraceStep s;
    s.kind = kind;
    s.title = title;
    trace_->steps.push_back(std::move(s));
}

void TraceRecorder::addStep(StepKind kind, const char* title, const char* formula, const char* pattern,
                            std::initializer_list<TraceValue> values, double result, const char* unit,
                            int decimals, const char* clause, bool passed) {
    TraceStep s;
    s.kind = kind;
    s.title = title;
    s.formula = formula;
    s.unit = unit;
    s.clause = clause;
    s.passed = passed;
    auto value = values.begin();
    for (const char* p = pattern; *p; ++p) {
        if (p[0] == '{' && p[1] == '}' && value != values.end()) {
            // A negative value goes in parentheses so that "a − (−3)" reads as written.
            const std::string number = traceNumber(value->value);
            s.substituted += value->value < 0 ? "(" + number : number;
            if (*value->unit) s.substituted += std::string(" ") + value->unit;
            if (value->value < 0) s.substituted += ")";
            ++value;
            ++p;
        } else {
            s.substituted += *p;
        }
    }
    if (!std::isfinite(result)) s.result = "—";
    else if (decimals >= 0) s.result = formatResult(result, decimals);
    else s.result = traceNumber(result);
    trace_->steps.push_back(std::move(s));
}

void TraceRecorder::addDataCheck(const std::string& message, bool passed) {
    TraceStep s;
    s.kind = StepKind::Check;
    s.title = "Verificação dos dados";
    s.passed = passed;
    s.message = message;
    trace_->steps.push_back(std::move(s));
    if (!passed) {
        trace_->stopped = true;
        trace_->stopMessage = message;
    }
}

}  // namespace morve
