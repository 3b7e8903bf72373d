#include "valid_tokens.h"

#include <algorithm>
#include <cstring>

#include "direct/token_cursor.h"

namespace vorn::parsers::toml
{
namespace
{

// Most tokens are shorter than a block, which is copied fastest.
char* append(std::string_view text, const char* limit, char* end) noexcept
{
    constexpr std::size_t block = 16;
    if (text.size() <= block && static_cast<std::size_t>(limit - text.data()) >= block)
    {
        std::memcpy(end, text.data(), block);
        return end + text.size();
    }
    return std::copy(text.begin(), text.end(), end);
}

} // namespace

char* appendTokens(std::string_view lines, char* end, std::size_t& count) noexcept
{
    const bool hasNul = std::memchr(lines.data(), '\0', lines.size()) != nullptr;
    const char* const limit = lines.data() + lines.size();
    TokenCursor cursor(lines.data(), limit);
    while (!cursor.atEnd())
    {
        std::string_view text = cursor.take().text;
        ++count;
        if (end == nullptr)
        {
            continue;
        }
        if (hasNul)
        {
            text = text.substr(0, std::min(text.find('\0'), text.size()));
        }
        end = append(text, limit, end);
    }
    return end;
}

std::size_t countTokens(std::string_view lines) noexcept
{
    std::size_t count = 0;
    appendTokens(lines, nullptr, count);
    return count;
}

} // namespace vorn::parsers::toml
