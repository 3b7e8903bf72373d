// Where in a statement a token stands, for the words about one that does not fit.
#pragma once

#include <cstddef>
#include <vector>

#include "document_token.h"

namespace tool
{

// What is due.
enum class Due
{
    statement,    // a key or a header
    equals,       // behind a key
    keyPart,      // behind a dot
    header,       // the key of a header
    headerEnd,    // behind the key of a header
    value,        // behind an equals sign
    firstElement, // of an array
    element,      // behind a comma
    arrayEnd,     // behind an element: a comma or the bracket
    firstPair,    // of an inline table
    pair,         // behind a comma
    tableEnd,     // behind a pair: a comma or the brace
    lineEnd,      // behind the statement
};

struct Place
{
    Due due = Due::statement;
    std::size_t opening = 0; // the innermost bracket that is open
    bool isOpen = false;     // whether there is one
    bool isInTable = false;  // whether it is that of an inline table
    unsigned elements = 0;   // before, in the array
    unsigned breaks = 0;     // of lines, behind the last element, comma or bracket
    std::size_t newline = 0; // the first of these
    bool isOfArray = false;  // a header: with two brackets
};

// The place of the token `at`, in the statement that begins with the token `begin`.  Tokens
// before it that do not fit are passed over.
Place placeOf(const std::vector<DocumentToken>& tokens, std::size_t begin, std::size_t at);

} // namespace tool
