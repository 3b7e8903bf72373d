// What the recognisers find in a part of a document.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "document_token.h"
#include "lexical_error.h"

namespace vorn::parsers::toml::diagnosis
{

// Where the parser could not go on.
struct SyntaxError
{
    ErrorKind kind;
    std::size_t token; // the index of the one that does not fit; the number of tokens: the end
    std::size_t rules; // how many enclose the one that failed
};

// Whole lines of a document: the first of a statement to the last of that or another one.
struct Part
{
    std::size_t begin = 0;
    std::size_t end = 0;
    // The token after it, with which a statement starts; endOfInput if it is the last part.
    DocumentToken next = {};
};

struct Recognition
{
    Part part;
    std::vector<DocumentToken> tokens;
    std::vector<LexicalError> lexicalErrors;
    std::vector<SyntaxError> syntaxErrors;
    // How many of the syntax errors the library's own parser has: it ends where it is lost,
    // and here it begins again with the next statement.
    std::size_t syntaxErrorsOfLibrary = 0;
    // Where the lexer found the end: before that of the bytes if it misreads some.
    std::size_t end = 0;
    // Whether the thread's stack had no room for the levels of arrays and inline tables.
    // Then the syntax errors mean nothing.
    bool isTooDeep = false;
};

// Runs lexer and parser over a part of a document.  Throws std::bad_alloc if they would need
// more memory than there is.
Recognition recognise(std::string_view text, const Part& part);

// The part that is the whole document.
Part wholeOf(std::string_view text);

} // namespace vorn::parsers::toml::diagnosis
