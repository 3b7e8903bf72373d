#include "document_generator.h"

#include "damage.h"
#include "mixture.h"

namespace test
{
namespace
{

constexpr std::size_t usualDepth = 3;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Whether there is something like a date before a blank that no time follows: the lexer
// expects one there.
bool hasDateBeforeBlank(const std::string& text)
{
    for (std::size_t at = text.find(' ', 3); at != std::string::npos; at = text.find(' ', at + 1))
    {
        const bool date = text[at - 3] == '-' && isDigit(text[at - 2]) && isDigit(text[at - 1]);
        if (date && (at + 1 == text.size() || !isDigit(text[at + 1])))
        {
            return true;
        }
    }
    return false;
}

} // namespace

std::string DocumentGenerator::next()
{
    const std::size_t kind = random_.below(20);
    switch (kind)
    {
    case 0:
        return mixtureOfTokens(random_, tokens_);
    case 1:
        return mixtureOfMistakes(random_, tokens_);
    case 2:
        return mixtureOfCharacters(random_);
    default:
        break;
    }
    std::string text = document();
    if (kind < 10)
    {
        for (std::size_t times = random_.oneIn(2) ? 1 : random_.between(2, 4); times > 0; --times)
        {
            damage(text, random_);
        }
    }
    return text;
}

std::string DocumentGenerator::validLine()
{
    hasStrays_ = false;
    std::string text;
    do
    {
        text = line();
        text += lineEnd();
    } while (hasDateBeforeBlank(text));
    hasStrays_ = true;
    return text;
}

std::string DocumentGenerator::document()
{
    std::string text = random_.oneIn(100) ? "\xEF\xBB\xBF" : "";
    const bool isLong = random_.oneIn(500);
    for (std::size_t lines = isLong ? random_.between(50, 200) : random_.between(1, 5); lines > 0;
         --lines)
    {
        text += line() + lineEnd();
    }
    return text;
}

std::string DocumentGenerator::line()
{
    switch (random_.below(8))
    {
    case 0:
        return "";
    case 1:
        return header();
    case 2:
        return random_.oneIn(20) ? key() + "=" + nested(random_.between(20, 200)) : pair(0);
    default:
        return tokens_.blanks() + pair(usualDepth);
    }
}

// Blanks, maybe a comment, a line break, maybe lines of blanks.
std::string DocumentGenerator::lineEnd()
{
    std::string text = tokens_.blanks() + (random_.oneIn(5) ? tokens_.comment() : "");
    do
    {
        text += tokens_.newlines() + tokens_.blanks();
    } while (random_.oneIn(8));
    return text;
}

std::string DocumentGenerator::header()
{
    const auto blanks = [this] { return tokens_.blanks(); };
    if (random_.oneIn(2))
    {
        return blanks() + '[' + blanks() + key() + blanks() + ']';
    }
    return blanks() + '[' + blanks() + '[' + blanks() + key() + blanks() + ']' + blanks() + ']';
}

std::string DocumentGenerator::pair(std::size_t depth)
{
    std::string text = key() + tokens_.blanks() + '=';
    return text + tokens_.blanks() + value(depth);
}

std::string DocumentGenerator::key()
{
    std::string text = tokens_.key();
    for (std::size_t parts = random_.oneIn(4) ? random_.between(1, 3) : 0; parts > 0; --parts)
    {
        text += tokens_.blanks() + '.';
        text += tokens_.blanks() + tokens_.key();
    }
    return text;
}

std::string DocumentGenerator::value(std::size_t depth)
{
    if (depth > 0 && random_.oneIn(4))
    {
        return array(depth - 1);
    }
    if (depth > 0 && random_.oneIn(6))
    {
        return inlineTable(depth - 1);
    }
    return tokens_.scalar();
}

// Up to `most` line breaks, each with blanks and maybe a comment before it; now and then
// one too many.
std::string DocumentGenerator::breaks(std::size_t most)
{
    const std::size_t count = hasStrays_ && random_.oneIn(80) ? most + 1 : random_.below(most + 1);
    std::string text;
    for (std::size_t index = 0; index < count; ++index)
    {
        // Breaks with nothing between them would be one.
        text += index > 0 ? " " : tokens_.blanks();
        text += random_.oneIn(5) ? tokens_.comment() : "";
        text += tokens_.newlines();
    }
    return text + tokens_.blanks();
}

std::string DocumentGenerator::array(std::size_t depth)
{
    const std::size_t one = random_.oneIn(3) ? 1 : 0;
    std::string text = "[" + breaks(one) + value(depth);
    const std::size_t more = random_.below(5);
    for (std::size_t index = 0; index < more; ++index)
    {
        // Two may stand after an element that is not the first.
        text += breaks(index > 0 ? 2 * one : one) + ',';
        text += breaks(one) + value(depth);
    }
    const bool comma = random_.oneIn(6);
    text += breaks(more > 0 ? one : 0);
    return text + (comma ? "," + breaks(0) : "") + ']';
}

std::string DocumentGenerator::inlineTable(std::size_t depth)
{
    std::string text = "{";
    for (std::size_t pairs = random_.between(1, 3); pairs > 0; --pairs)
    {
        text += tokens_.blanks() + pair(depth);
        text += tokens_.blanks() + (pairs > 1 ? "," : "");
    }
    return text + '}';
}

// Arrays and inline tables within each other.
std::string DocumentGenerator::nested(std::size_t levels)
{
    static constexpr std::string_view openings[] = {"[", "[", "[\n", "[1, ", "{a=", "{a.b = 1, c="};
    std::string opened;
    std::string closed;
    const bool deep = random_.oneIn(20);
    for (std::size_t level = deep ? 6 * levels : levels; level > 0; --level)
    {
        const std::string_view opening = random_.oneOf(openings);
        opened += opening;
        closed += opening[0] == '[' ? ']' : '}';
    }
    return opened + tokens_.scalar() + std::string(closed.rbegin(), closed.rend());
}

} // namespace test
