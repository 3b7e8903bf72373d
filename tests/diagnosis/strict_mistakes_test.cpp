// How mistakes are collected.
#include "diagnosis/strict_mistakes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace vorn::parsers::toml::diagnosis;

namespace
{

const std::string document = "0123456789";

std::string_view at(std::size_t begin)
{
    return std::string_view(document).substr(begin, 1);
}

std::vector<std::size_t> places(StrictMistakes& mistakes)
{
    std::vector<std::size_t> places;
    for (const Mistake& mistake : mistakes.take())
    {
        places.push_back(mistake.begin);
    }
    return places;
}

using Places = std::vector<std::size_t>;

} // namespace

TEST(StrictMistakes, areThoseOfKeptStatements)
{
    StrictMistakes mistakes(document, 0);
    mistakes.add(integerOutOfRange, at(1));
    mistakes.keepStatement();
    mistakes.add(integerOutOfRange, at(2));
    mistakes.dropStatement();
    mistakes.add(integerOutOfRange, at(3));
    mistakes.keepStatement();
    mistakes.add(integerOutOfRange, at(4));
    EXPECT_EQ(places(mistakes), (Places{1, 3}));
    EXPECT_EQ(places(mistakes), Places{});
}

TEST(StrictMistakes, areInOrderWithinAStatement)
{
    StrictMistakes mistakes(document, 0);
    mistakes.add(integerOutOfRange, at(5));
    mistakes.keepStatement();
    // (Statements come in order: those of an earlier one stay before the others.)
    for (const std::size_t place : {7U, 9U, 6U, 8U, 4U})
    {
        mistakes.add(integerOutOfRange, at(place));
    }
    mistakes.keepStatement();
    EXPECT_EQ(places(mistakes), (Places{5, 4, 6, 7, 8, 9}));
}

TEST(StrictMistakes, areTheFirstOnes)
{
    StrictMistakes mistakes(document, 3);
    mistakes.add(integerOutOfRange, at(1));
    mistakes.keepStatement();
    for (const std::size_t place : {5U, 6U, 7U, 4U})
    {
        mistakes.add(integerOutOfRange, at(place));
        EXPECT_FALSE(mistakes.isFull());
    }
    mistakes.keepStatement();
    EXPECT_TRUE(mistakes.isFull());
    mistakes.add(integerOutOfRange, at(8));
    mistakes.keepStatement();
    EXPECT_EQ(places(mistakes), (Places{1, 4, 5}));
}

TEST(StrictMistakes, leaveTheirRoomWhenTheyAreDropped)
{
    StrictMistakes mistakes(document, 1);
    mistakes.add(integerOutOfRange, at(1));
    mistakes.dropStatement();
    EXPECT_FALSE(mistakes.isFull());
    mistakes.add(integerOutOfRange, at(2));
    mistakes.keepStatement();
    EXPECT_EQ(places(mistakes), Places{2});
}

TEST(StrictMistakes, haveWordsAndOrigins)
{
    StrictMistakes mistakes(document, 0);
    mistakes.add(noSuchDay, at(4), "31", "30");
    mistakes.add(duplicateKey, at(6), " 'k'", {}, at(2));
    mistakes.keepStatement();
    const std::vector<Mistake> taken = mistakes.take();
    ASSERT_EQ(taken.size(), 2U);
    EXPECT_EQ(taken[0].severity, vorn::parsers::toml::Severity::error);
    EXPECT_STREQ(taken[0].code, "date-does-not-exist");
    EXPECT_EQ(taken[0].message, "the day 31 does not exist");
    EXPECT_EQ(taken[0].hint, "This month has the days 01 to 30.");
    EXPECT_TRUE(taken[0].origins.empty());
    EXPECT_EQ(taken[1].end, 7U);
    EXPECT_EQ(taken[1].message, "the key 'k' is defined twice");
    ASSERT_EQ(taken[1].origins.size(), 1U);
    EXPECT_EQ(taken[1].origins[0].begin, 2U);
    EXPECT_EQ(taken[1].origins[0].end, 3U);
    EXPECT_EQ(taken[1].origins[0].message, "it is defined here first");
}

TEST(StrictMistakes, showKeysThatAreEasyToRead)
{
    EXPECT_EQ(shownKey("a-b"), " 'a-b'");
    EXPECT_EQ(shownKey("\"a b\""), " \"a b\"");
    EXPECT_EQ(shownKey("'%'"), " '%'");
    EXPECT_EQ(shownKey(std::string(40, 'k')), " '" + std::string(40, 'k') + '\'');
    EXPECT_EQ(shownKey(std::string(41, 'k')), "");
    EXPECT_EQ(shownKey("\"\t\""), "");
    EXPECT_EQ(shownKey("\"\x7F\""), "");
    EXPECT_EQ(shownKey("\"\xC2\x9B\""), "");
}
