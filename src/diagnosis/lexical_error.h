#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace vorn::parsers::toml::diagnosis
{

// The runtime's kinds of exceptions.
enum class ErrorKind
{
    recognition, // of a lexer: another character was due; of a parser: not repaired
    noAlternative,
    mismatchedSet,
    unwantedToken,
    missingToken,
    other, // of a lexer: a loop without a first round
};

// Where the lexer could not make a token.
struct LexicalError
{
    ErrorKind kind;
    unsigned decision;   // the number of the choice that failed, of an error of that kind
    std::size_t begin;   // of the token
    std::size_t at;      // the character that does not fit
    std::size_t resumed; // after the characters that were passed over
};

// Whether the error is in a multi-line string.  Then strings and the text between them are
// swapped in the rest of the document.
inline bool isInLongString(const LexicalError& error, std::string_view text)
{
    const std::string_view quotes = text.substr(std::min(error.begin, text.size()), 3);
    return (quotes == "\"\"\"" || quotes == "'''") && error.at >= error.begin + 3;
}

} // namespace vorn::parsers::toml::diagnosis
