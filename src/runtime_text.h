// Texts of the runtime's objects.
#pragma once

#include <antlr3.h>

#include <cstdlib>
#include <memory>

namespace vorn::parsers::toml
{

// The characters of a runtime string, never null: a string without text has none.
inline const char* characters(const ANTLR3_STRING* string) noexcept
{
    return string != nullptr && string->chars != nullptr
               ? reinterpret_cast<const char*>(string->chars)
               : "";
}

struct FreeText
{
    void operator()(char* text) const noexcept { std::free(text); }
};

// The text of all tokens of a stream, joined and NUL-terminated; null when memory
// runs out, since it is needed where no exception may be thrown.
//
// The runtime's own toString() makes the same text, but from a string for each
// token that lives as long as the input, for every error anew.
std::unique_ptr<char, FreeText> textOf(pANTLR3_TOKEN_STREAM tokens) noexcept;

} // namespace vorn::parsers::toml
