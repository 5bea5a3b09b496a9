// Every registered module, as a careless or hostile user would treat it: from its
// Load defaults and from each of its example cases, every box and every grid cell
// in turn gets texts no one should type, then "&CALCULAR" is pressed; and every
// screen's buttons are pressed in a row. A module added later is walked with no
// work here.
#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/module.h"
#include "app/trace.h"
#include "draw/drawing.h"
#include "cli/case_runner.h"
#include "reports/report_dispatch.h"
#include "reports/report_writer.h"

using namespace morve;
namespace fs = std::filesystem;

namespace {

const std::vector<std::string> kHostile = {
    "", "-0", "1e308", "1e-320", "abc", "1.2.3", std::string(10000, '9'), "çãé€", "-1", "99999999"};

// A number the arithmetic lost, as printf or a stream would write it into a box or
// a report: "nan" or "inf" standing as a word of its own, in any case.
bool lostNumber(const std::string& text) {
    auto letter = [&](std::size_t i) { return i < text.size() && std::isalpha(static_cast<unsigned char>(text[i])); };
    for (std::size_t i = 0; i + 3 <= text.size(); ++i) {
        std::string word = text.substr(i, 3);
        for (auto& c : word) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        if ((word == "nan" || word == "inf") && (i == 0 || !letter(i - 1)) && !letter(i + 3)) return true;
    }
    return false;
}

struct Start {
    std::string what;  // "Load" or the example's file name
    ModuleSession session;
};

std::vector<Start> startsOf(const Module& module) {
    std::vector<Start> starts;
    starts.push_back({"Load", ModuleSession(module, StartDefaults{})});
    for (const auto& entry : fs::directory_iterator(MORVE_EXAMPLES)) {
        if (entry.path().extension() != ".json") continue;  // project files open from their cases
        std::ifstream in(entry.path());
        std::stringstream text;
        text << in.rdbuf();
        nlohmann::json c = parseCase(text.str());
        if (c.value("module", "") != module.info().key) continue;
        if (c.contains("open")) c["open"] = (entry.path().parent_path() / c["open"].get<std::string>()).string();
        c["press"] = nlohmann::json::array();
        starts.push_back({entry.path().filename().string(), std::move(*runCase(c).session)});
    }
    return starts;
}

class Walk {
public:
    explicit Walk(std::string where) : where_(std::move(where)) {}

    // One press, with the answers a user in a hurry gives (No, Cancel).
    void press(ModuleSession& session, const std::string& command, const std::string& trial) {
        ScriptedPrompter prompter;
        session.recordSteps(true);
        const auto start = std::chrono::steady_clock::now();
        Outcome outcome;
        try {
            outcome = session.press(command, prompter);
        } catch (const std::exception& e) {
            ADD_FAILURE() << where_ << " " << trial << " " << command << ": " << e.what();
            return;
        }
        const auto elapsed = std::chrono::steady_clock::now() - start;
        EXPECT_LT(elapsed, std::chrono::seconds(1)) << where_ << " " << trial << " " << command;
        if (!outcome.completed && outcome.refused.empty()) {
            EXPECT_FALSE(prompter.messages().empty())
                << where_ << " " << trial << " " << command << ": a stop without a message";
        }
        for (const auto& m : prompter.messages()) expectNumbers(m.text, trial + " message");
        const FormState& state = session.state();
        for (const auto& [name, text] : state.texts()) expectNumbers(text, trial + " " + name);
        for (const auto& [name, rows] : state.grids())
            for (const auto& row : rows)
                for (const auto& cell : row) expectNumbers(cell, trial + " " + name);
        if (outcome.completed) reportAndPictures(session, trial);
        // The steps of the run, stopped or not: every number a number.
        const std::string steps = traceHtml(session.steps());
        expectNumbers(steps, trial + " passo a passo");
        EXPECT_EQ(steps.find("= <b>—"), std::string::npos) << where_ << " " << trial << " passo a passo";
    }

private:
    void expectNumbers(const std::string& text, const std::string& what) {
        EXPECT_FALSE(lostNumber(text)) << where_ << " " << what << ": " << text;
    }

