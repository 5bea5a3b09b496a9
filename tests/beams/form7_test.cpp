// The rectangular-section design module: its checks in order, its results against
// hand calculations, its screen effects and its report.
#include <gtest/gtest.h>

#include <map>

#include "../module_run.h"
#include "../stop_expectations.h"
#include "app/module.h"
#include "basis/messages.h"
#include "beams/form7.h"
#include "reports/report_dispatch.h"
#include "reports/report_writer.h"

using namespace morve;

namespace {

const Module& form7() { return *ModuleRegistry::find("Form7"); }

// Load with the start dialog's first selections, the section b 20, h 40, d 36 of
// the window's defaults, d' = 4 and class 1, then the changes of the case.
std::unique_ptr<morve::testing::Run> calculate(const std::map<std::string, std::string>& set,
                                        std::vector<std::string> answers = {}, StartDefaults defaults = {}) {
    const auto boxes = morve::testing::with({{"Text10", "4"}, {"Text6", "50"}, {"List6", "1"}}, set);
    return morve::testing::pressWith("Form7", "Command1", boxes, std::move(answers), defaults);
}

}  // namespace

struct CheckCase {
    const char* name;
    std::map<std::string, std::string> set;
    std::vector<std::string> answers;
    std::string message;
    MessageKind kind;
    std::string focus;
};

class Form7Checks : public ::testing::TestWithParam<CheckCase> {};

TEST_P(Form7Checks, StopsWithItsTextAndFocus) {
    const CheckCase& c = GetParam();
    auto run = calculate(c.set, c.answers);
    expectStop(run->prompter, run->outcome, c.message, c.kind, c.focus);
    EXPECT_EQ(run->text("Text7"), " ");
    EXPECT_EQ(run->text("Text8"), " ");
}

const std::string kNonZeroMk = "Forneça um valor não nulo para Mk.";
using K = MessageKind;

INSTANTIATE_TEST_SUITE_P(
    InOrder, Form7Checks,
    ::testing::Values(
        CheckCase{"LowFck", {{"Text1", "19.9"}, {"Text2", "0"}}, {}, msg::kLowFck, K::Warning, ""},
        CheckCase{"HighFck", {{"Text1", "90.1"}, {"List6", ""}}, {}, msg::kHighFck, K::Warning, "Form7.Text1"},
        CheckCase{"NoClass", {{"List6", ""}, {"Text2", "0"}}, {}, msg::kChooseClass, K::Warning, "Form7.List6"},
        CheckCase{"ClassFck", {{"List6", "4"}, {"Text1", "35"}}, {}, msg::kClassFck, K::Warning, "Form7.Text1"},
        CheckCase{"Fyk", {{"Text2", "0"}, {"Text9", "0"}}, {}, msg::kPositiveFyk, K::Warning, "Form7.Text2"},
        CheckCase{"Es", {{"Text9", "-1"}, {"Text2", "450"}}, {}, msg::kPositiveEs, K::Warning, "Form7.Text9"},
        CheckCase{"SteelClass", {{"Text2", "450"}}, {"yes"}, msg::kSteelClass, K::YesNo, "Form7.Text2"},
        CheckCase{"CodeEs", {{"Text9", "205"}}, {"yes"}, msg::kCodeEs, K::YesNo, "Form7.Text9"},
        CheckCase{"B", {{"Text3", "0"}, {"Text4", "0"}}, {}, "Forneça um valor positivo para b.", K::Warning, "Form7.Text3"},
        CheckCase{"Width", {{"Text3", "11.9"}}, {"yes"}, msg::kBeamWidth, K::YesNo, "Form7.Text3"},
        CheckCase{"H", {{"Text4", "0"}}, {}, msg::kPositiveH, K::Warning, "Form7.Text4"},
        CheckCase{"D", {{"Text5", "-2"}}, {}, msg::kPositiveD, K::Warning, "Form7.Text5"},
        CheckCase{"DAtH", {{"Text5", "40"}}, {}, msg::kDBelowH, K::Warning, "Form7.Text5"},
        CheckCase{"MkZero", {{"Text6", ""}, {"Text10", ""}}, {}, kNonZeroMk, K::Warning, "Form7.Text6"},
        CheckCase{"DPrime", {{"Text10", ""}}, {}, msg::kPositiveDPrime, K::Warning, "Form7.Text10"},
        CheckCase{"DPrimeAtD", {{"Text10", "36"}}, {}, msg::kDPrimeBelowD, K::Warning, "Form7.Text10"},
        CheckCase{"Gamac", {{"Text13", "0.9"}, {"Text14", "0.9"}}, {}, msg::kPartialCoefficient, K::Warning, "Form7.Text13"},
        CheckCase{"Gamas", {{"Text14", "0.99"}}, {}, msg::kPartialCoefficient, K::Warning, "Form7.Text14"},
        CheckCase{"Gamaf", {{"Text15", ""}}, {}, msg::kPartialCoefficient, K::Warning, "Form7.Text15"},
        CheckCase{"BalancedBeta", {{"List2", "Balanceada"}, {"List3", "0.90"}}, {}, msg::kBalancedBeta, K::Warning, "Form7.List2"},
        // fck 90 with NBR-6118 at Beta 0.75: xlim 0.15 is below 2.6 / 12.6, so any
        // section that needs compression steel stops.
        CheckCase{"Domain2", {{"Text1", "90"}, {"List2", "NBR-6118"}, {"List3", "0.75"}, {"Text6", "200"}}, {},
                  msg::kDomain2, K::Warning, "Form7.Text4"},
        // d' / d = 0.56 above xlim 0.45 under a heavy moment.
        CheckCase{"DeltaAboveXlim", {{"Text10", "20"}, {"Text6", "100"}}, {}, msg::kEnlargeSection, K::Warning, "Form7.Text4"},
        CheckCase{"RateAbove4", {{"Text6", "250"}}, {}, msg::kSteelRateAbove4, K::Warning, ""}),
    [](const ::testing::TestParamInfo<CheckCase>& info) { return info.param.name; });

