// "Did you mean ...?"
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorn::parsers::toml::config
{

// "did you mean port?" for a name that is near one of those that there are; otherwise empty.
std::string didYouMean(std::string_view word, const std::vector<std::string_view>& names);

} // namespace vorn::parsers::toml::config
