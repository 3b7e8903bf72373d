// Values without the quotes that they need: what their author takes for one value is several
// tokens, or none.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vorn::parsers::toml::diagnosis
{

// The value that starts at an offset and is on one line, without the comment after it; in
// brackets up to a comma or a bracket.
std::string_view unquotedAt(std::string_view text, std::size_t begin, bool isEnclosed);

// The value of a pair of one line that an offset is in; empty if there is none, or if it starts
// with a quote.
std::string_view unquotedAround(std::string_view text, std::size_t at);

// The text as a string; empty if it is too long for a hint, or has characters that a hint
// cannot show.
std::string inQuotes(std::string_view text);

// "Strings need quotes: "text"."
std::string quotesHint(std::string_view text);

// The rest of the line, without blanks around it.
std::string_view restOfLine(std::string_view text, std::size_t begin);

} // namespace vorn::parsers::toml::diagnosis
