// Where in a statement a token is, to find words for one that does not fit.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "document_token.h"

namespace vorn::parsers::toml::diagnosis
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
    std::size_t begin = 0;      // of the statement, if it has begun
    bool isOpen = false;        // whether it is within brackets
    DocumentToken opening = {}; // the innermost of these
    bool isInTable = false;     // whether that is the brace of an inline table
    unsigned breaks = 0;        // line breaks since the last element, comma or bracket
    DocumentToken newline = {}; // the first of these
    bool isOfArray = false;     // a header with two brackets
};

// Follows a statement token by token.  Tokens that do not fit are skipped.
class Follower
{
public:
    void take(const DocumentToken& token);

    Place place() const;

private:
    void takeAfterHeader(TokenType type);
    void takeAfterKey(TokenType type);
    void takeValue(const DocumentToken& token);
    void takeAfterValue(TokenType type);
    void takeInTable(TokenType type);
    Due afterComma() const;
    bool isInTable() const { return braces_.back(); }
    void endValue();
    void enter(const DocumentToken& bracket);
    void leave();

    Due due_ = Due::statement;
    std::size_t begin_ = 0;
    // The brackets of open arrays and inline tables: in little room, as there may be as many as
    // bytes.
    std::vector<std::uint32_t> openings_;
    std::vector<bool> braces_;
    unsigned breaks_ = 0;
    DocumentToken newline_ = {};
    bool isOfArray_ = false;
    bool isHalfClosed_ = false;
};

} // namespace vorn::parsers::toml::diagnosis
