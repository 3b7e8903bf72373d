#pragma once

#include <string>

namespace tool
{

// What is said about a place.
struct Words
{
    std::string message;
    std::string hint;
};

} // namespace tool
