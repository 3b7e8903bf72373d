// What the recognisers find in a document.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "document_token.h"
#include "pipeline/refusal.h"

namespace tool
{

// The runtime's kinds of exceptions.
enum class ErrorKind
{
    recognition, // of a lexer: another character was due; of a parser: not repaired
    noAlternative,
    mismatchedSet,
    earlyExit,
    unwantedToken,
    missingToken,
    other,
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

// Where the parser could not go on.
struct SyntaxError
{
    ErrorKind kind;
    std::size_t token; // the index of the one that does not fit; the number of tokens: the end
    std::size_t rules; // how many enclose the one that failed
};

// Why a document is not read, or not to its end.
using Refusal = vorn::parsers::toml::Refusal::Reason;

struct Recognition
{
    Refusal refusal = Refusal::none;
    std::vector<DocumentToken> tokens;
    std::vector<LexicalError> lexicalErrors;
    std::vector<SyntaxError> syntaxErrors;
    // How many of the syntax errors the library's own parser has: it ends where it is lost,
    // and here it begins again with the next statement.
    std::size_t syntaxErrorsOfLibrary = 0;
    // Where the lexer found the end: before that of the bytes if it misreads some.
    std::size_t end = 0;
};

// Runs the lexer only.
Recognition findTokens(const std::string& text);

// Runs lexer and parser.
Recognition recognise(const std::string& text);

} // namespace tool
