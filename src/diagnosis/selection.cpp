#include "selection.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

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

bool ToldPlaces::have(std::size_t place)
{
    while (next_ < told_.size() && told_[next_].begin <= place)
    {
        ++next_;
    }
    return next_ > 0 && (told_[next_ - 1].begin == place || told_[next_ - 1].end > place);
}

void addOthers(std::vector<Mistake>&& others, std::vector<Mistake>& mistakes)
{
    sort(mistakes);
    ToldPlaces places(mistakes);
    others.erase(std::remove_if(others.begin(), others.end(),
                                [&places](const Mistake& other)
                                { return places.have(other.begin); }),
                 others.end());
    std::move(others.begin(), others.end(), std::back_inserter(mistakes));
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
