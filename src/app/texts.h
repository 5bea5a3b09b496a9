#pragma once
// Cutting typed text to a length. Lengths are counted in characters, not bytes:
// a box that keeps three characters keeps "çãé", never two bytes of a "ç", so
// that every text the program holds stays valid UTF-8 for the screen, the
// report and the case runner's JSON.
#include <cstddef>
#include <string>
#include <string_view>

namespace morve {

// The first `characters` characters of text (all of it when shorter).
std::string cutText(std::string_view text, std::size_t characters);

// A text quoted in a message of ours: cut to a readable length, with "…" where
// something was left out.
std::string quoteText(std::string_view text, std::size_t characters = 60);

}  // namespace morve
