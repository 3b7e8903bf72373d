// What the scanner makes of texts, and the lexer of the grammar at the same place.
#pragma once

#include "scan/token_type.h"

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace test
{

using vorn::parsers::toml::TokenType;

// A token as a number of bytes from a position on.
struct FoundToken
{
    TokenType type = TokenType::none; // none: nothing is recognised
    std::size_t length = 0;
};

bool operator==(const FoundToken& left, const FoundToken& right);
std::ostream& operator<<(std::ostream& stream, const FoundToken& token);

// The type that the grammar gives a name.
TokenType typeOf(const std::string& name);

// What the scanner finds at the start of a text after which nothing can be read.
FoundToken scan(std::string_view text);

// What the lexer matches there that the antlr3 tool makes from the grammar; nothing if it fails.
FoundToken lexedByGrammar(const std::string& text);

} // namespace test
