#include "config/line_counter.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "support/text_generator.h"

using vorn::parsers::toml::Place;
using vorn::parsers::toml::config::LineCounter;

namespace
{

struct Case
{
    std::string document;
    std::size_t offset;
    std::size_t line;
    std::size_t column;
};

// One character after the other, without a word of what the counter knows.
Place naivePlace(const std::string& document, std::size_t offset)
{
    const std::vector<std::string> characters = {"\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"};
    Place place = {1, 1, offset};
    std::size_t at = document.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0;
    while (at < offset)
    {
        std::size_t length = 1;
        for (const std::string& character : characters)
        {
            length =
                document.compare(at, character.size(), character) == 0 ? character.size() : length;
        }
        if (at + length > offset)
        {
            break;
        }
        const bool isLineFeed = document[at] == '\n';
        place.line += isLineFeed ? 1 : 0;
        place.column = isLineFeed ? 1 : place.column + 1;
        at += length;
    }
    return place;
}

void expectSame(const Place& found, const Place& expected)
{
    EXPECT_EQ(found.line, expected.line);
    EXPECT_EQ(found.column, expected.column);
    EXPECT_EQ(found.offset, expected.offset);
}

} // namespace

TEST(LineCounter, CountsCharacters)
{
    const std::vector<Case> cases = {
        {"", 0, 1, 1},
        {"a", 0, 1, 1},
        {"a", 1, 1, 2},
        {"a\n", 1, 1, 2},
        {"a\n", 2, 2, 1},
        {"a\r\nb", 3, 2, 1},
        {"a\rb", 2, 1, 3},
        {"\xC3\xA9x", 2, 1, 2},
        {"\xC3\xA9x", 1, 1, 1},
        {"\xE2\x82\xAC\xF0\x9F\x98\x80x", 7, 1, 3},
        {"\xFF\xFEx", 2, 1, 3},
        {"\xC3x", 1, 1, 2},
        {"\xC3x", 2, 1, 3},
        {"\xED\xA0\x80x", 3, 1, 4},
        {"\xEF\xBB\xBFx", 0, 1, 1},
        {"\xEF\xBB\xBFx", 2, 1, 1},
        {"\xEF\xBB\xBFx", 3, 1, 1},
        {"\xEF\xBB\xBFx", 4, 1, 2},
        {"x\xEF\xBB\xBFx", 4, 1, 3},
        {"0123456789\n0123456789abcdefghij", 30, 2, 20},
        {"0123456789\n0123456\xC3\xA9"
         "9abcdefghij",
         30, 2, 19},
    };
    for (const Case& one : cases)
    {
        SCOPED_TRACE(one.document + " at " + std::to_string(one.offset));
        expectSame(LineCounter(one.document).at(one.offset), {one.line, one.column, one.offset});
    }
    expectSame(LineCounter("a\nb").at(100), {2, 2, 3});
}

TEST(LineCounter, CountsFromAnyOffsetToAnyOther)
{
    test::TextGenerator random;
    for (int round = 0; round < 300; ++round)
    {
        std::string document = random.chance() ? "\xEF\xBB\xBF" : "";
        const std::size_t size = 1 + random.below(200);
        while (document.size() < size)
        {
            document += random.oneOf({"a", "abcdefghijkl", "\n", "\r\n", "\xC3\xA9", "\xE2\x82\xAC",
                                      "\xF0\x9F\x98\x80", "\xFF", "\xC3", "\xE2\x82"});
        }
        LineCounter counter(document);
        std::size_t offset = 0;
        for (int step = 0; step < 40; ++step)
        {
            // For the most part they ascend.
            offset = random.below(4) == 0 ? random.below(document.size() + 1)
                                          : std::min(offset + random.below(9), document.size());
            SCOPED_TRACE(testing::PrintToString(document) + " at " + std::to_string(offset));
            expectSame(counter.at(offset), naivePlace(document, offset));
        }
    }
}
