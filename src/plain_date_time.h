// The short way to the fields of a date-time: without regular expressions, strptime() and memory.
#pragma once

#include <ctime>
#include <string_view>

namespace vorn::parsers::toml
{

// Sets what mktime() reads of `time`, which is zero, as the stated way (stated_conversions.h)
// does.  Returns false, and has set nothing, where that has to decide: characters have an order
// of their own in the current C locale, the text is not whole and as the grammar has it, or a
// field is out of range.
bool readPlainDateTime(std::string_view text, std::tm& time) noexcept;

} // namespace vorn::parsers::toml
