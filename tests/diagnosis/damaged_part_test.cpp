#include "diagnosis/damaged_part.h"

#include <gtest/gtest.h>

#include <string>

namespace diagnosis = vorn::parsers::toml::diagnosis;

namespace
{

diagnosis::DamagedPart partOf(const std::string& text, std::size_t begin = 0)
{
    return diagnosis::damagedPart(text, begin, diagnosis::ValidLines(text));
}

std::string textOf(const std::string& text, const diagnosis::DamagedPart& found)
{
    return text.substr(found.part.begin, found.part.end - found.part.begin);
}

} // namespace

TEST(DamagedPart, endsBeforeAValidLine)
{
    const std::string text = "a\nb = 1 2\n\nc = 3\nd\n";
    const diagnosis::DamagedPart found = partOf(text);
    EXPECT_EQ(textOf(text, found), "a\nb = 1 2\n\n");
    EXPECT_EQ(found.part.next.begin, text.find('c'));
    EXPECT_FALSE(found.isLast);
    EXPECT_FALSE(found.isLong);
    EXPECT_TRUE(found.closesBrackets);
}

TEST(DamagedPart, startsWhereItIsToldTo)
{
    const std::string text = "a = 1\nb\nc = 2\n";
    EXPECT_EQ(textOf(text, partOf(text, 6)), "b\n");
}

TEST(DamagedPart, hasAllLinesOfAStatement)
{
    // Lines that are valid by themselves, too.
    for (const std::string statement : {"a = [\n1\n]\n", "a = [\n[1],\n[2]\n]\n", "a = [\n= 1\n]\n",
                                        "a = [1, # one\n# two\n'b'\n]\n", "a = {\nb = 1\n}\n"})
    {
        const std::string text = statement + "c = 1\n";
        EXPECT_EQ(textOf(text, partOf(text)), statement);
    }
}

TEST(DamagedPart, doesNotGoOnWithBracketsThatAreNeverClosed)
{
    std::string text = "a = [1,\nb = 1\n";
    EXPECT_EQ(textOf(text, partOf(text)), "a = [1,\n");
    EXPECT_FALSE(partOf(text).closesBrackets);
    text = "a = {b = 1,\n[c]\n";
    EXPECT_EQ(textOf(text, partOf(text)), "a = {b = 1,\n");
    text = "[a\n[b]\n";
    EXPECT_EQ(textOf(text, partOf(text)), "[a\n");
    text = "[a\n['b']\n";
    EXPECT_EQ(textOf(text, partOf(text)), "[a\n");
}

TEST(DamagedPart, isTheLastAtTheEndOfTheDocument)
{
    EXPECT_TRUE(partOf("a").isLast);
    EXPECT_TRUE(partOf("a = 1").isLast);
    // Bytes that are read as the end.
    const std::string text = "a\n\xc1?\nb = 1\n";
    EXPECT_TRUE(partOf(text).isLast);
    EXPECT_EQ(partOf(text).part.next.begin, 2U);
}

TEST(DamagedPart, endsInAStringOfSeveralLinesWithAMistake)
{
    const std::string text = "a\nb = \"\"\"\\q\nc = 1\n\"\"\"\nd = 1\n";
    const diagnosis::DamagedPart found = partOf(text);
    EXPECT_TRUE(found.isLast);
    EXPECT_TRUE(found.hasUnclosedString);
    EXPECT_LE(found.part.end, text.find("\nc"));
}

TEST(DamagedPart, endsBeforeAStatementWithALotOfOtherBytes)
{
    const std::string strays(20000, '@');
    // That there are too many is known at the end of the document only: none is a token.
    for (const std::string& rest : {strays, "b = " + strays})
    {
        const std::string text = "a\n" + rest;
        const diagnosis::DamagedPart first = partOf(text);
        EXPECT_EQ(textOf(text, first), "a\n");
        EXPECT_FALSE(first.isLast);
        EXPECT_FALSE(first.isLong);
        EXPECT_EQ(first.part.next.begin, rest == strays ? text.size() : 2U);
        const diagnosis::DamagedPart second = partOf(text, 2);
        EXPECT_EQ(textOf(text, second), rest);
        EXPECT_TRUE(second.isLast);
        EXPECT_TRUE(second.isLong);
    }
}

TEST(DamagedPart, endsBeforeAStatementWithAStringThatIsNeverClosed)
{
    const std::string text = "a\nb = " + std::string(20000, '@') + " '''\nc = 1\n";
    const diagnosis::DamagedPart first = partOf(text);
    EXPECT_EQ(textOf(text, first), "a\n");
    EXPECT_FALSE(first.isLast);
    EXPECT_FALSE(first.hasUnclosedString);
    EXPECT_TRUE(partOf(text, 2).hasUnclosedString);
}

TEST(DamagedPart, isLongIfItsOneStatementIs)
{
    std::string text = "a = [";
    for (int element = 0; element < 10000; ++element)
    {
        text += "1,\n";
    }
    const std::string statement = text + "2 3]\n";
    text = "x\n" + statement + "b = 1\n";
    // What comes before it is a part of its own.
    const diagnosis::DamagedPart first = partOf(text);
    EXPECT_EQ(textOf(text, first), "x\n");
    EXPECT_FALSE(first.isLong);
    const diagnosis::DamagedPart second = partOf(text, first.part.end);
    EXPECT_EQ(textOf(text, second), statement);
    EXPECT_TRUE(second.isLong);
}
