#include "app/prompter.h"

namespace morve {

ScriptedPrompter::ScriptedPrompter(std::vector<std::string> answers)
    : answers_(answers.begin(), answers.end()) {}

std::string ScriptedPrompter::unanswered(const Message&, const std::string& fallback) { return fallback; }

std::string ScriptedPrompter::next(MessageKind kind, const std::string& text, const std::string& title,
                                   const std::string& fallback) {
    if (answers_.empty()) return unanswered({kind, title, text, ""}, fallback);
    std::string a = answers_.front();
    answers_.pop_front();
    return a;
}

void ScriptedPrompter::warn(const std::string& text, const std::string& title) {
    messages_.push_back({MessageKind::Warning, title, text, "ok"});
}

bool ScriptedPrompter::askYesNo(const std::string& text, const std::string& title) {
    std::string a = next(MessageKind::YesNo, text, title, "no");
    bool yes = a == "yes";
    messages_.push_back({MessageKind::YesNo, title, text, yes ? "yes" : "no"});
    return yes;
}

bool ScriptedPrompter::askOkCancel(const std::string& text, const std::string& title) {
    std::string a = next(MessageKind::OkCancel, text, title, "cancel");
    bool ok = a == "ok" || a == "yes";
    messages_.push_back({MessageKind::OkCancel, title, text, ok ? "ok" : "cancel"});
    return ok;
}

std::vector<Message> ScriptedPrompter::takeMessages() {
    std::vector<Message> out(messages_.begin() + static_cast<long>(taken_), messages_.end());
    taken_ = messages_.size();
    return out;
}

const char* messageKindName(MessageKind kind) {
    switch (kind) {
        case MessageKind::Warning: return "warning";
        case MessageKind::YesNo: return "yesno";
        case MessageKind::OkCancel: return "okcancel";
    }
    return "warning";
}

}  // namespace morve
