#pragma once

#include <fstream>
#include <string>

namespace test
{

// A line of a source file; the first has the number 1.
inline std::string sourceLine(const std::string& path, int number)
{
    std::ifstream source(path);
    std::string line;
    for (int index = 0; index < number; ++index)
    {
        if (!std::getline(source, line))
        {
            return "(no such line)";
        }
    }
    return line;
}

} // namespace test
