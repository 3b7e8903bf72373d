#pragma once

#include <cstddef>
#include <vector>

#include "document_token.h"

namespace tool
{

// Where the statements of a document (pairs, headers, empty lines) start.  In an invalid
// document, a bracket that is never closed does not swallow the statements after it.
class Statements
{
public:
    explicit Statements(const std::vector<DocumentToken>& tokens);

    // The first token of the statement that a token belongs to.  The end of the document
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

} // namespace tool
