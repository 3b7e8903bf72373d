// Dates and times with every byte in every place.
#include <gtest/gtest.h>

#include "support/scanning.h"

#include <string>

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
                                 // Three marks may stand between a date and a time, and
                                 // two before an offset.
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
