// The language of the tokens that are not strings, tried out around examples.
#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <string>
#include <vector>

#include "support/lexer_run.h"

using namespace test;

namespace
{

struct TokenRule
{
    std::string name;
    std::regex pattern;
};

// In the order that decides between tokens of the same text.
std::vector<TokenRule> tokenRules()
{
    const std::string digits = "[0-9](_?[0-9])*";
    const std::string integer = "[+-]?([1-9](_?[0-9])+|[0-9])";
    const std::string fraction = "\\." + digits;
    const std::string exponent = "[eE][+-]?" + digits;
    const std::string date = "[0-9]{4}-[0-9]{2}-[0-9]{2}";
    const std::string time = "[0-9]{2}:[0-9]{2}:[0-9]{2}(\\.[0-9]+)?";
    const std::string dateTime = date + "[ Tt]" + time;
    std::vector<TokenRule> rules;
    const auto add = [&](const char* name, const std::string& pattern) {
        rules.push_back({name, std::regex(pattern, std::regex::optimize)});
    };
    add("BOOLEAN", "true|false");
    add("FLOAT", integer + "(" + exponent + "|" + fraction + "(" + exponent + ")?)");
    add("INF", "[+-]?inf");
    add("NAN", "[+-]?nan");
    add("DEC_INT", integer);
    add("HEX_INT", "0x[0-9A-Fa-f](_?[0-9A-Fa-f])*");
    add("OCT_INT", "0o[0-7](_?[0-7])*");
    add("BIN_INT", "0b[01](_?[01])*");
    add("OFFSET_DATE_TIME", dateTime + "(Z|[+-][0-9]{2}:[0-9]{2})");
    add("LOCAL_DATE_TIME", dateTime);
    add("LOCAL_DATE", date);
    add("LOCAL_TIME", time);
    add("BARE_KEY", "[A-Za-z0-9_-]+");
    return rules;
}

// The first rule that the whole text fits; none is empty.
std::string ruleOf(const std::string& text, const std::vector<TokenRule>& rules)
{
    for (const TokenRule& rule : rules)
    {
        if (std::regex_match(text, rule.pattern))
        {
            return rule.name;
        }
    }
    return "";
}

// The beginnings of an example with one character of ASCII behind them, also with one that
// only a key goes on with behind that, and the example with one character replaced.
void addVariants(const std::string& example, std::set<std::string>& variants)
{
    for (std::size_t position = 0; position <= example.size(); ++position)
    {
        for (char character = '!'; character <= '~'; ++character)
        {
            const std::string beginning = example.substr(0, position) + character;
            variants.insert(beginning);
            variants.insert(beginning + 'x');
            if (position < example.size())
            {
                variants.insert(beginning + example.substr(position + 1));
            }
        }
    }
}

} // namespace

TEST(Language, makesATextThatFitsARuleAsAWholeOneToken)
{
    std::set<std::string> texts;
    for (const char* const example : {"true_",
                                      "false-",
                                      "inf_",
                                      "nan-",
                                      "-inf",
                                      "+nan",
                                      "0xdead_beef",
                                      "0o7_5",
                                      "0b1_01",
                                      "1_000",
                                      "12345",
                                      "-12345",
                                      "+12_34_5",
                                      "12_3_45",
                                      "-12_34",
                                      "+1_0",
                                      "0_0",
                                      "1.0_5",
                                      "-0.5e-1_0",
                                      "1_2e3_4",
                                      "+1e-0_1",
                                      "9E+10",
                                      "0E-10",
                                      "1979-05-27T07x",
                                      "1979-05-27T07:32:00.98Z",
                                      "1979-05-27 07:32:00-08:45",
                                      "1979-05-27t07:32:00.1+23:59",
                                      "0987-65-43",
                                      "23:59:01.25",
                                      "-_a-"})
    {
        addVariants(example, texts);
    }
    const std::vector<TokenRule> rules = tokenRules();
    std::set<std::string> tried;
    std::size_t number = 0;
    for (const std::string& text : texts)
    {
        if (++number % VORN_TEST_STEP != 0)
        {
            continue;
        }
        SCOPED_TRACE(testing::PrintToString(text));
        const std::string rule = ruleOf(text, rules);
        const Tokens tokens = typesAndTexts(lex(text));
        if (!rule.empty())
        {
            EXPECT_EQ(tokens, (Tokens{{rule, text}}));
            tried.insert(rule);
        }
        else if (text.size() > 1) // a single character may be a token of its own
        {
            EXPECT_TRUE(tokens.empty() || tokens[0].second != text);
        }
    }
    // A shortened run does not meet the rare ones.
    if (VORN_TEST_STEP == 1)
    {
        EXPECT_EQ(tried.size(), rules.size());
    }
}
