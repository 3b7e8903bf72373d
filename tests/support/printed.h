#pragma once

#include <cstdio>
#include <string>

namespace test
{

// The text of a number in a format of printf.
template <typename Number>
std::string printed(const char* format, Number number)
{
    char text[64];
    std::snprintf(text, sizeof text, format, number);
    return text;
}

} // namespace test
