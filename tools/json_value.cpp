#include "json_value.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace tool
{
namespace
{

// Of the digits after a prefix; it is taken away.
int takeBase(std::string& text)
{
    const std::string prefix = text.substr(0, 2);
    const int base = prefix == "0x" ? 16 : prefix == "0o" ? 8 : prefix == "0b" ? 2 : 10;
    text.erase(0, base != 10 ? 2 : text.front() == '+' ? 1 : 0);
    return base;
}

} // namespace

std::string jsonOfInteger(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), '_'), text.end());
    const int base = takeBase(text);
    std::int64_t value = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), value, base).ec != std::errc())
    {
        throw BadValue("does not fit into 64 bits");
    }
    return std::to_string(value);
}

std::string jsonOfFloat(const std::string& text)
{
    const double value = floatValue(text);
    if (std::isnan(value))
    {
        return "\"nan\"";
    }
    if (std::isinf(value))
    {
        return value < 0 ? "\"-inf\"" : "\"inf\"";
    }
    return nlohmann::json(value).dump();
}

} // namespace tool
