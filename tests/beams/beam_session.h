#pragma once
// A module opened as the menu opens it, with the boxes set by name and answers to
// its questions scripted; shared by the tests of the beam modules.
#include <map>
#include <string>
#include <vector>

#include "app/module.h"
#include "app/prompter.h"
#include "reports/report_dispatch.h"
#include "reports/report_writer.h"

namespace morve::testing {

struct BeamRun {
    explicit BeamRun(const std::string& key, std::vector<std::string> answers = {})
        : session(*ModuleRegistry::find(key), StartDefaults{}), prompter(std::move(answers)) {}

    BeamRun& set(const std::map<std::string, std::string>& values) {
        for (const auto& [name, text] : values) session.state().setText(name, text);
        return *this;
    }
    BeamRun& layers(const std::string& grid, const std::vector<std::pair<std::string, std::string>>& rows) {
        GridRows& g = session.state().grid(grid);
        g.resize(1);
        for (std::size_t i = 0; i < rows.size(); ++i)
            g.push_back({std::to_string(i + 1), rows[i].first, rows[i].second});
        return *this;
    }
    // A button is reached as the user reaches it: from its own window, brought back
    // to the front first when a companion stands over it. Whether a hidden or
    // disabled button refuses is the session's own test.
    Outcome press(const std::string& command) {
        const std::string name = session.state().qualify(command);
        const std::string screen = name.substr(0, name.find('.'));
        if (!session.screenShown(screen)) session.apply(Outcome::done().then(EffectKind::ShowScreen, screen));
        return session.press(command, prompter);
    }
    const std::string& text(const std::string& name) const { return session.state().text(name); }
    double number(const std::string& name) const { return session.state().number(name); }
    // The last message shown, "" for none.
    std::string lastMessage() const {
        return prompter.messages().empty() ? "" : prompter.messages().back().text;
    }
    // The report body as plain lines, pages apart by "\f".
    std::vector<std::string> report(const std::string& key) const {
        ReportWriter out;
        generateReport(key, session.module(), session.state(), out);
        std::vector<std::string> lines;
        for (const auto& block : out.document().blocks) {
            if (const auto* l = std::get_if<ReportLine>(&block)) lines.push_back(l->text());
            else if (std::holds_alternative<ReportPicture>(block)) lines.push_back("[figura]");
            else lines.push_back("\f");
        }
        return lines;
    }

    ModuleSession session;
    ScriptedPrompter prompter;
};

}  // namespace morve::testing
