// Integers.
#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include <vorn/parsers/toml.h>

#include "support/log_recorder.h"

using namespace std::string_literals;
using vorn::parsers::toml::parseInteger;

namespace
{

constexpr long long largest = std::numeric_limits<long long>::max();
constexpr long long smallest = std::numeric_limits<long long>::min();

struct IntegerCase
{
    std::string text;
    long long value;
};

void expectIntegers(const std::vector<IntegerCase>& cases)
{
    for (const IntegerCase& integer : cases)
    {
        SCOPED_TRACE(testing::PrintToString(integer.text));
        EXPECT_NO_THROW(EXPECT_EQ(parseInteger(integer.text), integer.value));
    }
}

void expectEach(long long value, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        expectIntegers({{text, value}});
    }
}

void expectZero(const std::vector<std::string>& texts)
{
    expectEach(0, texts);
}

// Each text is refused with exactly this exception, and nothing is logged.
template <typename Exception>
void expectThrown(const std::string& message, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const test::LogRecorder log;
        try
        {
            ADD_FAILURE() << "yields " << parseInteger(text);
        }
        catch (const std::exception& exception)
        {
            EXPECT_STREQ(typeid(exception).name(), typeid(Exception).name());
            EXPECT_EQ(exception.what(), message);
        }
        EXPECT_EQ(log.messages(), std::vector<std::string>());
    }
}

void expectBadDigit(const std::vector<std::string>& texts)
{
    expectThrown<std::invalid_argument>("bitset::_M_copy_from_ptr", texts);
}

void expectTooLarge(const std::vector<std::string>& texts)
{
    expectThrown<std::overflow_error>("_Base_bitset::_M_do_to_ulong", texts);
}

std::string ones(std::size_t count)
{
    return std::string(count, '1');
}

std::string zeros(std::size_t count)
{
    return std::string(count, '0');
}

} // namespace

TEST(ParseInteger, ofDecimalDigits)
{
    static_assert(std::is_same_v<decltype(&parseInteger), long long (*)(std::string)>);
    static_assert(sizeof(long long) == 8);
    expectIntegers({{"0", 0},
                    {"+0", 0},
                    {"-0", 0},
                    {"7", 7},
                    {"42", 42},
                    {"+42", 42},
                    {"-17", -17},
                    {"1000", 1000},
                    {"4294967296", 4294967296},
                    {"-2147483649", -2147483649},
                    {"0123", 123},
                    {"-007", -7},
                    {"0777", 777},
                    {zeros(100) + "8", 8}});
}

TEST(ParseInteger, ofHexadecimalDigits)
{
    expectIntegers({{"0x0", 0},
                    {"0x1F", 31},
                    {"0x1f", 31},
                    {"0x00ff", 255},
                    {"0x0123456789abcdef", 0x0123456789abcdef},
                    {"0xABCDEF", 0xabcdef},
                    {"0xDEADBEEF", 3735928559},
                    {"0x" + zeros(100) + "8", 8}});
}

TEST(ParseInteger, ofOctalDigits)
{
    expectIntegers({{"0o0", 0},
                    {"0o7", 7},
                    {"0o755", 493},
                    {"0o01", 1},
                    {"0o01234567", 01234567},
                    {"0o" + zeros(100) + "10", 8}});
}

TEST(ParseInteger, ofBinaryDigits)
{
    expectIntegers({{"0b", 0},
                    {"0b0", 0},
                    {"0b1", 1},
                    {"0b10", 2},
                    {"0b11010101", 213},
                    {"0b1" + zeros(31), 2147483648},
                    {"0b" + ones(31), 2147483647},
                    {"0b" + ones(32), 4294967295},
                    {"0b0" + ones(32), 4294967295},
                    {"0b" + zeros(32) + ones(32), 4294967295},
                    {"0b" + zeros(63) + "1", 1},
                    {"0b" + zeros(64), 0}});
}

