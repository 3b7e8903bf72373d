// The escapes of valid strings.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vorn::parsers::toml::diagnosis
{

class StrictMistakes;

struct Escape
{
    std::string_view text; // with its backslash
    std::uint32_t code;    // what it stands for
};

// The first escape of a string from an offset on; its text is empty if there is none.  A
// backslash that joins lines is an escape, too.
Escape nextEscape(std::string_view text, std::size_t at);

// Appends the UTF-8 of a character.  Of a number that no character has it is something that
// no other number has.
void appendCharacter(std::string& text, std::uint32_t code);

// Looks at the escapes of a string in double quotes.
void checkEscapes(std::string_view text, StrictMistakes& mistakes);

} // namespace vorn::parsers::toml::diagnosis
