// Values that are not valid, in words.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "site.h"
#include "words.h"

namespace vorn::parsers::toml::diagnosis
{

// A token that is not the expected value.
Words forValue(const Site& site);

// What is written where a value is due, and is none: what its author may mean.
Words forUnquoted(std::string_view value);

// Whether it is a character that the author takes for another one, not a string without quotes.
bool isOnlyMistyped(std::string_view text, std::size_t at);

// A number or a date that goes on without a blank, as in 1.2.3; empty if it does not.
std::string_view continuedValue(const Site& site);

// A text, shortened, as the content of a string.
std::string quotedContent(std::string_view text);

} // namespace vorn::parsers::toml::diagnosis
