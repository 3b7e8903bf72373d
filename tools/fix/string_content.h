#pragma once

#include <string>
#include <string_view>

namespace tool::fixing
{

// What a valid string stands for: without its delimiters and with its escapes resolved.
std::string contentOf(std::string_view string);

// Whether a string has delimiters of three quotes.
bool isMultilineString(std::string_view string);

// The text between the delimiters.
std::string_view innerText(std::string_view string);

} // namespace tool::fixing
