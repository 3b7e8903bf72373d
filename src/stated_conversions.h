// The stated way of the conversions: what the public header says of any text.  The exported
// functions take it where the short ways (plain_number.h, plain_date_time.h) leave a text to it.
#pragma once

#include <sys/time.h>

#include <string>

namespace vorn::parsers::toml::stated
{

// (A log line names the function that it comes from: they are the exported names.)
bool parseBoolean(const std::string& text);
long long parseInteger(std::string&& text);
double parseFloat(std::string&& text);
timeval parseDateTime(const std::string& text);

} // namespace vorn::parsers::toml::stated
