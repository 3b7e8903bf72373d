// Dates and times, and what they commit the scanner to.
#include <gtest/gtest.h>

#include "support/scanning.h"

#include <string>
#include <vector>

using namespace test;

namespace
{

const std::string aDate = "1979-05-27";

// The token's text for every byte in the place of one of its own, and whether the byte
// fits there: a digit for a digit, or the separator itself.
template <typename Check>
void forEveryByteInEveryPlace(const std::string& token, Check check)
{
    for (std::size_t place = 0; place < token.size(); ++place)
    {
        const bool isDigit = token[place] >= '0' && token[place] <= '9';
        for (int value = 0; value < 256; ++value)
        {
            const char byte = static_cast<char>(value);
            std::string text = token;
            text[place] = byte;
            SCOPED_TRACE(testing::PrintToString(text));
            check(text, isDigit ? byte >= '0' && byte <= '9' : byte == token[place]);
        }
    }
}

} // namespace

TEST(DateTimeScanner, takesDates)
{
    for (const std::string date : {"1979-05-27", "0000-00-00", "9999-99-99", "2024-13-45"})
    {
        expectScanned(TokenType::localDate, {{date},
                                             {date, "\n"},
                                             {date, "\r\n"},
                                             {date, "\t"},
                                             {date, "\t07:32:00"},
                                             {date, ","},
                                             {date, "]"},
                                             {date, "}"},
                                             {date, "#"},
                                             {date, "."},
                                             {date, "="},
                                             {date, "+07:00"},
                                             {date, ":"},
                                             {date, "\xc3\xa9"}});
    }
}

TEST(DateTimeScanner, takesLocalDateTimes)
{
    for (const std::string text :
         {"1979-05-27T07:32:00", "1979-05-27t07:32:00", "1979-05-27 07:32:00",
          "1979-05-27T00:32:00.999999", "0000-00-00 00:00:00.0", "1979-13-45T25:61:61",
          "1979-05-27T07:32:00.123456789012345678901234567890"})
    {
        expectScanned(TokenType::localDateTime, {{text},
                                                 {text, "\n"},
                                                 {text, " Z"},
                                                 {text, ","},
                                                 {text, "z"},
                                                 {text, "x"},
                                                 {text, "_1"},
                                                 {text, ":00"},
                                                 {text, "T"}});
    }
    expectScanned(TokenType::localDateTime,
                  {{"1979-05-27T07:32:00", "1"}, {"1979-05-27T07:32:00.5", ".5"}});
}

TEST(DateTimeScanner, takesOffsetDateTimes)
{
    for (const std::string text :
         {"1979-05-27T07:32:00Z", "1979-05-27t07:32:00Z", "1979-05-27 07:32:00Z",
          "1979-05-27T00:32:00-07:00", "1979-05-27t00:32:00.999999+07:00", "1979-05-27 07:32:00.5Z",
          "1979-13-45T25:61:61Z", "1979-05-27T07:32:00+99:99"})
    {
        expectScanned(TokenType::offsetDateTime, {{text},
                                                  {text, "\n"},
                                                  {text, " "},
                                                  {text, ","},
                                                  {text, "Z"},
                                                  {text, "+07:00"},
                                                  {text, "0"},
                                                  {text, ":00"},
                                                  {text, "x"}});
    }
}

TEST(DateTimeScanner, takesTimes)
{
    for (const std::string text : {"07:32:00", "00:32:00.999999", "00:00:00", "99:99:99.0"})
    {
        expectScanned(TokenType::localTime, {{text},
                                             {text, "\n"},
                                             {text, " "},
                                             {text, ","},
                                             {text, "Z"},
                                             {text, "+07:00"},
                                             {text, "x"},
                                             {text, "_0"},
                                             {text, "-1"},
                                             {text, ":00"}});
    }
    expectScanned(TokenType::localTime, {{"07:32:00", "0"}, {"07:32:00.5", ".5"}});
}

