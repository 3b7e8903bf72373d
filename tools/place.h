// Where in a statement a token is, to find words for one that does not fit.
#pragma once

#include <cstddef>
#include <vector>

#include "document_token.h"

namespace tool
{

// What is expected next.
enum class Due
{
    statement,    // a key or a header
    equals,       // after a key
    keyPart,      // after a dot
    header,       // the key of a header
    headerEnd,    // after the key of a header
    value,        // after an equals sign
    firstElement, // of an array
    element,      // after a comma
    arrayEnd,     // after an element: a comma or the bracket
    firstPair,    // of an inline table
    pair,         // after a comma
    tableEnd,     // after a pair: a comma or the brace
    lineEnd,      // after the statement
};

struct Place
{
    Due due = Due::statement;
    std::size_t opening = 0; // the innermost open bracket
    bool isOpen = false;     // whether there is one
    bool isInTable = false;  // whether that is the brace of an inline table
    unsigned elements = 0;   // of the array, before the place
    unsigned breaks = 0;     // line breaks since the last element, comma or bracket
    std::size_t newline = 0; // the first of these
    bool isOfArray = false;  // a header with two brackets
};

// The place of the token `at` in the statement that starts with the token `begin`.  Tokens
// before it that do not fit are skipped.
Place placeOf(const std::vector<DocumentToken>& tokens, std::size_t begin, std::size_t at);

} // namespace tool
