// Configurations for which the first, the second, ... request for memory fails.
#include "every_member.h"
#include "told_problems.h"

#include "faults/failing_memory.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

namespace
{

namespace toml = vorn::parsers::toml;

const std::string values =
    "text = '" + std::string(100, 'x') + "'\nnames = ['" + std::string(50, 'a') +
    "', 'b']\nrows = [[1, 2], [3]]\npoint.x = 1\n"
    "[features]\na = true\n[palette.dark]\nsky = 'red'\n[[window]]\n[[window]]\nbegin = 1\n"
    "[window.origin]\nx = 1\n[named.a]\n[named.b]\nend = 20\n";
const std::string problems =
    "text = 1\nother = 1\nrows = [['x']]\ntime = 1979-02-30\ntext = 2\n[[window]]\nbegin = 11\n"
    "[point]\n";
const std::string mistakes = "a = []\nb\n";

// How many requests there are.  If one fails, the reading ends with std::bad_alloc and leaves the
// configuration alone, or does without it: then it ends as it does otherwise.
long requestsOf(const std::string& document)
{
    test::EveryMember filled;
    const std::string said = test::told(toml::readConfig(document, test::everySchema(), filled));
    for (long number = 1;; ++number)
    {
        test::EveryMember config;
        std::vector<toml::Problem> found;
        bool hasThrown = false;
        bool hasFailed = false;
        {
            const test::FailingMemory memory(number);
            try
            {
                found = toml::readConfig(document, test::everySchema(), config);
            }
            catch (const std::bad_alloc&)
            {
                hasThrown = true;
            }
            hasFailed = memory.hasFailed();
            EXPECT_TRUE(hasFailed || !hasThrown) << number;
            EXPECT_TRUE(!hasThrown || memory.blocks() <= 0) << number;
        }
        EXPECT_EQ(hasThrown ? said : test::told(found), said) << number;
        EXPECT_EQ(config.text, hasThrown ? "" : filled.text) << number;
        if (!hasFailed)
        {
            return number - 1;
        }
    }
}

} // namespace

TEST(ConfigAllocations, endAReadingIfTheyFail)
{
    test::EveryMember config;
    ASSERT_TRUE(toml::readConfig(values, test::everySchema(), config).empty());
    ASSERT_EQ(config.windows.size(), 2U);
    EXPECT_GT(requestsOf(values), 20);
}

TEST(ConfigAllocations, endAReadingWithProblemsIfTheyFail)
{
    test::EveryMember config;
    ASSERT_GT(toml::readConfig(problems, test::everySchema(), config).size(), 5U);
    EXPECT_GT(requestsOf(problems), 40);
    EXPECT_GT(requestsOf(mistakes), 20);
}
