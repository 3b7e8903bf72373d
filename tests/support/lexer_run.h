#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "tokens/token_table.h"

namespace test
{

// What the lexer makes of a text.
struct LexerRun
{
    Row pieces;                 // all of the text
    Row tokens;                 // those that it hands out
    std::uint32_t errors = 0;   // its own count
    std::uint32_t channels = 0; // those of the tokens, in one
};

LexerRun lex(const std::string& text);

} // namespace test
