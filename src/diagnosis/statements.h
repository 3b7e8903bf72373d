#pragma once

#include <cstddef>
#include <vector>

#include "document_token.h"

namespace vorn::parsers::toml::diagnosis
{

// Follows which brackets are open.  In an invalid document, a bracket that is never closed does
// not swallow the statements after it.
class OpenBrackets
{
public:
    enum class Change
    {
        none,
        opened,
        closed,    // the innermost one
        abandoned, // all: none of them will be closed
    };

    // Takes the token at an index; those after a line break have to be known as far as
    // reachesStatement() says.
    Change take(const std::vector<DocumentToken>& tokens, std::size_t at);

    bool isEmpty() const { return open_.empty(); }
    // How many have been open at once.
    std::size_t depth() const { return depth_; }

private:
    bool isAbandoned(const std::vector<DocumentToken>& tokens, std::size_t next) const;

    std::vector<bool> open_; // whether each is a bracket, not a brace
    std::size_t depth_ = 0;
    bool isHeader_ = false;  // whether the outermost starts a header
    bool startsLine_ = true; // whether the next token does, outside of brackets
};

// Whether the tokens before an index, from one that starts a line on, show what starts there.
bool reachesStatement(const std::vector<DocumentToken>& tokens, std::size_t begin);

// Where the statements (pairs, headers, empty lines) start in a part of a document.
class Statements
{
public:
    explicit Statements(const std::vector<DocumentToken>& tokens);

    // The first token of the statement that a token belongs to.  The end of the part
    // belongs to the last statement.
    std::size_t beginOf(std::size_t token) const;

    // The first token of the next statement, or the number of all tokens.
    std::size_t nextAfter(std::size_t token) const;

    // Whether a bracket is closed.
    bool isClosed(std::size_t opening) const { return closings_[opening] != 0; }

private:
    void findClosings(const std::vector<DocumentToken>& tokens);
    void findBegins(const std::vector<DocumentToken>& tokens);

    std::vector<std::size_t> closings_; // of each token; 0: none
    std::vector<std::size_t> begins_;
};

} // namespace vorn::parsers::toml::diagnosis
