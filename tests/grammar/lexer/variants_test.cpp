// Nearly the tokens that are not strings: examples with any character in any place.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/lexer_agreement.h"

using namespace test;

namespace
{

// The starts of an example with one character of ASCII after them, also with one after that
// with which only a key goes on, and the example with one character replaced.
void addVariants(const std::string& example, std::set<std::string>& variants)
{
    for (std::size_t position = 0; position <= example.size(); ++position)
    {
        for (char character = '!'; character <= '~'; ++character)
        {
            const std::string start = example.substr(0, position) + character;
            variants.insert(start);
            variants.insert(start + 'x');
            if (position < example.size())
            {
                variants.insert(start + example.substr(position + 1));
            }
        }
    }
}

} // namespace

TEST(LexerVariants, areLexedAsByTheGrammar)
{
    std::set<std::string> texts;
    for (const char* const example :
         {// Words and numbers
          "true_", "false-", "inf_", "nan-", "-inf", "+nan", "0xdead_beef", "0o7_5", "0b1_01",
          "1_000", "12345", "-12345", "+12_34_5", "12_3_45", "-12_34", "+1_0", "0_0", "1.0_5",
          "-0.5e-1_0", "1_2e3_4", "+1e-0_1", "9E+10", "0E-10", "-_a-",
          // Dates and times
          "1979-05-27T07x", "1979-05-27T07:32:00.98Z", "1979-05-27 07:32:00-08:45",
          "1979-05-27t07:32:00.1+23:59", "0987-65-43", "23:59:01.25"})
    {
        addVariants(example, texts);
    }
    std::size_t number = 0;
    for (const std::string& text : texts)
    {
        if (++number % VORN_TEST_STEP == 0)
        {
            ASSERT_TRUE(agree(text));
            ASSERT_TRUE(agree(text, StreamKind::ownLookahead));
        }
    }
}
