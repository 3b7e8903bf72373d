#include "path.h"

#include <array>
#include <cstdio>
#include <utility>

namespace example
{
namespace
{

bool isBare(const std::string& key)
{
    const char* const bare = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-";
    return !key.empty() && key.find_first_not_of(bare) == std::string::npos;
}

// A key as a document may write it: on one line, in quotes where it needs them.
std::string written(const std::string& key)
{
    if (isBare(key))
    {
        return key;
    }
    std::string text = "\"";
    for (const char c : key)
    {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7f)
        {
            std::array<char, 7> escape = {};
            std::snprintf(escape.data(), escape.size(), "\\u%04X", byte);
            text += escape.data();
            continue;
        }
        if (c == '"' || c == '\\')
        {
            text += '\\';
        }
        text += c;
    }
    return text + '"';
}

std::string joined(const std::vector<Path::Step>& steps, bool withIndices)
{
    std::string text;
    for (const Path::Step& step : steps)
    {
        if (const auto* const key = std::get_if<std::string>(&step))
        {
            text += (text.empty() ? "" : ".") + written(*key);
        }
        else
        {
            text += '[' + (withIndices ? std::to_string(std::get<std::size_t>(step)) : "") + ']';
        }
    }
    return text;
}

} // namespace

Path Path::parent() const
{
    Path shorter = *this;
    shorter.steps_.pop_back();
    return shorter;
}

std::string Path::text() const
{
    return joined(steps_, true);
}

std::string Path::pattern() const
{
    return joined(steps_, false);
}

Path Path::with(Step step) const
{
    Path longer = *this;
    longer.steps_.push_back(std::move(step));
    return longer;
}

} // namespace example
