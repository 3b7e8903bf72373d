#pragma once

#include <string>

namespace vorn::parsers::toml::diagnosis
{

// What kind of mistake it is, a message about its place, and a hint how to fix it.
struct Words
{
    const char* code;
    std::string message;
    std::string hint;
};

} // namespace vorn::parsers::toml::diagnosis
