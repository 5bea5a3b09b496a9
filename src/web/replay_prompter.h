#pragma once
// Questions asked during a press, answered by replay: the page sends the press
// with the answers it has so far; a question past them stops the press by throwing,
// the session is put back as it was, the page asks the user and sends the press
// again with one answer more. The core stays synchronous, as the desktop's is.
#include <string>
#include <vector>

#include "app/prompter.h"

namespace morve::web {

// Thrown by the prompter at the first question its answers do not cover.
struct QuestionAsked {
    Message question;
};

// The case runner's prompter, but a question past the answers is the page's to ask.
class ReplayPrompter : public ScriptedPrompter {
public:
    using ScriptedPrompter::ScriptedPrompter;

protected:
    std::string unanswered(const Message& question, const std::string&) override { throw QuestionAsked{question}; }
};

}  // namespace morve::web
