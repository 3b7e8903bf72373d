// Generated texts of integers against a second computation of their values.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include <vorn/parsers/toml.h>

#include "support/printed.h"
#include "support/text_generator.h"
#include "support/value_text.h"

using namespace std::string_literals;
using namespace vorn::parsers::toml;
using test::printed;
using test::TextGenerator;
using test::withoutBlanks;
using test::withoutUnderscores;

namespace
{

constexpr int rounds = 100'000 / VORN_TEST_STEP;

// Less than this of a kind of text would not be worth the name of a test.
constexpr int many = rounds / 100;

// What a conversion yields: a value, or the text of an exception.
std::string outcome(const std::string& text)
{
    try
    {
        return std::to_string(parseInteger(text));
    }
    catch (const std::invalid_argument& exception)
    {
        return "invalid argument: "s + exception.what();
    }
    catch (const std::overflow_error& exception)
    {
        return "overflow: "s + exception.what();
    }
}

// The value of the digits at the start, or the nearest one within the limit.
std::uint64_t nearest(const std::string& text, std::uint64_t radix, std::uint64_t limit)
{
    const std::string digits = "0123456789abcdef";
    std::uint64_t value = 0;
    for (const char character : text)
    {
        const char lower =
            character >= 'A' && character <= 'F' ? static_cast<char>(character + 32) : character;
        const std::uint64_t digit = digits.find(lower);
        if (digit >= radix)
        {
            break;
        }
        value = value > (limit - digit) / radix ? limit : value * radix + digit;
    }
    return value;
}

std::string signedOutcome(const std::string& text, std::uint64_t radix)
{
    const std::uint64_t limit = std::numeric_limits<std::int64_t>::max();
    const bool hasSign = !text.empty() && (text[0] == '-' || text[0] == '+');
    const bool isNegative = hasSign && text[0] == '-';
    const std::uint64_t magnitude =
        nearest(hasSign ? text.substr(1) : text, radix, isNegative ? limit + 1 : limit);
    return (isNegative && magnitude != 0 ? "-" : "") + std::to_string(magnitude);
}

std::string binaryOutcome(const std::string& text)
{
    const std::string digits = text.substr(0, 64);
    if (digits.find_first_not_of("01") != std::string::npos)
    {
        return "invalid argument: bitset::_M_copy_from_ptr";
    }
    const std::size_t first = digits.find('1');
    if (first == std::string::npos)
    {
        return "0";
    }
    return digits.size() - first > 32 ? "overflow: _Base_bitset::_M_do_to_ulong"
                                      : std::to_string(nearest(digits, 2, UINT32_MAX));
}

std::string expectedOutcome(const std::string& token)
{
    const std::string text = withoutUnderscores(token);
    const std::string prefix = text.substr(0, 2);
    if (prefix == "0b")
    {
        return binaryOutcome(text.substr(2));
    }
    if (prefix == "0x")
    {
        return std::to_string(nearest(text.substr(2), 16, INT64_MAX));
    }
    return prefix == "0o" ? signedOutcome(withoutBlanks(text.substr(2)), 8)
                          : signedOutcome(withoutBlanks(text), 10);
}

std::string integerToken(TextGenerator& generator)
{
    switch (generator.below(4))
    {
    case 0:
        return "0x" + generator.digits("0123456789abcdefABCDEF", 20);
    case 1:
        return "0o" + generator.digits("01234567", 25);
    case 2:
        return "0b" + std::string(generator.below(40), '0') + generator.digits("01", 40);
    default:
        return generator.oneOf({"", "+", "-"}) + generator.digits("0123456789", 25);
    }
}

std::string integerText(TextGenerator& generator)
{
    static const std::vector<std::string> pieces = {
        // Parts of prefixes, digits, and what may be beside them.
        "0x", "0o", "0b", "0b", "0", "1", "1", "7", "8", "9", "a", "F", "_", "-", "+", " ", "\n",
        ".", "e", "x", "X", "o", "b", ",", "\v", "\0"s, "000", "g", "O",
        // Many digits.
        "00000000000000000000000000000000", "11", "101", "922337203685477580", "7ffffffffffffff",
        "77777777777777777777"};
    return generator.chance() ? integerToken(generator) : generator.mixture(pieces, 8);
}

} // namespace

TEST(TomlProperty, integers)
{
    TextGenerator generator;
    int invalid = 0;
    int overflowing = 0;
    int limits = 0;
    for (int round = 0; round < rounds; ++round)
    {
        const std::string text = integerText(generator);
        const std::string expected = expectedOutcome(text);
        ASSERT_EQ(outcome(text), expected) << "of " << testing::PrintToString(text);
        invalid += expected[0] == 'i';
        overflowing += expected[0] == 'o';
        limits += expected == "9223372036854775807" || expected == "-9223372036854775808";
    }
    EXPECT_GT(invalid, many);
    EXPECT_GT(overflowing, many);
    EXPECT_GT(limits, many);
}

TEST(TomlProperty, integersThatHaveBeenPrinted)
{
    TextGenerator generator;
    for (int round = 0; round < rounds; ++round)
    {
        const auto positive = static_cast<long long>(generator.bits() >> (1 + generator.below(63)));
        const long long value = generator.chance() ? positive : -positive - 1;
        ASSERT_EQ(parseInteger(printed("%lld", value)), value);
        ASSERT_EQ(parseInteger(printed("%+lld", value)), value);
        ASSERT_EQ(parseInteger(printed("0x%llx", positive)), positive);
        ASSERT_EQ(parseInteger(printed("0x%llX", positive)), positive);
        ASSERT_EQ(parseInteger(printed("0o%llo", positive)), positive);
    }
}
