// What a reading says, as text.
#pragma once

#include <vorn/parsers/toml_config.h>

#include <sstream>
#include <string>
#include <vector>

namespace test
{

// A line for each problem, as it is printed.
inline std::string told(const std::vector<vorn::parsers::toml::Problem>& problems)
{
    std::ostringstream lines;
    for (const vorn::parsers::toml::Problem& problem : problems)
    {
        lines << problem << '\n';
    }
    return lines.str();
}

} // namespace test