TEST(ParseInteger, dropsUnderscoresAnywhere)
{
    expectIntegers({{"1_000", 1000},
                    {"-1_000", -1000},
                    {"5_349_221", 5349221},
                    {"0xDEAD_beef", 3735928559},
                    {"0o7_5_5", 493},
                    {"0b1101_0101", 213},
                    {"_1", 1},
                    {"1_", 1},
                    {"1__0", 10},
                    {"_-_1_", -1},
                    {"0_x1F", 31},
                    {"_0x_1F", 31},
                    {"0_o17", 15},
                    {"0_b_1_0_", 2},
                    {"0b" + std::string(200, '_') + ones(32), 4294967295},
                    {std::string(10'000, '_') + "3", 3},
                    {"92233720368547758_08", largest}});
}

TEST(ParseInteger, beyondTheRangeIsTheNearestInteger)
{
    expectEach(largest - 1,
               {"9223372036854775806", "0x7ffffffffffffffe", "0o777777777777777777776"});
    expectEach(largest,
               {"9223372036854775807", "+9223372036854775807", "9223372036854775808",
                "18446744073709551615", "18446744073709551616", "123456789012345678901234567890",
                "9223372036854775808x", "0x7fffffffffffffff", "0x8000000000000000",
                "0xffffffffffffffff", "0x10000000000000000", "0o777777777777777777777",
                "0o1000000000000000000000", "0o1777777777777777777777", std::string(10'000, '9'),
                "0x" + std::string(10'000, 'f'), "0o" + std::string(10'000, '7')});
    expectEach(smallest + 1, {"-9223372036854775807"});
    expectEach(smallest,
               {"-9223372036854775808", "-9223372036854775809", "-123456789012345678901234567890",
                "0o-1000000000000000000000", "0o-1000000000000000000001"});
}

TEST(ParseInteger, stopsAtTheFirstCharacterThatDoesNotBelongToTheNumber)
{
    expectIntegers({{"42abc", 42}, {"42 43", 42},        {"42\n", 42},       {"12\00034"s, 12},
                    {"1,000", 1},  {"3.9", 3},           {"1e5", 1},         {"1-2", 1},
                    {"1+2", 1},    {"1'000", 1},         {"12\xc2\xb2", 12}, {"9f", 9},
                    {"1x10", 1},   {"1979-05-27", 1979}, {"0x1G", 1},        {"0x1.8", 1},
                    {"0xfx1", 15}, {"0x1f 2", 31},       {"0x7\0007"s, 7},   {"0o18", 1},
                    {"0o7a", 7},   {"0o17.7", 15},       {"-5-", -5}});
}

TEST(ParseInteger, withoutADigitIsZero)
{
    const test::LogRecorder log;
    expectZero({"+",    "-",   "+-1", "--1",  "++1",   "- 1",  "+ 1",    "a",        "x1",
                "o7",   "b1",  "#1",  ".5",   "inf",   "nan",  "true",   "\0"s,      "\0001"s,
                "\xff", "0x",  "0xg", "0x-1", "0x+1",  "0x 1", "0x0x1f", "0x\0001"s, "0o",
                "0o8",  "0o+", "0o-", "0oo7", "0o0x7", "0o0o7"});
    EXPECT_EQ(log.messages(), std::vector<std::string>());
}

TEST(ParseInteger, ofAnEmptyOrBlankTextIsZero)
{
    expectZero({"", " ", "\t", " \t\r\n\v\f ", "_", "___", "_ _", "0o ", "0o_", "0x_", "0b_"});
}

TEST(ParseInteger, skipsBlanksBeforeANumber)
{
    expectIntegers(
        {{" 42", 42}, {" \t\r\n\v\f-17", -17}, {"_ _42", 42}, {"0o 17", 15}, {"0o\n-17", -15}});
}

TEST(ParseInteger, knowsAPrefixInLowerCaseAtTheStartOnly)
{
    expectZero({"-0x1", "+0x1f", "-0o7", "+0o17", "-0b1", "+0b2", "0X1F", "0O17", "0B1", "0B2",
                " 0x1f", "\n0o17", " 0b1", "00x1f", "00b1"});
    expectIntegers({{"10x1", 10}, {"1b1", 1}});
}

TEST(ParseInteger, takesASignBehindTheOctalPrefix)
{
    expectIntegers({{"0o-17", -15}, {"0o+17", 15}, {"0o-0", 0}});
}

TEST(ParseInteger, readsTheFirst64BinaryDigitsOnly)
{
    expectIntegers({{"0b" + zeros(64) + "1", 0},
                    {"0b" + zeros(64) + ones(100), 0},
                    {"0b" + zeros(32) + ones(32) + "0", 4294967295},
                    {"0b" + zeros(33) + ones(32), 2147483647},
                    {"0b" + zeros(63) + "12", 1},
                    {"0b" + zeros(64) + "x", 0},
                    {"0b" + zeros(64) + "\0 -2"s, 0},
                    {"0b_" + zeros(64) + "_2", 0}});
}

TEST(ParseInteger, ofABinaryValueBeyond32BitsThrows)
{
    expectTooLarge({"0b1" + zeros(32), "0b" + ones(33), "0b1" + zeros(63), "0b" + ones(64),
                    "0b" + ones(65), "0b" + ones(1000), "0b" + zeros(31) + ones(33),
                    "0b" + zeros(31) + "1" + zeros(32), "0b1_" + zeros(32), "0b1" + zeros(63) + "2",
                    "0b1" + zeros(63) + "x"});
}

TEST(ParseInteger, ofABadBinaryDigitThrows)
{
    expectBadDigit({"0b2", "0b9", "0bx", "0b ", "0b 1", "0b1 ", "0b-1", "0b+1", "0b1.0", "0b\0"s,
                    "0b1\n", "0b\xff", "0b0b1", "0b/", "0b:", "0b12", "0b210"});
    expectBadDigit({"0b" + zeros(63) + "2", "0b2" + zeros(64), "0b" + zeros(31) + "x" + zeros(40),
                    "0b_" + zeros(63) + "_2"});
}

TEST(ParseInteger, looksForBadBinaryDigitsBeforeTheRange)
{
    expectBadDigit({"0b" + ones(33) + "2", "0b" + ones(63) + "2", "0b2" + ones(63)});
}
