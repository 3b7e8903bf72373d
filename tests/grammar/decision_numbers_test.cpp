// The numbers of the decisions that errors report, in the sources that the tool made.
#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <string>

#include "support/generated_file.h"

using test::generatedFile;

namespace
{

// A rule's function: what stands between the tool's marks around it.
std::string functionOf(const std::string& rule, const std::string& source)
{
    const std::regex start("\\$ANTLR start " + rule + "\\s");
    std::smatch match;
    if (!std::regex_search(source, match, start))
    {
        ADD_FAILURE() << "no start of " << rule;
        return "";
    }
    const auto begin = static_cast<std::size_t>(match.position());
    const std::size_t end = source.find("$ANTLR end " + rule, begin);
    EXPECT_NE(end, std::string::npos) << "no end of " << rule;
    return source.substr(begin, end - begin);
}

// The numbers that the pattern's group matches.
std::set<int> numbersIn(const std::string& text, const std::string& pattern)
{
    std::set<int> numbers;
    const std::regex number(pattern);
    for (std::sregex_iterator match(text.begin(), text.end(), number), end; match != end; ++match)
    {
        numbers.insert(std::stoi((*match)[1]));
    }
    return numbers;
}

const std::string decision = "decisionNum\\s*= ([0-9]+);";

struct Decision
{
    const char* rule;
    int number;
};

void expectDecisions(const char* file, const std::vector<Decision>& decisions)
{
    const std::string source = generatedFile(file);
    for (const Decision& expected : decisions)
    {
        EXPECT_EQ(numbersIn(functionOf(expected.rule, source), decision),
                  std::set<int>{expected.number})
            << expected.rule;
    }
}

} // namespace

TEST(DecisionNumbers, ofTheLexer)
{
    expectDecisions("TomlLexer.c", {{"ML_ESC", 34}, {"ESC", 35}});
}

TEST(DecisionNumbers, ofTheChoiceAmongTheTokens)
{
    const std::string source = generatedFile("TomlLexer.c");
    const std::size_t rule = source.find("\nmTokens(pTomlLexer ctx)\n{");
    ASSERT_NE(rule, std::string::npos);
    EXPECT_EQ(numbersIn(source.substr(rule), "cdfa([0-9]+)\\.predict"), std::set<int>{36});
    EXPECT_EQ(numbersIn(source, "\nANTLR3_CYCLIC_DFA cdfa36\\s*=\\s*\\{\\s*([0-9]+),"),
              std::set<int>{36});
    const std::size_t special = source.find(" dfa36_sst(pTomlLexer ctx,");
    ASSERT_NE(special, std::string::npos);
    const std::size_t end = source.find("\n}\n", special);
    EXPECT_EQ(numbersIn(source.substr(special, end - special), decision), std::set<int>{36});
}

TEST(DecisionNumbers, ofTheTreeParser)
{
    expectDecisions("TomlTree.c", {{"expression", 3},
                                   {"key", 5},
                                   {"simple_key", 6},
                                   {"value", 8},
                                   {"string_value", 9},
                                   {"date_time_value", 10}});
}
