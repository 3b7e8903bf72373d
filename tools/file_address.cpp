#include "file_address.h"

#include <filesystem>
#include <string_view>

namespace tool
{
namespace
{

bool isUnreserved(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("-._~/").find(c) != std::string_view::npos;
}

} // namespace

std::string plainPath(const std::string& name)
{
    return std::filesystem::path(name).lexically_normal().string();
}

std::string uriOf(const std::string& name)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    const std::string path = plainPath(name);
    std::string uri = path.rfind('/', 0) == 0 ? "file://" : "";
    for (const char c : path)
    {
        if (isUnreserved(c))
        {
            uri += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        uri += {'%', digits[byte / 16], digits[byte % 16]};
    }
    return uri;
}

} // namespace tool
