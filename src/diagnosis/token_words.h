// Tokens in words.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "document_token.h"

namespace vorn::parsers::toml::diagnosis
{

// Whether a token is a value that looks like a key: true, 123, 2024-01-01.
bool isValueLikeKey(TokenType type);

// Whether it is the end of a line or of the file.
bool isLineEnd(TokenType type);

bool isString(TokenType type);

// "the integer 123", "'='", "the end of the line".
std::string described(const DocumentToken& token, std::string_view text);

// A text in quotes, shortened.
std::string quoted(std::string_view text);

} // namespace vorn::parsers::toml::diagnosis
