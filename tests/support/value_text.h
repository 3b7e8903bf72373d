#pragma once

#include <algorithm>
#include <string>

namespace test
{

inline std::string withoutUnderscores(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), '_'), text.end());
    return text;
}

// Without the blanks of the classic locale at the start.
inline std::string withoutBlanks(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(" \t\n\v\f\r");
    return first == std::string::npos ? "" : text.substr(first);
}

} // namespace test
