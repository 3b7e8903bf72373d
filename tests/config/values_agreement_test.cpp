// A text has a value exactly if it is a value of a document in which diagnose() finds nothing that
// TOML 1.0 forbids.
#include <gtest/gtest.h>
#include <vorn/parsers/toml_diagnosis.h>
#include <vorn/parsers/toml_values.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "support/text_generator.h"

using namespace vorn::parsers::toml;

namespace
{

// How many functions know a value of the text.
unsigned valueCount(const std::string& text)
{
    unsigned count = text == "true" || text == "false" ? 1 : 0;
    count += integerValue(text) ? 1 : 0;
    count += floatValue(text) ? 1 : 0;
    count += stringValue(text) ? 1 : 0;
    count += dateTimeValue(text) ? 1 : 0;
    return count;
}

// Of floats that are too large TOML 1.0 says nothing.
bool isTooLarge(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), '_'), text.end());
    char* end = nullptr;
    return std::isinf(std::strtod(text.c_str(), &end)) && *end == '\0' &&
           text.find("inf") == std::string::npos;
}

bool isValid(const std::string& text)
{
    DiagnosisOptions options;
    options.strict = true;
    for (const Finding& finding : diagnose("a = " + text + '\n', options))
    {
        if (finding.severity == Severity::error)
        {
            return false;
        }
    }
    return true;
}

// Counts the texts of a kind, those with a value apart.
struct Counts
{
    unsigned all = 0;
    unsigned valid = 0;
};

// Blanks and line breaks around a value, and comments after it, are no part of it.
bool isOneToken(const std::string& text)
{
    constexpr std::string_view around = " \t\r\n";
    return !text.empty() && around.find(text.front()) == std::string_view::npos &&
           around.find(text.back()) == std::string_view::npos;
}

void expectAgreement(const std::string& text, Counts& counts)
{
    if (!isOneToken(text))
    {
        return;
    }
    const bool valid = isValid(text);
    EXPECT_EQ(valueCount(text), valid && !isTooLarge(text) ? 1U : 0U) << text;
    ++counts.all;
    counts.valid += valid ? 1 : 0;
}

// Many of each: otherwise the texts say little.
void expectBoth(const Counts& counts)
{
    EXPECT_GT(counts.valid, counts.all / 20);
    EXPECT_GT(counts.all - counts.valid, counts.all / 20);
}

constexpr unsigned textCount = 10000;

} // namespace

TEST(ValuesAgreement, OfIntegers)
{
    test::TextGenerator random;
    Counts counts;
    const std::vector<std::string> starts = {"",
                                             "+",
                                             "-",
                                             "0x",
                                             "0o",
                                             "0b",
                                             "-0",
                                             "0",
                                             "0X",
                                             "-0x",
                                             "0x7fffffffffffffff",
                                             "0x8",
                                             "92233720368547758",
                                             "-922337203685477580",
                                             "0o77777777777777777777",
                                             "0o1"};
    constexpr std::array<std::string_view, 4> alphabets = {"01", "01234567", "0123456789",
                                                           "0123456789abcdefABCDEF"};
    for (unsigned index = 0; index < textCount; ++index)
    {
        const std::string_view alphabet = alphabets[random.below(alphabets.size())];
        std::string text =
            random.oneOf(starts) + random.digits(alphabet, random.below(3) == 0 ? 64 : 6);
        if (random.below(16) == 0)
        {
            text += random.characters("_+-.:,g", 1, 1);
        }
        expectAgreement(text, counts);
    }
    expectBoth(counts);
}

TEST(ValuesAgreement, OfFloats)
{
    test::TextGenerator random;
    Counts counts;
    const std::vector<std::string> pieces = {"1",   "0",    "27",  "_",  ".",  ".5",
                                             "e",   "E1",   "e+",  "-",  "+",  "inf",
                                             "nan", "e300", "1_0", "00", "e-9"};
    for (unsigned index = 0; index < textCount; ++index)
    {
        std::string text;
        for (std::size_t count = 1 + random.below(4); count > 0; --count)
        {
            text += random.oneOf(pieces);
        }
        expectAgreement(text, counts);
    }
    expectBoth(counts);
}

TEST(ValuesAgreement, OfDatesAndTimes)
{
    test::TextGenerator random;
    Counts counts;
    const std::vector<std::string> texts = {
        "1979-05-27T07:32:00.5+07:00", "2000-02-29",
        "0000-12-31 23:59:60Z",        "23:59:59.999999",
        "2023-04-30t00:00:00",         "1900-02-28T12:00:00-23:59"};
    for (unsigned index = 0; index < textCount; ++index)
    {
        std::string text = random.oneOf(texts);
        for (std::size_t count = random.below(3); count > 0; --count)
        {
            text[random.below(text.size())] =
                random.characters(random.below(4) == 0 ? "-:TtZ .+" : "0123456789", 1, 1)[0];
        }
        text.resize(text.size() - (random.below(8) == 0 ? random.below(text.size()) : 0));
        expectAgreement(text, counts);
    }
    expectBoth(counts);
}

TEST(ValuesAgreement, OfStrings)
{
    test::TextGenerator random;
    Counts counts;
    const std::vector<std::string> delimiters = {"\"", "'", R"(""")", "'''"};
    const std::vector<std::string> pieces = {
        "a",  "\xC3\xA9", "\t",   "\\n",     "\\\\",        "\\\"",        "\\u00e9", "\\uD7FF",
        " ",  "\\uE000",  "\\b",  "\\uD800", "\\U0010FFFF", "\\U00110000", "\\q",     "\\u12",
        "\n", "\r\n",     "\\\n", "\\\r\n",  "\"",          "'",           "\"\"",    "''"};
    for (unsigned index = 0; index < textCount; ++index)
    {
        const std::string& delimiter = random.oneOf(delimiters);
        std::string text = delimiter;
        for (std::size_t count = random.below(5); count > 0; --count)
        {
            text += random.oneOf(pieces);
        }
        expectAgreement(text + (random.below(16) == 0 ? "" : delimiter), counts);
    }
    expectBoth(counts);
}

// What the library accepts and TOML 1.0 forbids, and that has a value all the same.
TEST(ValuesAgreement, IsNotThatOfApostrophesAndBytes)
{
    for (const std::string text : {R"("\'")", "\"\x01\"", "\"\xFF\"", "'\x7F'", "'''a\rb'''"})
    {
        EXPECT_FALSE(isValid(text)) << text;
        EXPECT_TRUE(stringValue(text)) << text;
    }
}
