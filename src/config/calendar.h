// Which dates and times there are.
#pragma once

#include <vorn/parsers/toml_values.h>

namespace vorn::parsers::toml::config
{

constexpr int minutesOfDay = 24 * 60;

bool exists(const Date& date);
// A leap second may be in any minute: it is the last one of a day of UTC, which is any minute of
// some local time.
bool exists(const Time& time);
// Minutes from UTC.
bool isOffset(int minutes);

} // namespace vorn::parsers::toml::config
