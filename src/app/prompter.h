#pragma once
// How a calculation talks to its user. The desktop shows modal boxes; the case
// runner answers from the case file; tests script the answers and keep every text.
#include <deque>
#include <string>
#include <vector>

namespace morve {

struct Trace;

inline const std::string kBoxTitle = "MORVE";

enum class MessageKind { Warning, YesNo, OkCancel };

class Prompter {
public:
    virtual ~Prompter() = default;
    virtual void warn(const std::string& text, const std::string& title = kBoxTitle) = 0;
    // true for Yes; the box's default button is No.
    virtual bool askYesNo(const std::string& text, const std::string& title = kBoxTitle) = 0;
    // true for OK.
    virtual bool askOkCancel(const std::string& text, const std::string& title = kBoxTitle) = 0;

    // The "Passo a passo" the calculation writes into, null when none is asked for.
    // It travels with the prompter because every calculation already receives one.
    Trace* trace() const { return trace_; }
    void setTrace(Trace* trace) { trace_ = trace; }

private:
    Trace* trace_ = nullptr;
};

struct Message {
    MessageKind kind;
    std::string title;
    std::string text;
    std::string answer;  // "ok", "yes", "no", "cancel"
};

// Answers questions from a queue; when it runs out a Yes/No gets "no" and an
// OK/Cancel gets "cancel", so the calculation goes on with the values as typed.
// A prompter that must do otherwise past its answers overrides `unanswered`.
class ScriptedPrompter : public Prompter {
public:
    ScriptedPrompter() = default;
    explicit ScriptedPrompter(std::vector<std::string> answers);

    void warn(const std::string& text, const std::string& title = kBoxTitle) override;
    bool askYesNo(const std::string& text, const std::string& title = kBoxTitle) override;
    bool askOkCancel(const std::string& text, const std::string& title = kBoxTitle) override;

    const std::vector<Message>& messages() const { return messages_; }
    // Messages since the last call, for reporting one press at a time.
    std::vector<Message> takeMessages();

protected:
    // The answer to a question asked after the queue ran out.
    virtual std::string unanswered(const Message& question, const std::string& fallback);

private:
    std::string next(MessageKind kind, const std::string& text, const std::string& title,
                     const std::string& fallback);
    std::deque<std::string> answers_;
    std::vector<Message> messages_;
    std::size_t taken_ = 0;
};

const char* messageKindName(MessageKind kind);

}  // namespace morve
