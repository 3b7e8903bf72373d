// Values for which the first, the second, ... request for memory fails.
#include <gtest/gtest.h>
#include <vorn/parsers/toml_values.h>

#include <new>
#include <string>

#include "faults/failing_memory.h"

using namespace vorn::parsers::toml;

namespace
{

// How many requests there are, each of which ends the call with std::bad_alloc if it fails.
template <typename Call>
long requestsOf(const Call& call)
{
    for (long number = 1;; ++number)
    {
        bool hasThrown = false;
        const test::FailingMemory memory(number);
        try
        {
            call();
        }
        catch (const std::bad_alloc&)
        {
            hasThrown = true;
        }
        EXPECT_EQ(memory.blocks(), 0) << number;
        EXPECT_EQ(hasThrown, memory.hasFailed()) << number;
        if (!memory.hasFailed())
        {
            return number - 1;
        }
    }
}

const std::string quotes = "\"\"\"";
const std::string content(1000, 'x');

} // namespace

TEST(ValuesAllocations, OfAStringAreOneAtMost)
{
    const std::string literal = '\'' + content + '\'';
    const std::string escapes = quotes + "\n\\u00e9\\\n  " + content + "\\t" + content + quotes;
    const std::string broken = quotes + content + "\\uD800" + quotes;
    EXPECT_EQ(requestsOf([&] { return stringValue(literal) == content; }), 1);
    EXPECT_EQ(requestsOf([&] { return stringValue(escapes).has_value(); }), 1);
    EXPECT_EQ(requestsOf([&] { return stringValue(broken).has_value(); }), 1);
    EXPECT_EQ(requestsOf([&] { return stringValue("\"short\"").has_value(); }), 0);
    EXPECT_EQ(requestsOf([&] { return stringValue(content).has_value(); }), 0);
}

TEST(ValuesAllocations, OfOthersAreThoseOfUnderscores)
{
    const std::string zeros(1000, '0');
    const std::string plain = "1" + zeros + ".5e-900";
    const std::string underscores = "1_" + zeros + ".5e-900";
    EXPECT_EQ(requestsOf([&] { return floatValue(plain).has_value(); }), 0);
    EXPECT_EQ(requestsOf([&] { return floatValue("1_000.5").has_value(); }), 0);
    EXPECT_EQ(requestsOf([&] { return floatValue(underscores).has_value(); }), 1);
    EXPECT_EQ(requestsOf([&] { return integerValue("0x0" + zeros.substr(0, 5)).has_value(); }), 0);
    EXPECT_EQ(requestsOf([] { return dateTimeValue("1979-05-27T07:32:00Z")->toTimePoint(); }), 0);
}