TEST(Form7Results, MatchTheHandCalculations) {
    struct Case {
        const char* what;
        std::map<std::string, std::string> set;
        std::vector<std::string> answers;
        const char *as, *asPrime;
    };
    // sigmacd = 0.85 x 2 / 1.4 = 1.214286, fyd = 43.478, mulim 0.2952 (xlim 0.45).
    const Case cases[] = {
        // Mk 50: mu = 7000 / (20 x 36^2 x 1.214286) = 0.222404; omega = 1 - sqrt(1 - 2 mu)
        // = 0.254889; As = omega x 20 x 36 x 1.214286 / 43.478 = 5.1254.
        {"single", {}, {}, "5.13", "0"},
        // Mk 100: mu = 0.444808; delta 1/9, es' = (0.45 - 0.1111) 3.5 / 0.45 = 2.636 per
        // mille, yields; omega' = 0.149608 / 0.888889 = 0.168309, omega = 0.36 + omega';
        // x 20.1086 cm2.
        {"double", {{"Text6", "100"}}, {}, "10.62", "3.38"},
        {"negative moment by its size", {{"Text6", "-100"}}, {}, "10.62", "3.38"},
        // d' 12: es' = (0.45 - 0.3333) 3.5 / 0.45 = 0.9074 per mille, sigmas' = 18.148;
        // omega' = 0.149608 x 43.478 / (0.66667 x 18.148) = 0.53764 -> 10.811; As 11.752.
        {"compression steel elastic", {{"Text6", "100"}, {"Text10", "12"}}, {}, "11.75", "10.81"},
        // Mk 5 needs 0.45 cm2; rhomin raised to 0.0015 at fck 20: 1.2. At fck 30
        // 0.078 x 30^(2/3) / 434.78 = 0.0017321 -> 1.3857.
        {"minimum", {{"Text6", "5"}}, {}, "1.2", "0"},
        {"minimum fck 30", {{"Text6", "5"}, {"Text1", "30"}}, {}, "1.39", "0"},
        // A light moment needs no compression steel, so a large d' does not matter.
        {"large d' unused", {{"Text10", "20"}, {"Text6", "30"}}, {}, nullptr, "0"},
        // fyk 450, Es 205 and b 11 kept after No: mu = 7000 / (11 x 1296 x 1.214286) =
        // 0.40437; es' 2.636 > 39.13 / 20500 yields; omega' = 0.10917 / 0.88889 = 0.12282,
        // omega = 0.36 + omega'; unit 11 x 36 x 1.214286 / 39.1304 = 12.2886.
        {"answers No", {{"Text2", "450"}, {"Text9", "205"}, {"Text3", "11"}}, {"no", "no", "no"}, "5.93", "1.51"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        auto run = calculate(c.set, c.answers);
        EXPECT_TRUE(run->outcome.completed);
        EXPECT_EQ(run->prompter.messages().size(), c.answers.size());
        EXPECT_EQ(run->outcome.focus, "");
        if (c.as) {
            EXPECT_EQ(run->text("Text7"), c.as);
        }
        EXPECT_EQ(run->text("Text8"), c.asPrime);
    }
}

TEST(Form7Effects, SuccessEnablesDetailingAndPrintAndAFailureKeepsThem) {
    auto run = calculate({});
    EXPECT_EQ(run->outcome.effects,
              (std::vector<ScreenEffect>{{EffectKind::EnableControl, "Form7.Command3"},
                                         {EffectKind::EnableControl, "Form7.Toolbar1.Imprimir"}}));
    FormState& s = run->session->state();
    EXPECT_TRUE(s.enabled(printButton("Form7")));
    s.setText("Text4", "0");
    Outcome failed = run->session->press("Command1", run->prompter);
    EXPECT_FALSE(failed.completed);
    EXPECT_TRUE(s.enabled(printButton("Form7")));
    EXPECT_TRUE(s.enabled("Command3"));
    EXPECT_EQ(s.text("Text7"), " ");
}

TEST(Form7Effects, DetailingCopiesTheAreasAndShowsTheDetailingScreen) {
    auto run = calculate({{"Text6", "100"}});
    Outcome o = run->session->press("Command3", run->prompter);
    EXPECT_TRUE(o.completed);
    EXPECT_EQ(o.effects, (std::vector<ScreenEffect>{{EffectKind::HideScreen, "FormAjuda"},
                                                    {EffectKind::ShowScreen, "Form0b"},
                                                    {EffectKind::HideScreen, "Form7"},
                                                    {EffectKind::ShowScreen, "Form8"}}));
    EXPECT_EQ(run->text("Form8.Text1"), "10.62");
    EXPECT_EQ(run->text("Form8.Text2"), "3.38");
    EXPECT_FALSE(run->session->screenShown("Form7"));
    EXPECT_TRUE(run->session->screenShown("Form8"));
}

namespace {

std::vector<std::string> reportLines(const ModuleSession& session, const std::string& key) {
    ReportWriter w;
    EXPECT_TRUE(generateReport(key, session.module(), session.state(), w));
    std::vector<std::string> lines;
    for (const auto& b : w.document().blocks)
        if (const auto* l = std::get_if<ReportLine>(&b)) lines.push_back(l->text());
    return lines;
}

}  // namespace

TEST(Form7Report, LineByLine) {
    auto run = calculate({{"Text6", "100"}});
    const std::vector<std::string> expected{
        "Propriedades dos materiais:", "Concreto: fck= 20 MPa", "Aço: fyk= 500 MPa     Es= 200 GPa", " ",
        "Coeficientes parciais de segurança:", "Gamac= 1.4     Gamas= 1.15     Gamaf= 1.4", " ",
        "Dimensões da seção transversal:", "Largura b= 20 cm                       Altura h= 40 cm",
        "Altura útil d= 36 cm                   Distância d'= 4 cm", " ", "Momento fletor de serviço Mk= 100 kNm", " ",
        "Coeficiente de redistribuição de momentos: Beta = 1", "Critério de ductilidade: CEB/90.  xlim/d = 0.45", " ",
        "SOLUÇÃO:", " ", "Armadura tracionada As= 10.62 cm2", "Armadura comprimida As'= 3.38 cm2"};
    EXPECT_EQ(reportLines(*run->session, "Form7"), expected);
    ReportWriter w;
    generateReport("Form7", run->session->module(), run->session->state(), w);
    EXPECT_EQ(w.document().title, "Dimensionamento à Flexão Simples de Seções Retangulares");
    // The screen page holds the 7 header lines and these 20: one page.
    EXPECT_EQ(paginate(w.document(), "Viga V1", PageRule::Screen).size(), 1u);
}

TEST(Form7Report, CriterionLineByCriterion) {
    auto run = calculate({{"List2", "NBR-6118"}, {"List3", "0.95"}});
    EXPECT_EQ(reportLines(*run->session, "Form7")[14], "Critério de ductilidade: NBR-6118.  xlim/d = 0.41");
    // Balanced with CA-50 and Es 200: 0.0035 / (0.0021739 + 0.0035) = 0.61686, three decimals.
    auto balanced = calculate({{"List2", "Balanceada"}});
    EXPECT_EQ(reportLines(*balanced->session, "Form7")[14],
              "Critério de ductilidade: Condição balanceada. xlim / d = 0.617");
    // fck 40 with CEB/90 at Beta 0.8: 0.64 - 0.45, printed as the arithmetic gives it.
    auto ceb = calculate({{"Text1", "40"}, {"List3", "0.80"}});
    EXPECT_EQ(reportLines(*ceb->session, "Form7")[14],
              "Critério de ductilidade: CEB/90.  xlim/d = 0.19");
}

TEST(Form7Report, AFailedRunPrintsBlankResults) {
    auto run = calculate({{"Text4", "0"}});
    auto lines = reportLines(*run->session, "Form7");
    EXPECT_EQ(lines[18], "Armadura tracionada As=   cm2");
    EXPECT_EQ(lines[9], "Altura útil d= 36 cm                   Distância d'= 4 cm");
}

TEST(Form7Report, UnknownOrForeignKeysWriteNothing) {
    ModuleSession session(form7(), StartDefaults{});
    ReportWriter w;
    EXPECT_FALSE(generateReport("Form99", session.module(), session.state(), w));
    EXPECT_FALSE(generateReport("Form10", session.module(), session.state(), w));
    EXPECT_TRUE(w.document().blocks.empty());
}

TEST(Form7Sketch, LabelsEveryDimensionAndBothSteels) {
    Drawing g = form7().drawing("Form7.Picture1", FormState{});
    std::set<std::string> labels;
    for (const auto& s : g.shapes)
        if (const auto* l = std::get_if<Label>(&s.geometry)) labels.insert(l->text);
    EXPECT_EQ(labels, (std::set<std::string>{"b", "h", "d", "d'", "As", "A's"}));
}