TEST(DateTimeScanner, takesDatesWithKeyCharactersBehindThemAsBareKeys)
{
    expectScanned(TokenType::bareKey, {{"1979-05-27T"},
                                       {"1979-05-27t"},
                                       {"1979-05-27Z"},
                                       {"1979-05-27Tx"},
                                       {"1979-05-27T0"},
                                       {"1979-05-27T07"},
                                       {"1979-05-27T07", "."},
                                       {"1979-05-27T0", ":"},
                                       {"1979-05-27T007", ":00"},
                                       {"1979-05-27Tx7", ":"},
                                       {"1979-05-27T07x", ":"},
                                       {"1979-05-27T", " 07:32:00"},
                                       {"1979-05-270"},
                                       {"1979-05-27-"},
                                       {"1979-05-27_"},
                                       {"1979-05-27a", " 07:32:00"},
                                       {"1979-05-27x07", ":32:00"},
                                       {"1979-05-27-", "+"}});
}

// A blank after a date, and an hour with a colon, start a date-time.
TEST(DateTimeScanner, doesNotGoBackFromADateTimeThatFails)
{
    std::vector<std::string> texts;
    for (const std::string rest : {" ",
                                   " \n",
                                   " # note",
                                   "  07:32:00",
                                   " x",
                                   " \t",
                                   " 0",
                                   " 07",
                                   " 07 ",
                                   " 07-",
                                   " 07:",
                                   "T07:",
                                   "t07:",
                                   "T07:x",
                                   "T07:3",
                                   "T07:32",
                                   "T07:32:",
                                   "T07:32:0",
                                   "T07:32:0x",
                                   "t07:32:00.",
                                   "T07:32:00.x",
                                   " 07:32:00.",
                                   "T07:32:00.Z",
                                   "T07:32:00+",
                                   "T07:32:00-",
                                   "T07:32:00+x",
                                   "T07:32:00+0",
                                   "T07:32:00+07",
                                   "T07:32:00+0700",
                                   "T07:32:00+07:",
                                   "T07:32:00+07:0",
                                   "T07:32:00+07:0x",
                                   "T07:32:00.5+07:x0",
                                   " 07:32:00-7:00",
                                   "T07:320:00"})
    {
        texts.push_back(aDate + rest);
    }
    expectNotRecognised(texts);
}

TEST(DateTimeScanner, doesNotGoBackFromATimeThatFails)
{
    expectNotRecognised({"07:", "01:", "99:x", "07:3", "07:32", "07:32\n", "07:32:", "07:32:0",
                         "07:32:0x", "07:x2:00", "07:32-00", "07: 32:00", "07::00:00", "07:32:00.",
                         "07:32:00.x", "07:32:00..5", "07:32:00.\n", "07:032:00"});
}

TEST(DateTimeScanner, knowsADateByEveryByte)
{
    forEveryByteInEveryPlace(aDate,
                             [](const std::string& text, bool fits)
                             {
                                 const FoundToken date = {TokenType::localDate, 10};
                                 EXPECT_EQ(scan(text) == date, fits);
                                 EXPECT_EQ(scan(text + ",000000") == date, fits);
                             });
}

TEST(DateTimeScanner, knowsATimeByEveryByte)
{
    forEveryByteInEveryPlace("07:32:00",
                             [](const std::string& text, bool fits)
                             {
                                 const FoundToken time = {TokenType::localTime, 8};
                                 EXPECT_EQ(scan(text) == time, fits);
                                 EXPECT_EQ(scan(text + ",000000") == time, fits);
                             });
}

TEST(DateTimeScanner, knowsADateTimeByEveryByte)
{
    forEveryByteInEveryPlace("-07:32:00+23:59",
                             [](const std::string& text, bool fits)
                             {
                                 // Any of three marks may stand between a date and a time,
                                 // and of two before an offset.
                                 if (text[0] != '-' || text[9] == '-')
                                 {
                                     return;
                                 }
                                 const FoundToken whole = {TokenType::offsetDateTime, 25};
                                 for (const char mark : {'T', 't', ' '})
                                 {
                                     EXPECT_EQ(scan(aDate + mark + text.substr(1)) == whole, fits)
                                         << mark;
                                 }
                             });
}
