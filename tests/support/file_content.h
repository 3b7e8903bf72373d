#pragma once

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace test
{

// All bytes of a file.
inline std::string fileContent(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    if (!file || !content)
    {
        throw std::runtime_error("a file cannot be read, or is empty: " + path);
    }
    return content.str();
}

} // namespace test
