#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace tool
{

// A text with \n, \r, \t, \\ and \xHH for every other byte that is not printable ASCII.
std::string escaped(std::string_view text);

// Prints a text like that.
void printEscaped(std::FILE* output, std::string_view text);

} // namespace tool
