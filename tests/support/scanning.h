// What the scanner makes of texts, and the lexer at the same place.
#pragma once

#include "scan/token_type.h"

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

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

// What the scanner finds at the beginning of a text behind which nothing can be read.
FoundToken scan(std::string_view text);

// What the lexer matches there.  It fails with nothing found.
FoundToken lexOnce(const std::string& text);

// A token with what stands behind it.
struct ScannedCase
{
    std::string token;
    std::string behind = {};
};

// Expects this type from the scanner and from the lexer, and that every beginning of the
// text is scanned without a look at what is behind it.
void expectScanned(TokenType type, const std::vector<ScannedCase>& cases);

// Expects that the scanner recognises nothing where the lexer fails.
void expectNotRecognised(const std::vector<std::string>& texts);

// Expects that the scanner recognises nothing where the lexer has a token all the same.
void expectLeftToLexer(const std::vector<std::string>& texts);

} // namespace test
