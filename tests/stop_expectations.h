#pragma once
// What every stopped calculation must show: not completed, its last box with the
// expected text and kind under the title "MORVE", the focus where it belongs, and
// no change to the screens.
#include <gtest/gtest.h>

#include <string>

#include "app/outcome.h"
#include "app/prompter.h"

inline void expectStop(const morve::ScriptedPrompter& prompter, const morve::Outcome& outcome,
                       const std::string& text, morve::MessageKind kind, const std::string& focus) {
    EXPECT_FALSE(outcome.completed);
    ASSERT_FALSE(prompter.messages().empty());
    const morve::Message& last = prompter.messages().back();
    EXPECT_EQ(last.text, text);
    EXPECT_EQ(last.kind, kind);
    EXPECT_EQ(last.title, "MORVE");
    EXPECT_EQ(outcome.focus, focus);
    EXPECT_TRUE(outcome.effects.empty());
}
