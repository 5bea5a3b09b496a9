// The "Passo a passo" tells the truth: every substituted formula, read back and
// worked out, gives the result the step shows, for every example of the modules
// that record their steps and for sweeps of their data; the trace and the boxes
// agree; no step shows nan or inf; a stop ends the trace with its message.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/trace.h"
#include "cli/case_runner.h"
#include "formula_reader.h"

namespace {

using nlohmann::json;

// Shown digits: half a unit of the last decimal, widened by what four significant
// figures in each substituted number can move the result (0.3 % in all).
void expectTrue(const morve::TraceStep& s, const std::string& where) {
    if (s.substituted.empty() || s.result.empty()) return;
    SCOPED_TRACE(where + " — " + s.title + ": " + s.formula + " = " + s.substituted + " = " + s.result);
    ASSERT_NE(s.result, "—");
    double value = 0;
    ASSERT_NO_THROW(value = FormulaReader::evaluate(s.substituted));
    const double shown = std::stod(s.result);
    const std::size_t dot = s.result.find('.');
    const int decimals = dot == std::string::npos ? 0 : static_cast<int>(s.result.size() - dot - 1);
    const double tolerance = 0.5 * std::pow(10.0, -decimals) + 0.003 * std::fabs(shown) + 1e-12;
    EXPECT_NEAR(value, shown, tolerance);
}

morve::CaseRun run(const json& c) { return morve::runCase(c, true); }

// Every step true, no nan/inf, and a stopped run ends on its stop.
void expectTrace(const morve::CaseRun& r, const std::string& where) {
    const morve::Trace& t = r.session->steps();
    ASSERT_TRUE(t.ran) << where;
    for (const auto& s : t.steps) expectTrue(s, where);
    const std::string html = morve::traceHtml(t);
    for (const char* bad : {"nan", "inf", "NaN", "Inf"}) EXPECT_EQ(html.find(bad), std::string::npos) << where;
    if (t.stopped && !t.stopMessage.empty()) {
        EXPECT_EQ(t.steps.back().message, t.stopMessage) << where;
        EXPECT_NE(html.find(t.stopMessage), std::string::npos) << where;
    }
}

const std::vector<std::string> kTracedModules{"Form7", "Form10", "Form5", "Form6", "Form12", "Form36", "Form37", "Form38"};

TEST(Trace, EveryStepOfEveryExampleIsTrue) {
    int traced = 0;
    for (const auto& entry : std::filesystem::directory_iterator(MORVE_EXAMPLES)) {
        if (entry.path().extension() != ".json") continue;
        json c = morve::parseCase((std::stringstream() << std::ifstream(entry.path()).rdbuf()).str());
        const std::string key = c.value("module", "");
        if (std::ranges::find(kTracedModules, key) == kTracedModules.end()) continue;
        if (c.contains("press")) {
            // The trace is the calculation's: stop after it, before detailing moves on.
            json presses = json::array();
            for (const auto& p : c["press"]) {
                presses.push_back(p);
                if (morve::ModuleRegistry::find(key)->info().calculate == p.get<std::string>()) break;
            }
            c["press"] = presses;
        }
        morve::CaseRun r = run(c);
        expectTrace(r, entry.path().filename().string());
        traced += std::ranges::any_of(r.session->steps().steps,
                                      [](const auto& s) { return s.kind == morve::StepKind::Calculation; });
    }
    EXPECT_EQ(traced, 13);  // the examples of the eight modules, each with its calculation
}

// The trace's last word on the steel is the box's text.
std::string lastResult(const morve::Trace& t, const std::string& title) {
    for (auto it = t.steps.rbegin(); it != t.steps.rend(); ++it)
        if (it->title == title) return it->result;
    return "";
}

TEST(Trace, BendingSweepIsTrueAndAgreesWithTheBoxes) {
    for (const char* fck : {"20", "35", "45", "60", "90"})
        for (const char* mk : {"-40", "5", "120", "260"})
            for (const char* criterion : {"CEB/90", "NBR-6118", "Balanceada"}) {
                const std::string where = std::string("fck ") + fck + " Mk " + mk + " " + criterion;
                morve::CaseRun r7 = run({{"module", "Form7"},
                                         {"set", {{"Text1", fck}, {"Text6", mk}, {"Text10", "4"}, {"List6", "1"},
                                                  {"List2", criterion}}},
                                         {"answers", json::array({"no", "no"})}});
                expectTrace(r7, "Form7 " + where);
                if (r7.outcome["steps"][0]["completed"].get<bool>()) {
                    EXPECT_EQ(lastResult(r7.session->steps(), "Armadura tracionada adotada"),
                              r7.session->state().text("Text7")) << where; }
                morve::CaseRun r10 = run({{"module", "Form10"},
                                          {"set", {{"Text1", fck}, {"Text5", "10"}, {"Text9", "4"}, {"Text10", mk},
                                                   {"List6", "1"}, {"List2", criterion}}}});
                expectTrace(r10, "Form10 " + where);
            }
}

TEST(Trace, ColumnDesignSweepIsTrue) {
    const json rows = json::array({json::array({"1", "3"}), json::array({"2", "3"})});
    for (const char* fck : {"20", "40", "70"})
        for (const char* nk : {"0", "300", "1000", "2500"})
            for (const char* mk : {"0", "40", "120"})
                expectTrace(run({{"module", "Form12"},
                                 {"set", {{"Text1", fck}, {"Text4", "20"}, {"Text5", "50"}, {"Text6", "4"},
                                          {"Text7", "2"}, {"Text8", nk}, {"Text9", mk}}},
                                 {"grids", {{"Form12b.Grade1", rows}}},
                                 {"press", json::array({"Command4"})}}),
                            std::string("Form12 fck ") + fck + " Nk " + nk + " Mk " + mk);
}

TEST(Trace, AnchorageSweepIsTrue) {
    for (const char* key : {"Form36", "Form37", "Form38"})
        for (const char* fck : {"20", "30", "60", "90"})
            for (const char* surface : {"Nervurado", "Entalhado", "Liso"})
                for (const char* bar : {"6.3", "12.5", "25"})
                    for (bool poor : {false, true}) {
                        const std::string k = key;
                        json set = {{"Text1", fck}, {"List1", surface}, {"List2", bar}, {"Text3", "2"}};
                        set[k == "Form37" ? "Text5" : "Text4"] = k == "Form37" ? "80" : "4";
                        if (k == "Form38") set["List3"] = "33%";
                        if (poor && k != "Form37") set[k == "Form38" ? "Option4" : "Option2"] = "true";
                        expectTrace(run({{"module", key}, {"set", set}}),
                                    std::string(key) + " fck " + fck + " " + surface + " " + bar + (poor ? " má" : ""));
                    }
}

TEST(Trace, ShearAndTorsionSweepIsTrue) {
    for (const char* fck : {"20", "40", "70"})
        for (const char* vk : {"10", "120", "400"}) {
            const std::string where = std::string("fck ") + fck + " Vk " + vk;
            expectTrace(run({{"module", "Form5"},
                             {"set", {{"Text1", fck}, {"Text3", "20"}, {"Text4", "46"}, {"Text5", vk}, {"List1", "6.3"}}}}),
                        "Form5 " + where);
            for (const char* tk : {"5", "40"})
                for (const char* mk : {"0", "150"})
                    expectTrace(run({{"module", "Form6"},
                                     {"set", {{"Text1", fck}, {"Text7", "25"}, {"Text8", "50"}, {"Text9", "4"},
                                              {"Text10", mk}, {"Text11", vk}, {"Text12", tk}, {"List1", "8.0"}}}}),
                                "Form6 " + where + " Tk " + tk + " Mk " + mk);
        }
}

TEST(Trace, NothingRecordedWithoutARecorderAndEmptyTraceSaysSo) {
    morve::CaseRun r = morve::runCase({{"module", "Form7"}, {"set", {{"Text6", "100"}, {"Text10", "4"}, {"List6", "1"}}}});
    EXPECT_FALSE(r.session->steps().ran);
    EXPECT_TRUE(r.session->steps().steps.empty());
    EXPECT_NE(morve::traceHtml(r.session->steps()).find("Nenhum cálculo realizado"), std::string::npos);
}

TEST(Trace, FormulasReadAsMathematics) {
    EXPECT_EQ(morve::formulaHtml("As = ω · U"), "A<sub>s</sub> = ω · U");
    EXPECT_EQ(morve::formulaHtml("ε's = fck^(2/3)"), "ε'<sub>s</sub> = f<sub>ck</sub><sup>2/3</sup>");
    EXPECT_EQ(morve::formulaHtml("lb,nec = max(25φ, 10)"), "l<sub>b,nec</sub> = max(25φ, 10)");
    // A single division at the top stands as a fraction; a sum, a comparison or a
    // product after the division stays on its line.
    morve::Trace t;
    t.ran = true;
    morve::TraceRecorder rec(&t);
    rec.step("a", "fyd = fyk / (10 · γs)", "{} / (10 · {})", {{500, "MPa"}, {1.15, ""}}, 43.48, "kN/cm²");
    rec.check("b", "ρ = (As + A's) / Ac ≤ 0.04", "({} + {}) / {}", {{1, "cm²"}, {2, "cm²"}, {100, "cm²"}}, 0.03, "", true);
    rec.step("c", "x = a / b · c", "{} / {} · {}", {{1, ""}, {2, ""}, {3, ""}}, 1.5, "");
    const std::string html = morve::traceHtml(t);
    EXPECT_NE(html.find(">10 · γ<sub>s</sub></td>"), std::string::npos);
    EXPECT_NE(html.find(">10 · 1.15</td>"), std::string::npos);
    EXPECT_NE(html.find("(A<sub>s</sub> + A'<sub>s</sub>) / A<sub>c</sub> ≤ 0.04</p>"), std::string::npos);
    EXPECT_NE(html.find("a / b · c</p>"), std::string::npos);
    EXPECT_EQ(morve::traceNumber(43.4783), "43.48");
    EXPECT_EQ(morve::traceNumber(0.00350), "0.0035");
    EXPECT_EQ(morve::traceNumber(123456.7), "123457");
    EXPECT_EQ(morve::traceNumber(std::nan("")), "—");
}

}  // namespace
