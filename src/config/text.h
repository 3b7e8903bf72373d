// A text that is written piece by piece.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vorn::parsers::toml::config
{

// What a description is written to.  No piece makes a string of its own: that would be most of the
// code of a description.
class Text
{
public:
    Text& operator<<(const char* added);
    Text& operator<<(std::string_view added);
    Text& operator<<(std::int64_t number);

    std::string text;
};

// Adds strings, keys or paths with \U0001F600 for the characters that a document cannot have.  They
// are UTF-8, like those of quoted().
void addForDocument(Text& out, std::string_view text);

// Adds what the line of a comment can have of a text.
void addComment(Text& out, std::string_view text);

// Adds a string of JSON, in ASCII.
void addJson(Text& out, std::string_view text);

// Adds what a cell of a table in Markdown has: sentences, and code.
void addCell(Text& out, std::string_view text);
void addCode(Text& out, std::string_view text);

} // namespace vorn::parsers::toml::config
