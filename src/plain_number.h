// The short way from the texts of booleans and numbers to their values: no stream, no memory.
#pragma once

#include <string_view>

namespace vorn::parsers::toml
{

// Each sets `value` as the stated way (stated_conversions.h) does.  It returns false where that
// has to decide: the global C++ locale is not the classic one, the text is not whole and as the
// grammar has it, or the value is near the limits of its type.
bool readPlainBoolean(std::string_view text, bool& value);
bool readPlainInteger(std::string_view text, long long& value);
bool readPlainFloat(std::string_view text, double& value);

} // namespace vorn::parsers::toml
