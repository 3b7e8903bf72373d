#pragma once

#include <vorn/parsers/toml_places.h>

#include <cstddef>
#include <string_view>

namespace vorn::parsers::toml::config
{

// Counts the lines and columns of offsets.  It goes on from the last offset: those that ascend take
// time in proportion to the document, all together.  For one that is before the last it starts
// again, from its line or from the document's start.
class LineCounter
{
public:
    explicit LineCounter(std::string_view document) noexcept;

    // The place of an offset, at most the document's size.  Within a character it is that of the
    // character.
    Place at(std::size_t offset) noexcept;

private:
    // The bytes of a line without its line feed, or a part of them.
    void countColumns(std::size_t end) noexcept;

    std::string_view document_;
    std::size_t line_ = 1;
    std::size_t lineBegin_;
    // The last offset, or the first byte of the character that it is within.
    std::size_t offset_;
    std::size_t column_ = 1;
};

} // namespace vorn::parsers::toml::config
