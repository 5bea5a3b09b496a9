#pragma once
// Questions asked during a press, answered by replay: the page sends the press
// with the answers it has so far; a question past them stops the press by throwing,
// the session is put back as it was, the page asks the user and sends the press
// again with one answer more. The core stays synchronous, as the desktop's is.
#include <deque>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "app/prompter.h"

namespace morve::web {

// Thrown by the prompter at the first question its answers do not cover.
struct QuestionAsked {
    Message question;
};

class ReplayPrompter : public Prompter {
public:
    explicit ReplayPrompter(const std::vector<std::string>& answers);

    void warn(const std::string& text, const std::string& title = kBoxTitle) override;
    bool askYesNo(const std::string& text, const std::string& title = kBoxTitle) override;
    bool askOkCancel(const std::string& text, const std::string& title = kBoxTitle) override;

    // Every box shown so far, questions with the answer given.
    const std::vector<Message>& messages() const { return messages_; }

private:
    std::string next(MessageKind kind, const std::string& text, const std::string& title);
    std::deque<std::string> answers_;
    std::vector<Message> messages_;
};

nlohmann::json messageJson(const Message& m);
nlohmann::json messagesJson(const std::vector<Message>& messages);

}  // namespace morve::web
