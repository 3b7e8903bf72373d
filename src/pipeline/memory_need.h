// The memory that the recognisers need.  The runtime does not survive an allocation that
// fails, so that what they will need is checked before they start.
#pragma once

#include <cstddef>
#include <string_view>

namespace vorn::parsers::toml
{

// What is needed before the document is known, and to lex it.
std::size_t memoryForLexing(std::size_t documentSize) noexcept;

// What is needed to parse the document and to walk over it, at most, with trees of so many tokens,
// among so many brackets.
std::size_t memoryForReading(std::size_t documentSize, std::size_t tokens,
                             std::size_t brackets) noexcept;

// What is needed to find the errors of a document without trees, at most, where there are so many
// tokens, brackets, and entries of the parser's lists in lines that are not valid.
std::size_t memoryForChecking(std::size_t documentSize, std::size_t tokens, std::size_t brackets,
                              std::size_t listed) noexcept;

// Whether this much memory can be had, now.
bool isMemoryLeft(std::size_t size) noexcept;

} // namespace vorn::parsers::toml
