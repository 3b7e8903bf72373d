#pragma once

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace tool
{

// The question whether another subcommand or option was meant, if one of the words is no name
// but is like one; or nothing.
std::string questionAbout(const std::vector<std::string>& words, const CLI::App& app);

} // namespace tool
