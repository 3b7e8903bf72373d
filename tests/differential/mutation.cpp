#include "mutation.h"

#include "damage.h"
#include "mixture.h"

#include "support/refused_documents.h"

#include <algorithm>
#include <string_view>

namespace test
{
namespace
{

using namespace std::string_view_literals;

// How far a token is looked for.
constexpr std::size_t longest = 200;

struct Part
{
    std::size_t start;
    std::size_t length;

    std::size_t end() const { return start + length; }
    std::string of(const std::string& document) const { return document.substr(start, length); }
};

bool isInWord(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
           std::string_view("_-+.:").find(c) != std::string_view::npos ||
           static_cast<unsigned char>(c) >= 0x80;
}

// Something like a token: a word, a quoted text up to its line's end, or a character.
Part tokenAt(const std::string& document, std::size_t place)
{
    if (place >= document.size())
    {
        return {document.size(), 0};
    }
    std::size_t start = place;
    std::size_t end = place + 1;
    const char first = document[place];
    const std::size_t limit = std::min(document.size(), place + longest);
    if (isInWord(first))
    {
        while (start > 0 && place - start < longest && isInWord(document[start - 1]))
        {
            --start;
        }
        while (end < limit && isInWord(document[end]))
        {
            ++end;
        }
    }
    else if (first == '"' || first == '\'')
    {
        while (end < limit && document[end] != first && document[end] != '\n')
        {
            ++end;
        }
        end += end < document.size() && document[end] == first ? 1 : 0;
    }
    return {start, end - start};
}

// The line at a place with its break.
Part lineAt(const std::string& document, std::size_t place)
{
    const std::size_t before = place > 0 ? document.rfind('\n', place - 1) : std::string::npos;
    const std::size_t start = before == std::string::npos ? 0 : before + 1;
    const std::size_t end = std::min(document.find('\n', place), document.size() - 1) + 1;
    return {start, end - start};
}

// Exchanges a part with one that follows it; parts of very long tokens may not.
void exchange(std::string& document, const Part& part, const Part& next)
{
    if (next.start < part.end())
    {
        return;
    }
    const std::string between = document.substr(part.end(), next.start - part.end());
    document.replace(part.start, next.end() - part.start,
                     next.of(document) + between + part.of(document));
}

void mutateToken(std::string& document, std::size_t place, Random& random)
{
    const Part token = tokenAt(document, place);
    const std::string other = tokenAt(document, random.below(document.size() + 1)).of(document);
    switch (random.below(6))
    {
    case 0:
    case 1:
        document.erase(token.start, token.length);
        break;
    case 2:
        document.insert(token.end(), (random.oneIn(2) ? " " : "") + token.of(document));
        break;
    case 3:
        exchange(document, token, tokenAt(document, token.end() + random.below(3)));
        break;
    case 4:
        document.replace(token.start, token.length, other);
        break;
    default:
        document.insert(token.start, other);
    }
}

void mutateLine(std::string& document, std::size_t place, Random& random, TokenGenerator& tokens)
{
    const Part line = lineAt(document, place);
    switch (random.below(5))
    {
    case 0:
        document.erase(line.start, line.length);
        break;
    case 1:
        document.insert(line.end(), line.of(document));
        break;
    case 2:
        exchange(document, line, lineAt(document, line.end()));
        break;
    default:
        insertLine(document, place, mistakenLines(random, tokens));
    }
}

// Carriage returns put next to a line break or taken from there, or the break taken.
void mutateLineBreak(std::string& document, std::size_t place, Random& random)
{
    static constexpr std::string_view breaks[] = {"\r\n",   "\n\r",     "\r",     "\n\r\n",
                                                  "\r\r\n", "\n\r\n\r", "\r\n\r", "\n\n",
                                                  "\n \n",  "\n# c\n",  "\n\r ",  " # c\n"};
    const std::size_t at = document.find('\n', place);
    if (at == std::string::npos)
    {
        document += random.oneOf(breaks);
        return;
    }
    const bool returned = at > 0 && document[at - 1] == '\r';
    const Part lineBreak = {at - (returned ? 1 : 0), returned ? 2U : 1U};
    switch (random.below(4))
    {
    case 0:
        document.erase(lineBreak.start, lineBreak.length);
        break;
    case 1:
        document.erase(at, 1);
        break;
    default:
        document.replace(lineBreak.start, lineBreak.length, random.oneOf(breaks));
    }
}

// Takes away the next of some characters.
void erase(std::string& document, std::size_t place, const char* characters)
{
    const std::size_t at = document.find_first_of(characters, place);
    if (at != std::string::npos)
    {
        document.erase(at, 1);
    }
}

void mutateBytes(std::string& document, std::size_t place, Random& random)
{
    const std::size_t length = std::min(random.between(1, 100), document.size() - place);
    std::string part = document.substr(place, length);
    damage(part, random);
    document.replace(place, length, part);
}

} // namespace

void insertLine(std::string& document, std::size_t place, const std::string& line)
{
    document.insert(lineAt(document, place).start, line);
}

void mutate(std::string& document, std::size_t place, Random& random, TokenGenerator& tokens)
{
    switch (random.below(12))
    {
    case 0:
    case 1:
        return mutateToken(document, place, random);
    case 2:
    case 3:
        return mutateLine(document, place, random, tokens);
    case 4:
    case 5:
        return mutateLineBreak(document, place, random);
    case 6:
        return erase(document, place, random.oneIn(2) ? "\"'" : "])}");
    case 7:
        return erase(document, place, random.oneIn(2) ? "[{" : "\"'[{=,.");
    case 8:
        document.insert(place, 1, random.oneOf("\"'[]{}\0\r\xFF"sv));
        return;
    case 9:
        // The last line break, which must be there.
        document.erase(document.find_last_not_of("\r\n") + 1);
        return;
    default:
        return mutateBytes(document, place, random);
    }
}

std::size_t placeIn(const std::string& document, std::size_t other, Random& random)
{
    constexpr std::size_t near = 120;
    const std::size_t size = document.size();
    switch (random.below(8))
    {
    case 0:
        return random.below(std::min(near, size) + 1);
    case 1:
        return size - random.below(std::min(near, size) + 1);
    case 2:
    case 3:
        return std::min(other + random.below(near), size);
    default:
        return random.below(size + 1);
    }
}

std::string mistakenLines(Random& random, TokenGenerator& tokens)
{
    if (random.oneIn(4))
    {
        return mixtureOfMistakes(random, tokens);
    }
    if (random.oneIn(4))
    {
        return mixtureOfTokens(random, tokens) + '\n';
    }
    if (random.oneIn(4))
    {
        return walkedLine(random);
    }
    const std::vector<std::string>& texts =
        refusedDocuments[random.below(refusedDocuments.size())].texts;
    return texts[random.below(texts.size())] + (random.oneIn(3) ? "" : "\n");
}

std::string walkedLine(Random& random)
{
    static constexpr std::string_view lines[] = {
        "a = [1 2]", "a = [1, 2 3, 4]", "a.b 1", "a.b 'x' # c", "a.b [1,\n2]", "[[t]", "[[t.u]",
        "a = [{b = 1]", "a = [[1 2], 3]", "a = [[1,\n2 3],\n4]", "a = [1, b]", "a = {b = 1\n}", "@",
        "a = [1, @]",
        // The walk has errors of its own here.
        "a = {}", "a = []", "a = [,]", "a. = 1", "a.b. = 1", "[a.]", "a.@ = 1", "a = {b 1}",
        "a = {b = 1,}", "a = {b. = 1}", "a = {b = [1 2], c = {d 1}}"};
    return std::string(random.oneOf(lines)) + (random.oneIn(4) ? "\r\n" : "\n");
}

} // namespace test
