#pragma once

#include <cstdio>
#include <string_view>

namespace tool
{

// Prints a text with \n, \r, \t, \\ and \xHH for every other byte that is not printable ASCII.
void printEscaped(std::FILE* output, std::string_view text);

} // namespace tool
