// The line of source, or what is shown of it, and the marks below.
#include "diagnosis/characters.h"
#include "diagnosis/excerpt.h"
#include "diagnosis/source_lines.h"

#include <gtest/gtest.h>

#include <string>

namespace diagnosis = vorn::parsers::toml::diagnosis;

namespace
{

void expectExcerpt(const std::string& line, std::size_t begin, std::size_t end,
                   const std::string& source, const std::string& marks)
{
    const diagnosis::Excerpt excerpt = diagnosis::excerptOf(line, begin, end);
    EXPECT_EQ(excerpt.source, source);
    EXPECT_EQ(excerpt.marks, marks);
}

} // namespace

TEST(Excerpt, marksAPlace)
{
    expectExcerpt("a = []", 5, 6, "a = []", "     ^");
    expectExcerpt("a = true", 4, 8, "a = true", "    ^~~~");
    expectExcerpt("a =", 3, 3, "a =", "   ^");
    expectExcerpt("", 0, 0, "", "^");
    expectExcerpt("ab", 0, 100, "ab", "^~");
    expectExcerpt("ab", 5, 9, "ab", "  ^");
}

TEST(Excerpt, alignsMarksBelowTabsAndCharacters)
{
    expectExcerpt("\ta\t= []", 6, 7, "    a    = []", "            ^");
    expectExcerpt("'\xc3\xa9' []", 6, 7, "'\xc3\xa9' []", "     ^");
    // A character of two columns, and one that combines with the one before.
    expectExcerpt("'\xe6\xbc\xa2' []", 7, 8, "'\xe6\xbc\xa2' []", "      ^");
    expectExcerpt("'e\xcc\x81' []", 7, 8, "'e\xcc\x81' []", "     ^");
    expectExcerpt("\xe6\xbc\xa2", 0, 3, "\xe6\xbc\xa2", "^~");
}

TEST(Excerpt, escapesWhatIsNotSeen)
{
    expectExcerpt("a\x1b[1m]", 5, 6, "a\\x1B[1m]", "        ^");
    expectExcerpt("\xff]", 1, 2, "\\xFF]", "    ^");
    expectExcerpt("\xc2\x9b]", 2, 3, "\\u009B]", "      ^");
    expectExcerpt("\xe2\x80\xae]", 3, 4, "\\u202E]", "      ^");
    expectExcerpt(std::string("\0]", 2), 1, 2, "\\x00]", "    ^");
    expectExcerpt("\xf3\xa0\x81\x81]", 4, 5, "\\U000E0041]", "          ^");
}

TEST(Excerpt, shortensLongLines)
{
    const std::string xs(1000, 'x');
    expectExcerpt(xs, 0, 1, xs.substr(0, 40) + "...", "^");
    expectExcerpt(xs, 500, 502, "..." + xs.substr(0, 100) + "...", std::string(63, ' ') + "^~");
    expectExcerpt(xs, 999, 1000, "..." + xs.substr(0, 61), std::string(63, ' ') + '^');
    expectExcerpt(xs, 0, 1000, xs.substr(0, 40) + "...", '^' + std::string(39, '~'));
    expectExcerpt(std::string(60, 'x') + ']', 60, 61, std::string(60, 'x') + ']',
                  std::string(60, ' ') + '^');
    // It is cut between characters.
    std::string wide;
    for (int count = 0; count < 100; ++count)
    {
        wide += "\xc3\xa9";
    }
    expectExcerpt(wide, 198, 200, "..." + wide.substr(0, 122), std::string(63, ' ') + '^');
    // However long the line is, this takes no time.
    const std::string longest(50000000, '\xbf');
    EXPECT_EQ(diagnosis::excerptOf(longest, 25000000, 25000001).marks.size(), 3U + 60 + 4);
}

TEST(SourceLines, countsCharactersAndLeavesOutTheByteOrderMark)
{
    const std::string text = "\xef\xbb\xbf'\xc3\xa9' x\r\n\xe6\xbc\xa2y\n\nlast";
    const diagnosis::SourceLines lines(text);
    struct Case
    {
        std::size_t offset;
        std::size_t line;
        std::size_t column;
    };
    for (const Case& c : {Case{0, 1, 1},
                          {3, 1, 1},
                          {8, 1, 5},
                          {11, 2, 1},
                          {14, 2, 2},
                          {15, 2, 3},
                          {16, 3, 1},
                          {17, 4, 1},
                          {21, 4, 5}})
    {
        const diagnosis::SourcePlace place = lines.placeOf(c.offset);
        EXPECT_EQ(place.line, c.line) << c.offset;
        EXPECT_EQ(place.column, c.column) << c.offset;
    }
    EXPECT_EQ(lines.line(1), "'\xc3\xa9' x");
    EXPECT_EQ(lines.line(2), "\xe6\xbc\xa2y");
    EXPECT_EQ(lines.line(3), "");
    EXPECT_EQ(lines.line(4), "last");
}

TEST(Utf8, findsWhatIsNotWellFormed)
{
    for (const std::string text : {"", "a\n", "\xc2\x80", "\xed\x9f\xbf", "\xee\x80\x80",
                                   "\xf0\x90\x80\x80", "\xf4\x8f\xbf\xbf"})
    {
        EXPECT_EQ(diagnosis::findMalformed(text), std::string::npos);
    }
    for (const std::string malformed :
         {"\x80", "\xc1\x81", "\xc3", "\xe0\x9f\xbf", "\xed\xa0\x80", "\xf0\x8f\xbf\xbf",
          "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "\xff",
          "\xe2\x82"
          "x"})
    {
        EXPECT_EQ(diagnosis::findMalformed("\xc3\xa9" + malformed), 2U);
    }
}
