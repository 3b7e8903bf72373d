// The numbers, states and descriptions that errors report of choices, in the sources that the
// antlr3 tool made.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "grammar/lexer/decisions.h"
#include "support/generated_file.h"

#include "support/lexer_trace.h"

using test::generatedFile;
using vorn::parsers::toml::Decision;
using vorn::parsers::toml::DecisionState;
using vorn::parsers::toml::tokensDescription;
namespace states = vorn::parsers::toml::states;

extern "C" pTomlLexer referenceTomlLexerNew(pANTLR3_INPUT_STREAM input);

namespace
{

// A rule's function: what stands between the tool's marks around it.
std::string functionOf(const std::string& rule, const std::string& source)
{
    const std::size_t begin = source.find("$ANTLR start " + rule + '\n');
    if (begin == std::string::npos)
    {
        ADD_FAILURE() << "no start of " << rule;
        return "";
    }
    const std::size_t end = source.find("$ANTLR end " + rule, begin);
    EXPECT_NE(end, std::string::npos) << "no end of " << rule;
    return source.substr(begin, end - begin);
}

// The numbers that the pattern's group matches, in order.
std::vector<int> allNumbersIn(const std::string& text, const std::string& pattern)
{
    std::vector<int> numbers;
    const std::regex number(pattern);
    for (std::sregex_iterator match(text.begin(), text.end(), number), end; match != end; ++match)
    {
        numbers.push_back(std::stoi((*match)[1]));
    }
    return numbers;
}

std::set<int> numbersIn(const std::string& text, const std::string& pattern)
{
    const std::vector<int> numbers = allNumbersIn(text, pattern);
    return {numbers.begin(), numbers.end()};
}

const std::string decision = "decisionNum\\s*= ([0-9]+);";

using RuleDecisions = std::map<std::string, std::set<int>>;

constexpr int number(Decision choice)
{
    return static_cast<int>(choice);
}

// The decisions that can fail, by the rule of a generated recogniser that each stands in.
RuleDecisions ruleDecisions(const char* file)
{
    const std::string source = generatedFile(file);
    const std::regex start("\\$ANTLR start (\\w+)");
    RuleDecisions found;
    for (std::sregex_iterator match(source.begin(), source.end(), start), end; match != end;
         ++match)
    {
        const std::string rule = (*match)[1];
        const std::set<int> decisions = numbersIn(functionOf(rule, source), decision);
        if (!decisions.empty())
        {
            found[rule] = decisions;
        }
    }
    return found;
}

// One of the tables of the choice among the tokens: a number for each state.
std::vector<int> table(const std::string& name)
{
    const std::string source = generatedFile("TomlLexer.c");
    const std::size_t begin = source.find(" dfa36_" + name + "[");
    EXPECT_NE(begin, std::string::npos) << "no table " << name;
    const std::size_t open = source.find('{', begin);
    return allNumbersIn(source.substr(open, source.find('}', open) - open), "(-?[0-9]+)");
}

// A state, by its name, and a text that fails in it when its line ends.
struct State
{
    DecisionState number;
    std::string text;
};

// All states of the choice among the tokens in which it can fail.
std::vector<State> failingStates()
{
    std::vector<State> all = {{states::start, "$"},
                              {states::afterQuotationMark, "\""},
                              {states::afterApostrophe, "'"},
                              {states::afterPlus, "+"},
                              {states::afterUnderscoreOfPlus, "+10_"},
                              {states::afterPointOfTime, "1979-05-27 07:32:00."}};
    const std::string time = "07:32:00";
    for (std::size_t index = 0; index < time.size(); ++index)
    {
        all.push_back({states::inTime.at(index), "1979-05-27 " + time.substr(0, index)});
    }
    return all;
}

// The state of the first error of the choice among the tokens that a lexer reports.
int reportedState(test::MakeLexer make, const std::string& text)
{
    const std::string trace = test::traceTokens(make, text);
    const std::vector<int> found = allNumbersIn(trace, "decision 36 state ([0-9]+)");
    return found.empty() ? -1 : found.front();
}

} // namespace

// The choice in ML_BASIC_STRING is never without an alternative: the loop around it ends before
// such a character.
TEST(DecisionNumbers, ofTheLexer)
{
    EXPECT_EQ(ruleDecisions("TomlLexer.c"), (RuleDecisions{{"BOOLEAN", {number(Decision::boolean)}},
                                                           {"ML_BASIC_STRING", {9}},
                                                           {"FLOAT", {number(Decision::floating)}},
                                                           {"DEC_INT", {number(Decision::decInt)}},
                                                           {"OFFSET", {number(Decision::offset)}},
                                                           {"ML_ESC", {number(Decision::mlEscape)}},
                                                           {"ESC", {number(Decision::escape)}}}));
}

