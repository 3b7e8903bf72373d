// What kind of value a word is in TOML 1.0.
#include "fix/word_kind.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace tool::fixing;
using Kind = PieceKind;

namespace
{

void expectKind(std::optional<Kind> kind, const std::vector<std::string>& words)
{
    for (const std::string& word : words)
    {
        EXPECT_EQ(kindOfWord(word), kind) << word;
    }
}

TEST(FixWordKind, Numbers)
{
    expectKind(Kind::integer, {"0", "+0", "-0", "7", "+99", "-17", "1_000", "0xDEAD_beef", "0o755",
                               "0b1101_0101", "99999999999999999999"});
    expectKind(Kind::floatingPoint, {"1.5", "-0.01", "3.141_5", "5e+22", "1E06", "6.626e-34", "0e0",
                                     "1_0.0_1e1_0", "inf", "+inf", "-inf", "nan", "-nan"});
    expectKind(Kind::boolean, {"true", "false"});
}

TEST(FixWordKind, DatesAndTimes)
{
    expectKind(Kind::localDate, {"1979-05-27", "9999-99-99"});
    expectKind(Kind::localTime, {"07:32:00", "00:32:00.999999999", "99:99:99"});
    expectKind(Kind::localDateTime,
               {"1979-05-27T07:32:00", "1979-05-27t07:32:00.5", "1979-05-27 07:32:00"});
    expectKind(Kind::offsetDateTime, {"1979-05-27T07:32:00Z", "1979-05-27 07:32:00.5z",
                                      "1979-05-27T00:32:00-07:00", "1979-05-27T00:32:00+07:00"});
}

TEST(FixWordKind, NothingElse)
{
    expectKind(std::nullopt,
               {"",      "a",    "True", "trues", "+",   "-",        "++1",  "00",   "01",
                "-01",   "1_",   "_1",   "1__0",  "0x",  "0X1",      "+0x1", "0x_1", "0x1_",
                "0o8",   "0b2",  "0o",   "1.",    ".5",  "1.e5",     "1e",   "1e+",  "1.5e",
                "1e5.5", "1._5", "1_.5", "01.5",  "Inf", "infinity", "++inf"});
    expectKind(std::nullopt,
               {"1979-5-27", "1979-05-27T", "1979-05-27T07:32", "07:32", "7:32:00", "07:32:00.",
                "07:32:00Z", "1979-05-27Z", "1979-05-27T07:32:00+7:00", "1979-05-27T07:32:00+0700",
                "1979-05-27T07:32:00ZZ", "1979-05-27x07:32:00", "1979-05-27  07:32:00"});
}

TEST(FixWordKind, WhereWordsEnd)
{
    struct Case
    {
        std::string text;
        std::size_t end;
    };
    for (const auto& [text, end] : std::vector<Case>{
             {"1,", 1},
             {"1.5e+3]", 6},
             {"true#", 4},
             {"1979-05-27 # c", 10},
             {"1979-05-27 07:32:00Z ", 20},
             {"1979-05-27  07:32:00", 10},
             {"1979-05-27\t07:32:00", 10},
             {"12 34", 2},
             {"@", 0},
         })
    {
        EXPECT_EQ(wordEnd(text, 0), end) << text;
    }
}

} // namespace
