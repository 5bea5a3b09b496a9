#include "app/texts.h"

namespace morve {

namespace {

// A continuation byte of UTF-8 (10xxxxxx) never starts a character.
bool continues(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

}  // namespace

std::string cutText(std::string_view text, std::size_t characters) {
    std::size_t i = 0;
    for (std::size_t count = 0; i < text.size(); ++count) {
        if (count == characters) break;
        ++i;
        while (i < text.size() && continues(text[i])) ++i;
    }
    return std::string(text.substr(0, i));
}

std::string quoteText(std::string_view text, std::size_t characters) {
    std::string cut = cutText(text, characters);
    return cut.size() < text.size() ? cut + "…" : cut;
}

}  // namespace morve