TEST(DecisionNumbers, ofTheChoiceAmongTheTokens)
{
    const std::set<int> tokens = {number(Decision::tokens)};
    const std::string source = generatedFile("TomlLexer.c");
    const std::size_t rule = source.find("\nmTokens(pTomlLexer ctx)\n{");
    ASSERT_NE(rule, std::string::npos);
    EXPECT_EQ(numbersIn(source.substr(rule), "cdfa([0-9]+)\\.predict"), tokens);
    EXPECT_EQ(numbersIn(source, "\nANTLR3_CYCLIC_DFA cdfa36\\s*=\\s*\\{\\s*([0-9]+),"), tokens);
    const std::size_t special = source.find(" dfa36_sst(pTomlLexer ctx,");
    ASSERT_NE(special, std::string::npos);
    const std::size_t end = source.find("\n}\n", special);
    EXPECT_EQ(numbersIn(source.substr(special, end - special), decision), tokens);
}

TEST(DecisionNumbers, haveTheDescriptionOfTheChoiceAmongTheTokens)
{
    const std::string source = generatedFile("TomlLexer.c");
    const std::size_t choice = source.find("\nANTLR3_CYCLIC_DFA cdfa36");
    ASSERT_NE(choice, std::string::npos);
    const std::size_t begin = source.find('"', choice) + 1;
    EXPECT_EQ(source.substr(begin, source.find('"', begin) - begin), tokensDescription);
}

TEST(DecisionStates, ofTheLexersRules)
{
    const std::string source = generatedFile("TomlLexer.c");
    const std::string state = decision + "\\s*EXCEPTION->state\\s*= ([0-9]+);";
    const std::set<std::pair<int, int>> expected = {
        {number(Decision::boolean), states::start},
        {9, states::start},
        {number(Decision::floating), states::start},
        {number(Decision::decInt), states::start},
        {number(Decision::offset), states::start},
        {number(Decision::mlEscape), states::start},
        {number(Decision::mlEscape), states::afterBackslash},
        {number(Decision::escape), states::start}};
    std::set<std::pair<int, int>> found;
    const std::regex pattern(state);
    for (std::sregex_iterator match(source.begin(), source.end(), pattern), end; match != end;
         ++match)
    {
        found.emplace(std::stoi((*match)[1]), std::stoi((*match)[2]));
    }
    EXPECT_EQ(found, expected);
}

// A state fails where the tool's tables neither accept in it nor go on with any character;
// where code looks at the character, the state's number is that of the code.
TEST(DecisionStates, areAllInWhichTheToolsTablesFail)
{
    const std::vector<int> anyCharacter = table("eot");
    const std::vector<int> accepted = table("accept");
    const std::vector<int> code = table("special");
    ASSERT_EQ(anyCharacter.size(), 108U);
    ASSERT_EQ(accepted.size(), anyCharacter.size());
    ASSERT_EQ(code.size(), anyCharacter.size());
    std::multiset<int> failing;
    for (std::size_t state = 0; state < accepted.size(); ++state)
    {
        if (anyCharacter[state] < 0 && accepted[state] < 0)
        {
            failing.insert(code[state] < 0 ? static_cast<int>(state) : code[state]);
        }
    }
    std::multiset<int> named;
    for (const State& state : failingStates())
    {
        named.insert(static_cast<int>(state.number));
    }
    EXPECT_EQ(named, failing);
}

TEST(DecisionStates, areThoseThatTheToolsLexerReports)
{
    for (const State& state : failingStates())
    {
        const std::string text = state.text + "\n";
        const auto expected = static_cast<int>(state.number);
        EXPECT_EQ(reportedState(referenceTomlLexerNew, text), expected) << text;
        EXPECT_EQ(reportedState(TomlLexerNew, text), expected) << text;
    }
}

TEST(DecisionNumbers, ofTheTreeParser)
{
    const RuleDecisions found = ruleDecisions("TomlTree.c");
    const RuleDecisions expected = {{"expression", {3}},   {"key", {5}},
                                    {"simple_key", {6}},   {"value", {8}},
                                    {"string_value", {9}}, {"date_time_value", {10}}};
    for (const auto& [rule, decisions] : expected)
    {
        EXPECT_EQ(found.count(rule) != 0 ? found.at(rule) : std::set<int>{}, decisions) << rule;
    }
}
