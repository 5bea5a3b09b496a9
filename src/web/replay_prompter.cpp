#include "web/replay_prompter.h"

namespace morve::web {

using nlohmann::json;

ReplayPrompter::ReplayPrompter(const std::vector<std::string>& answers) : answers_(answers.begin(), answers.end()) {}

std::string ReplayPrompter::next(MessageKind kind, const std::string& text, const std::string& title) {
    if (answers_.empty()) throw QuestionAsked{{kind, title, text, ""}};
    std::string a = answers_.front();
    answers_.pop_front();
    return a;
}

void ReplayPrompter::warn(const std::string& text, const std::string& title) {
    messages_.push_back({MessageKind::Warning, title, text, "ok"});
}

bool ReplayPrompter::askYesNo(const std::string& text, const std::string& title) {
    const bool yes = next(MessageKind::YesNo, text, title) == "yes";
    messages_.push_back({MessageKind::YesNo, title, text, yes ? "yes" : "no"});
    return yes;
}

bool ReplayPrompter::askOkCancel(const std::string& text, const std::string& title) {
    const std::string a = next(MessageKind::OkCancel, text, title);
    const bool ok = a == "ok" || a == "yes";
    messages_.push_back({MessageKind::OkCancel, title, text, ok ? "ok" : "cancel"});
    return ok;
}

json messageJson(const Message& m) {
    return {{"kind", messageKindName(m.kind)}, {"title", m.title}, {"text", m.text}, {"answer", m.answer}};
}

json messagesJson(const std::vector<Message>& messages) {
    json out = json::array();
    for (const Message& m : messages) out.push_back(messageJson(m));
    return out;
}

}  // namespace morve::web
