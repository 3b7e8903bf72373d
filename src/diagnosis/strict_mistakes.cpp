#include "strict_mistakes.h"

#include <algorithm>
#include <utility>

namespace vorn::parsers::toml::diagnosis
{
namespace
{

std::string filled(std::string_view words, std::string_view known)
{
    std::string text(words);
    const std::size_t at = text.find('%');
    if (at != std::string::npos)
    {
        text.replace(at, 1, known);
    }
    return text;
}

} // namespace

StrictMistakes::StrictMistakes(std::string_view document, std::size_t max)
    : document_(document.data()), max_(max)
{
}

void StrictMistakes::add(const StrictRule& rule, std::string_view place, std::string_view known,
                         std::string_view knownInHint, std::string_view origin)
{
    const std::size_t begin = offsetOf(place);
    // The key of a statement is looked up after all of the statement has been read.
    auto next = mistakes_.end();
    while (next != mistakes_.begin() + kept() && (next - 1)->begin > begin)
    {
        --next;
    }
    if (max_ != 0 && mistakes_.size() == max_)
    {
        if (next == mistakes_.end())
        {
            return;
        }
        mistakes_.pop_back();
    }
    Mistake mistake = {Severity::error,
                       begin,
                       begin + place.size(),
                       rule.code,
                       filled(rule.message, known),
                       filled(rule.hint, knownInHint)};
    if (!origin.empty())
    {
        const std::size_t first = offsetOf(origin);
        mistake.origins.push_back({first, first + origin.size(), "it is defined here first"});
    }
    mistakes_.insert(next, std::move(mistake));
}

std::vector<Mistake> StrictMistakes::take()
{
    dropStatement();
    kept_ = 0;
    return std::exchange(mistakes_, {});
}

std::string shownKey(std::string_view part)
{
    constexpr std::size_t longest = 40;
    const bool isReadable =
        part.size() <= longest &&
        std::all_of(part.begin(), part.end(), [](char c) { return c >= ' ' && c <= '~'; });
    if (!isReadable)
    {
        return {};
    }
    const bool isQuoted = part[0] == '"' || part[0] == '\'';
    const std::string_view quote = isQuoted ? "" : "'";
    return std::string(" ").append(quote).append(part).append(quote);
}

} // namespace vorn::parsers::toml::diagnosis
