#include "valid_tokens.h"

#include <algorithm>
#include <cstring>

#include "direct/token_cursor.h"

namespace vorn::parsers::toml
{
namespace
{

template <typename Take>
void forEachToken(std::string_view lines, Take take)
{
    const char* const end = lines.data() + lines.size();
    TokenCursor cursor(lines.data(), end);
    while (!cursor.atEnd())
    {
        take(cursor.take().text);
    }
}

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

std::size_t countTokens(std::string_view lines) noexcept
{
    std::size_t count = 0;
    forEachToken(lines, [&](std::string_view) { ++count; });
    return count;
}

char* appendTokens(std::string_view lines, char* end, std::size_t& count) noexcept
{
    const bool hasNul = std::memchr(lines.data(), '\0', lines.size()) != nullptr;
    const char* const limit = lines.data() + lines.size();
    forEachToken(lines,
                 [&](std::string_view text)
                 {
                     ++count;
                     if (hasNul)
                     {
                         text = text.substr(0, std::min(text.find('\0'), text.size()));
                     }
                     end = append(text, limit, end);
                 });
    return end;
}

} // namespace vorn::parsers::toml
