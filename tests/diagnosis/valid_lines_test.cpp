#include "diagnosis/valid_lines.h"

#include <gtest/gtest.h>

#include <string>

using namespace vorn::parsers::toml::diagnosis;

namespace
{

std::size_t passed(const std::string& text, std::size_t from = 0)
{
    LastLine last;
    return ValidLines(text).pass(from, last);
}

} // namespace

TEST(ValidLines, endWhereALineIsNotValid)
{
    EXPECT_EQ(passed(""), 0U);
    EXPECT_EQ(passed("a = 1\n[b]\n"), 10U);
    EXPECT_EQ(passed("a = 1\n[b\n"), 6U);
    EXPECT_EQ(passed("a\n"), 0U);
    EXPECT_EQ(passed("a = 1\n\n\n# c\nb = 1"), 12U);
    // From any line on.
    EXPECT_EQ(passed("a\nb = 1\nc\n", 2), 8U);
    EXPECT_EQ(passed("a = [[[1]]]\nb = [[1]]\nc\n"), 22U);
}

TEST(ValidLines, tellWhetherOneComesNext)
{
    const std::string text = "a\n\n# c\nb = 1\nc\n[d]";
    const ValidLines lines(text);
    EXPECT_FALSE(lines.isNext(0));
    EXPECT_TRUE(lines.isNext(2));
    EXPECT_FALSE(lines.isNext(13));
    EXPECT_FALSE(lines.isNext(15));
    EXPECT_TRUE(lines.isNext(text.size()));
}
