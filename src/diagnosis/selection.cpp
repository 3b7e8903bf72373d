#include "selection.h"

#include <algorithm>
#include <cstddef>

#include "codes.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

void sort(std::vector<Mistake>& mistakes)
{
    std::stable_sort(mistakes.begin(), mistakes.end(),
                     [](const Mistake& a, const Mistake& b) { return a.begin < b.begin; });
}

} // namespace

void addOthers(std::vector<Mistake>&& others, std::vector<Mistake>& mistakes)
{
    sort(mistakes);
    const std::size_t told = mistakes.size();
    std::size_t next = 0; // the first that starts after the other
    for (Mistake& other : others)
    {
        while (next < told && mistakes[next].begin <= other.begin)
        {
            ++next;
        }
        const bool isTold = next > 0 && (mistakes[next - 1].begin == other.begin ||
                                         mistakes[next - 1].end > other.begin);
        if (!isTold)
        {
            mistakes.push_back(std::move(other));
        }
    }
    sort(mistakes);
}

void keepFirst(std::size_t max, std::vector<Mistake>& mistakes)
{
    sort(mistakes);
    if (mistakes.size() > max)
    {
        mistakes.erase(mistakes.begin() + static_cast<std::ptrdiff_t>(max), mistakes.end());
    }
}

void leaveOutConsequences(std::vector<Mistake>& mistakes)
{
    const auto isOther = [](const Mistake& one) { return one.code == codes::utf16; };
    const auto isOtherError = [&](const Mistake& one)
    { return isOther(one) && one.severity == Severity::error; };
    auto other = std::find_if(mistakes.begin(), mistakes.end(), isOtherError);
    other =
        other == mistakes.end() ? std::find_if(mistakes.begin(), mistakes.end(), isOther) : other;
    const bool hasOtherErrors =
        std::any_of(mistakes.begin(), mistakes.end(),
                    [&](const Mistake& one) { return one.severity == Severity::error; });
    if (other != mistakes.end() && (other->severity == Severity::error || !hasOtherErrors))
    {
        Mistake only = std::move(*other);
        mistakes.clear();
        mistakes.push_back(std::move(only));
    }
}

} // namespace vorn::parsers::toml::diagnosis
