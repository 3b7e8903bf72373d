// Texts of the runtime's objects.
//
// The runtime's own operations make strings that live as long as the input.  Those here
// make the same texts without them.  None of them throws, since they are needed below
// frames of the runtime: where memory runs out, they return null.
#pragma once

#include <antlr3.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace vorn::parsers::toml
{

struct FreeText
{
    void operator()(char* text) const noexcept { std::free(text); }
};

using OwnedText = std::unique_ptr<char, FreeText>; // NUL-terminated

inline const char* orEmpty(const OwnedText& text) noexcept
{
    return text != nullptr ? text.get() : "";
}

// A string of the runtime that has the text; one without text if that is null.
pANTLR3_STRING newString(pANTLR3_STRING_FACTORY factory, OwnedText text) noexcept;

// The text of a token that the lexer made, up to its first NUL byte.
std::string_view lexeme(const ANTLR3_COMMON_TOKEN& token) noexcept;

// Whether a token has its text from the input.
bool isLexed(const ANTLR3_COMMON_TOKEN& token) noexcept;

// What the lexer has read of the token that it is at, as its getText().
OwnedText matchedText(pANTLR3_LEXER lexer) noexcept;

// The text of a tree, as the tree's toStringTree().
OwnedText textOf(pANTLR3_BASE_TREE tree) noexcept;

} // namespace vorn::parsers::toml
