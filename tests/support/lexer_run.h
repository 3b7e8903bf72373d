#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace test
{

struct LexedToken
{
    std::string type; // its name
    std::string text;
    std::uint32_t channel = 0;
    std::uint32_t line = 0; // from 1
    int position = 0;       // characters in the line before the token
    std::size_t offset = 0; // bytes in the text before the token
};

// What a display of errors can see.
struct LexerError
{
    std::uint32_t type = 0;
    std::string name;
    std::string message;
    std::uint32_t decision = 0;
    std::uint32_t line = 0; // of the character that did not fit, from 1
    int position = 0;
    std::uint32_t character = 0;
    std::size_t offset = 0; // bytes in the text before the input's next character
};

struct LexerRun
{
    std::vector<LexedToken> tokens; // without the end-of-input token
    std::vector<LexerError> errors;
    std::uint32_t errorCount = 0; // the lexer's own
    std::size_t end = 0;          // bytes in the text before the end-of-input token
};

enum class ErrorDisplay
{
    recorded,
    standard // the runtime's own, which prints to standard error; none is recorded
};

// Everything that the lexer makes of a text.
LexerRun lex(const std::string& text, ErrorDisplay display = ErrorDisplay::recorded);

// An error in short, its kind and place, if it is in all else what such an error is:
//
//   no token 1:0             the prediction among the token rules failed
//   no escape 34 1:0         the choice after a backslash failed, in the given decision
//   mismatched character 1:0
//   mismatched set 1:0
//   early exit 1:0
std::string summary(const LexerError& error);

using Tokens = std::vector<std::pair<std::string, std::string>>; // type and text
using Errors = std::vector<std::string>;                         // summaries

Tokens typesAndTexts(const LexerRun& run);
Errors summaries(const LexerRun& run);

struct LexerCase
{
    std::string text;
    Tokens tokens;
    Errors errors = {};
};

// Expects the tokens and errors, in order and no others, tokens that are just the
// characters of the text where they stand, on the default channel, and the count of
// the errors.
void expectLexed(const LexerCase& expected);
void expectLexed(const std::vector<LexerCase>& cases);

// Expects the same of a text of one token.
void expectOneToken(const std::string& type, const std::vector<std::string>& texts);

} // namespace test
