#pragma once

#include <string>

namespace tool
{

// A message about a place, and a hint how to fix it.
struct Words
{
    std::string message;
    std::string hint;
};

} // namespace tool
