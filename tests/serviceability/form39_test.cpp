// Estados limites de utilização (Form39): the section frames and the load picture.
// Its checks in order, results worked by hand and report are cases in
// tests/cases/serviceability.
#include <gtest/gtest.h>

#include "app/module.h"

namespace morve {
namespace {

using Inputs = std::map<std::string, std::string>;
using Rows = std::vector<std::vector<std::string>>;

struct Form39Run {
    ModuleSession session{*ModuleRegistry::find("Form39"), StartDefaults{}};
    ScriptedPrompter prompter;
    Outcome outcome;

    FormState& state() { return session.state(); }
    const std::string& text(const std::string& name) { return state().text(name); }
    Outcome press(const std::string& command) { return outcome = session.press(command, prompter); }
};

// 20 x 50 with As 6 at d = 45, no creep or shrinkage, 10 kN at the middle of 4 m:
// uncracked (Ma = 10 kNm below Mr = 27.63 kNm).
Inputs good(const Inputs& changes = {}) {
    Inputs in{{"Text3", "0"}, {"Text4", "0"}, {"Text6", "4"}, {"Text8", "1"}, {"Text9", "20"}, {"Text10", "50"},
              {"Text11", "5"}, {"Text12", "4"}, {"Text13", "6"}, {"Text14", "0"}, {"List1", "12.5"}};
    for (const auto& [k, v] : changes) in[k] = v;
    return in;
}
const Inputs kTee{{"Option1", ""}, {"Option2", "True"}, {"Text15", "60"}, {"Text16", "10"}, {"Text17", "20"},
                  {"Text18", "50"}, {"Text19", "5"}, {"Text20", "4"}, {"Text21", "6"}, {"Text22", "0"},
                  {"List2", "12.5"}};
Inputs tee(const Inputs& changes = {}) {
    Inputs in = good(kTee);
    for (const auto& [k, v] : changes) in[k] = v;
    return in;
}

// Types the boxes, opens the tables with "Cargas", fills them, closes with "&OK"
// and presses "&CALCULAR".
std::unique_ptr<Form39Run> run(const Inputs& in, const Rows& points = {{"1", "2", "10", "0"}}, const Rows& uniform = {},
                               std::vector<std::string> answers = {}) {
    auto r = std::make_unique<Form39Run>();
    for (const auto& [k, v] : in) r->state().setText(k, v);
    r->state().setText("Text7", std::to_string(uniform.size()));
    if (!in.count("Text8")) r->state().setText("Text8", std::to_string(points.size()));
    r->press("Command8");
    for (std::size_t i = 0; i < points.size() && i + 1 < r->state().grid("Form39b.Grade1").size(); ++i)
        r->state().grid("Form39b.Grade1")[i + 1] = points[i];
    for (std::size_t i = 0; i < uniform.size(); ++i) r->state().grid("Form39b.Grade2")[i + 1] = uniform[i];
    r->press("Form39b.Command2");
    r->prompter = ScriptedPrompter(std::move(answers));
    r->press("Command3");
    return r;
}

TEST(Form39Run, BackFromTheResultsTheOptionSwapsTheSectionFrames) {
    auto r = run(tee());
    ASSERT_TRUE(r->outcome.completed);
    r->press("Form39c.Command2");
    Outcome o = r->press("Option1");
    EXPECT_FALSE(r->state().option("Option2"));
    EXPECT_TRUE(r->state().visible("Frame3"));
    EXPECT_FALSE(r->state().visible("Frame4"));
    EXPECT_EQ(o.effects.size(), 2u);
}

TEST(Form39Run, TheLoadPictureTakesAnyData) {
    Form39Run r;
    r.state().setText("Text7", "2");
    r.state().setText("Text8", "3");
    ASSERT_TRUE(r.press("Command8").completed);
    r.state().grid("Form39b.Grade1")[1] = {"1", "9", "12", "-4"};  // beyond a span of nothing
    r.state().grid("Form39b.Grade2")[1] = {"1", "-1", "30", "7"};
    EXPECT_FALSE(r.session.module().drawing("Form39b2.Picture1", r.state()).empty());
}

}  // namespace
}  // namespace morve
