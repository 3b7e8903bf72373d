#include "excerpt.h"

#include <algorithm>

#include "characters.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

// In columns; what is after starts at the place.
constexpr std::size_t maxBefore = 60;
constexpr std::size_t maxAfter = 40;

constexpr std::string_view omission = "...";

// Where the excerpt starts.
std::size_t shownFrom(std::string_view line, std::size_t place)
{
    std::size_t columns = 0;
    std::size_t from = place;
    while (from > 0)
    {
        const std::size_t before = characterBegin(line, from - 1);
        columns += shown(line, characterAt(line, before), before).columns;
        if (columns > maxBefore)
        {
            break;
        }
        from = before;
    }
    return from;
}

} // namespace

Excerpt excerptOf(std::string_view line, std::size_t begin, std::size_t end)
{
    begin = std::min(begin, line.size());
    const std::size_t from = shownFrom(line, begin);
    Excerpt excerpt;
    if (from > 0)
    {
        excerpt.source = omission;
        excerpt.marks.assign(omission.size(), ' ');
    }
    std::size_t after = 0;
    for (std::size_t at = from; at < line.size();)
    {
        const Character character = characterAt(line, at);
        const ShownCharacter one = shown(line, character, at);
        after += at >= begin ? one.columns : 0;
        if (after > maxAfter)
        {
            excerpt.source += omission;
            break;
        }
        excerpt.source += one.text;
        const bool isMarked = at >= begin && at < end;
        excerpt.marks.append(at < begin || isMarked ? one.columns : 0, isMarked ? '~' : ' ');
        at += character.length;
    }
    const std::size_t caret = excerpt.marks.find('~');
    if (caret == std::string::npos)
    {
        excerpt.marks += '^';
    }
    else
    {
        excerpt.marks[caret] = '^';
    }
    return excerpt;
}

} // namespace vorn::parsers::toml::diagnosis
