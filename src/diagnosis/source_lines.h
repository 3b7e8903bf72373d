#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace vorn::parsers::toml::diagnosis
{

// A place as an editor counts it: from 1, columns in characters.
struct SourcePlace
{
    std::size_t line;
    std::size_t column;
};

// The lines of a text.
class SourceLines
{
public:
    // From an offset on, which is counted as the start of the first line.
    explicit SourceLines(std::string_view text, std::size_t from = 0);

    // Counted from 1.
    std::size_t lineOf(std::size_t offset) const;

    SourcePlace placeOf(std::size_t offset) const;

    // The first byte of a line, after a byte order mark.
    std::size_t beginOf(std::size_t line) const { return begins_[line - 1]; }

    // A line without its line break.
    std::string_view line(std::size_t line) const;

private:
    std::string_view text_;
    std::vector<std::size_t> begins_;
};

} // namespace vorn::parsers::toml::diagnosis