    // A picture whose arithmetic failed draws nowhere or writes "nan" in a label.
    void expectFinite(const Drawing& d, const std::string& what) {
        bool ok = std::isfinite(d.left) && std::isfinite(d.right) && std::isfinite(d.top) && std::isfinite(d.bottom);
        auto at = [&](const Point& p) { ok = ok && std::isfinite(p.x) && std::isfinite(p.y); };
        for (const Shape& shape : d.shapes)
            std::visit([&](const auto& g) {
                using G = std::decay_t<decltype(g)>;
                if constexpr (std::is_same_v<G, Line>) at(g.from), at(g.to);
                else if constexpr (std::is_same_v<G, Polyline>) for (const Point& p : g.points) at(p);
                else if constexpr (std::is_same_v<G, Circle>) at(g.centre);
                else at(g.at), expectNumbers(g.text, what);
            }, shape.geometry);
        EXPECT_TRUE(ok) << where_ << " " << what;
    }

    // What the desktop shows after a success: the reports the module owns and its
    // pictures and charts.
    void reportAndPictures(const ModuleSession& session, const std::string& trial) {
        const Module& module = session.module();
        try {
            for (const auto& screen : session.state().screens()) {
                ReportWriter out;
                if (generateReport(screen.name, module, session.state(), out))
                    expectNumbers(renderText(paginate(out.document(), "", PageRule::Paper), PageRule::Paper),
                                  trial + " report " + screen.name);
                for (const auto& c : screen.controls) {
                    if (c.kind == ControlKind::Picture)
                        expectFinite(module.drawing(screen.name + "." + c.name, session.state()),
                                     trial + " picture " + c.name);
                    if (c.kind == ControlKind::Chart) module.chart(screen.name + "." + c.name, session.state());
                }
            }
        } catch (const std::exception& e) {
            ADD_FAILURE() << where_ << " " << trial << " report or picture: " << e.what();
        }
    }

    std::string where_;
};

// The typed inputs of every screen: boxes, and the data cells of the grids.
struct Input {
    std::string name;
    int row = -1, column = -1;  // a grid cell; -1 for a box
};

std::vector<Input> inputsOf(const FormState& state) {
    std::vector<Input> inputs;
    for (const auto& screen : state.screens())
        for (const auto& c : screen.controls) {
            const std::string name = screen.name + "." + c.name;
            if (c.kind == ControlKind::TextBox) inputs.push_back({name});
            if (c.kind != ControlKind::Grid) continue;
            const GridRows& rows = state.grid(name);
            for (std::size_t r = 1; r < rows.size(); ++r)
                for (std::size_t col = c.grid.firstColumnLocked ? 1 : 0; col < rows[r].size(); ++col)
                    inputs.push_back({name, static_cast<int>(r), static_cast<int>(col)});
        }
    return inputs;
}

void type(FormState& state, const Input& input, const std::string& text) {
    if (input.row < 0)
        state.setText(input.name, text);
    else
        state.grid(input.name)[static_cast<std::size_t>(input.row)][static_cast<std::size_t>(input.column)] = text;
}

std::vector<std::string> commandsOf(const FormState& state) {
    std::vector<std::string> commands;
    for (const auto& screen : state.screens())
        for (const auto& c : screen.controls)
            if (c.kind == ControlKind::Command) commands.push_back(screen.name + "." + c.name);
    return commands;
}

}  // namespace

TEST(Robustness, EveryModuleTakesHostileTextsInEveryBoxAndCell) {
    for (const auto& key : ModuleRegistry::keys()) {
        const Module& module = *ModuleRegistry::find(key);
        for (const Start& start : startsOf(module)) {
            Walk walk(key + " from " + start.what);
            const std::string calculate = start.session.state().qualify(start.session.info().calculate);
            for (const Input& input : inputsOf(start.session.state()))
                for (const auto& text : kHostile) {
                    ModuleSession session = start.session;
                    type(session.state(), input, text);
                    walk.press(session, calculate,
                               input.name + (input.row < 0 ? "" : "[" + std::to_string(input.row) + "," +
                                                                       std::to_string(input.column) + "]") +
                                   "=\"" + text.substr(0, 12) + "\"");
                }
        }
    }
}

TEST(Robustness, EveryButtonOfEveryScreenPressedInARow) {
    for (const auto& key : ModuleRegistry::keys()) {
        const Module& module = *ModuleRegistry::find(key);
        for (const Start& start : startsOf(module)) {
            Walk walk(key + " from " + start.what);
            // Twice round, so that what the first round opened is pressed too; and
            // once with every box holding the same hostile text.
            for (const std::string& text : {std::string("as typed"), std::string("1e308"), std::string("abc")}) {
                ModuleSession session = start.session;
                if (text != "as typed")
                    for (const Input& input : inputsOf(session.state())) type(session.state(), input, text);
                for (int round = 0; round < 2; ++round)
                    for (const auto& command : commandsOf(session.state())) walk.press(session, command, text);
            }
        }
    }
}
