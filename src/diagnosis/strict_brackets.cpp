#include "strict_brackets.h"

#include "scan/character_class.h"
#include "strict_mistakes.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

// The first position from `at` on, or before it, that is no blank.  There is one.
template <int step>
const char* bracketFrom(const char* at)
{
    while (is(*at, blank))
    {
        at += step;
    }
    return at;
}

std::string_view between(const char* one, const char* other)
{
    return {one + 1, static_cast<std::size_t>(other - one - 1)};
}

} // namespace

void checkBrackets(std::string_view key, StrictMistakes& mistakes)
{
    const char* const innerOpening = bracketFrom<-1>(key.data() - 1);
    const char* const opening = bracketFrom<-1>(innerOpening - 1);
    const char* const innerClosing = bracketFrom<1>(key.data() + key.size());
    const char* const closing = bracketFrom<1>(innerClosing + 1);
    const std::string_view before = between(opening, innerOpening);
    const std::string_view after = between(innerClosing, closing);
    if (!before.empty() || !after.empty())
    {
        mistakes.add(spacedBrackets, before.empty() ? after : before);
    }
}

} // namespace vorn::parsers::toml::diagnosis
