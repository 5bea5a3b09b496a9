#pragma once
// A column module opened as from the menu, its boxes filled, a button pressed, and
// what the user was told.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "app/module.h"
#include "app/numbers.h"
#include "app/prompter.h"
#include "reports/report_dispatch.h"

namespace morve::testing {

struct ColumnCase {
    std::string module;
    std::map<std::string, std::string> set;
    std::vector<int> layers;  // bars per layer, for the layered forms
    std::vector<std::string> answers;
    std::map<std::string, GridRows> grids = {};  // data rows of other tables, by qualified name
    // Texts typed after a first calculation that succeeded, before `command`: the
    // way to a button that opens disabled.
    std::map<std::string, std::string> retype = {};

    struct Run {
        std::unique_ptr<ModuleSession> session;
        Outcome outcome;
        std::vector<Message> messages;
        const std::string& text(const std::string& box) const { return session->state().text(box); }
        double number(const std::string& box) const { return readNumber(text(box)); }
    };

    Run press(const std::string& command = "") const {
        Run r;
        const Module* m = ModuleRegistry::find(module);
        EXPECT_NE(m, nullptr) << module;
        r.session = std::make_unique<ModuleSession>(*m, StartDefaults{});
        FormState& s = r.session->state();
        for (const auto& [box, text] : set) s.setText(box, text);
        if (!layers.empty()) {
            std::string grid = layerGrid();
            GridRows& rows = s.grid(grid);
            rows.resize(1);
            for (std::size_t i = 0; i < layers.size(); ++i)
                rows.push_back({std::to_string(i + 1), std::to_string(layers[i])});
        }
        for (const auto& [grid, rows] : grids) {
            s.grid(grid).resize(1);
            s.grid(grid).insert(s.grid(grid).end(), rows.begin(), rows.end());
        }
        if (!retype.empty()) {
            ScriptedPrompter quiet;
            EXPECT_TRUE(r.session->press(r.session->info().calculate, quiet).completed) << module;
            for (const auto& [box, text] : retype) s.setText(box, text);
        }
        ScriptedPrompter prompter(answers);
        r.outcome = r.session->press(command.empty() ? r.session->info().calculate : command, prompter);
        r.messages = prompter.messages();
        return r;
    }

    std::string layerGrid() const {
        if (module == "Form12") return "Form12b.Grade1";
        if (module == "Form12d") return "Form12e.Grade1";
        if (module == "Form13") return "Form13b.Grade1";
        return "Form13f.Grade1";
    }
};

// The body of a report, one string a line.
inline std::vector<std::string> reportLines(const ModuleSession& session, const std::string& key) {
    ReportWriter w;
    EXPECT_TRUE(generateReport(key, session.module(), session.state(), w)) << key;
    std::vector<std::string> lines;
    for (const auto& b : w.document().blocks)
        if (const auto* l = std::get_if<ReportLine>(&b)) lines.push_back(l->text());
    return lines;
}

// The texts written on a drawing.
inline std::multiset<std::string> labels(const Drawing& g) {
    std::multiset<std::string> out;
    for (const auto& s : g.shapes)
        if (const auto* l = std::get_if<Label>(&s.geometry)) out.insert(l->text);
    return out;
}

}  // namespace morve::testing
