// The parser's rules on their own: errors that the choices of the rules above them keep
// from happening in a document, and alternatives for tokens that the lexer discards.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/parsing.h"
#include "support/recognition_errors.h"
#include "support/tree_text.h"

#include "support/parser_pipeline.h"

namespace
{

using namespace test;

// Runs one rule at the start of a text.
template <typename Result>
ParsedDocument runRule(Result (*TomlParser::*rule)(TomlParser*), const std::string& text)
{
    const ParserPipeline pipeline(text);
    ParsedDocument parsed;
    collectErrors(pipeline.recogniser(), parsed.errors);
    const Result result = (pipeline.parser()->*rule)(pipeline.parser());
    parsed.trees = treeText(result.tree);
    parsed.errorCount = pipeline.recogniser()->getNumberOfSyntaxErrors(pipeline.recogniser());
    return parsed;
}

template <typename Result>
void expectRuleError(Result (*TomlParser::*rule)(TomlParser*), const std::string& text,
                     const std::string& kind)
{
    SCOPED_TRACE(testing::PrintToString(text));
    const ParsedDocument parsed = runRule(rule, text);
    EXPECT_EQ(parsed.errors, ErrorKinds{kind});
    EXPECT_EQ(parsed.errorCount, 1u);
}

template <typename Result>
void expectRuleTree(Result (*TomlParser::*rule)(TomlParser*), const std::string& text,
                    const std::string& tree)
{
    SCOPED_TRACE(testing::PrintToString(text));
    const ParsedDocument parsed = runRule(rule, text);
    EXPECT_EQ(parsed.trees, tree);
    EXPECT_EQ(parsed.errors, ErrorKinds());
}

// A parser whose tokens include the one that the lexer would make of blanks or of a
// comment if it kept it: the token types are changed after the lexer is done.
std::string treesWithTypes(const std::string& text, const std::vector<ANTLR3_UINT32>& types)
{
    const ParserPipeline pipeline(text);
    const pANTLR3_TOKEN_STREAM tokens = pipeline.tokens()->tstream;
    tokens->_LT(tokens, 1); // fills the stream
    for (ANTLR3_UINT32 index = 0; index < types.size(); ++index)
    {
        const pANTLR3_COMMON_TOKEN token = tokens->get(tokens, index);
        token->setType(token, types[index]);
    }
    ErrorKinds errors;
    collectErrors(pipeline.recogniser(), errors);
    const std::string trees = treeText(pipeline.parser()->document(pipeline.parser()).tree);
    EXPECT_EQ(errors, ErrorKinds());
    return trees;
}

} // namespace

TEST(ParserRule, choicesWithoutAFittingAlternative)
{
    expectRuleError(&TomlParser::expression, "1", noAlternative);
    expectRuleError(&TomlParser::table, "a", noAlternative);
    expectRuleError(&TomlParser::table, "[1]", noAlternative);
    expectRuleError(&TomlParser::key, "1 = 1", noAlternative);
    expectRuleError(&TomlParser::key, "a b", noAlternative);
    expectRuleError(&TomlParser::simple_key, "1", noAlternative);
    expectRuleError(&TomlParser::value, "a", noAlternative);
    expectRuleError(&TomlParser::string, "1", noAlternative);
    expectRuleError(&TomlParser::date_time, "1", noAlternative);
    expectRuleError(&TomlParser::ws_comment_newline, "a", noAlternative);
}

TEST(ParserRule, setsWithoutTheToken)
{
    expectRuleError(&TomlParser::quoted_key, "a", "mismatched set");
    expectRuleError(&TomlParser::integer, "1.5", "mismatched set");
    expectRuleError(&TomlParser::floating_point, "1", "mismatched set");
}

TEST(ParserRule, singleTokensThatAreNotThere)
{
    expectRuleError(&TomlParser::bare_key, "1", notRepaired);
    expectRuleError(&TomlParser::basic_string, "1", notRepaired);
    expectRuleError(&TomlParser::ml_basic_string, "'a'", notRepaired);
    expectRuleError(&TomlParser::literal_string, "1", notRepaired);
    expectRuleError(&TomlParser::ml_literal_string, "'a'", notRepaired);
    expectRuleError(&TomlParser::bool_, "1", notRepaired);
    expectRuleError(&TomlParser::offset_date_time, "07:32:00", notRepaired);
    expectRuleError(&TomlParser::local_date_time, "07:32:00", notRepaired);
    expectRuleError(&TomlParser::local_date, "07:32:00", notRepaired);
    expectRuleError(&TomlParser::local_time, "1", notRepaired);
    expectRuleError(&TomlParser::standard_table, "1", notRepaired);
    expectRuleError(&TomlParser::array_table, "[1", notRepaired);
    expectRuleError(&TomlParser::array, "a", notRepaired);
    expectRuleError(&TomlParser::inline_table, "1", notRepaired);
}

TEST(ParserRule, aDottedKeyHasAtLeastOneDot)
{
    expectRuleError(&TomlParser::dotted_key, "a", "early exit");
    expectRuleTree(&TomlParser::dotted_key, "a.b",
                   R"(KEY_DOTTED(KEY_BARE(BARE_KEY "a"), KEY_BARE(BARE_KEY "b")))");
}

TEST(ParserRule, optionalRulesMatchNothing)
{
    expectRuleTree(&TomlParser::ws, "a", "");
    expectRuleTree(&TomlParser::comment, "a", "");
    expectRuleTree(&TomlParser::expression, "\n", "");
    expectRuleTree(&TomlParser::ws_comment_newline, "\n", R"(NL "\n")");
}

// The lexer keeps neither blanks nor comments, but the rules know them.
TEST(ParserRule, keptBlanksAndCommentsAreNodesOfTheirLine)
{
    const std::string a = R"(KEYVAL(KEY_BARE(BARE_KEY "a"), VAL_INTEGER(DEC_INT "1")))";
    EXPECT_EQ(treesWithTypes("w\n", {WS}), R"(WS "w" NL "\n" EOF)");
    EXPECT_EQ(treesWithTypes("c\n", {COMMENT}), R"(COMMENT "c" NL "\n" EOF)");
    EXPECT_EQ(treesWithTypes("w c\n", {WS, COMMENT}), R"(WS "w" COMMENT "c" NL "\n" EOF)");
    EXPECT_EQ(treesWithTypes("w a=1 w c\n", {WS, BARE_KEY, 71, DEC_INT, WS, COMMENT}),
              R"(WS "w" )" + a + R"( WS "w" COMMENT "c" NL "\n" EOF)");
    EXPECT_EQ(treesWithTypes("w [a] w c", {WS, 72, BARE_KEY, 73, WS, COMMENT}),
              R"(WS "w" HEADER_TABLE(KEY_BARE(BARE_KEY "a")) WS "w" COMMENT "c" EOF)");
}

TEST(ParserRule, keptBlanksAndCommentsAreNotPartOfArrays)
{
    const std::string array =
        R"(KEYVAL(KEY_BARE(BARE_KEY "a"), VAL_ARRAY(VAL_INTEGER(DEC_INT "1"), )"
        R"(VAL_INTEGER(DEC_INT "2"))) EOF)";
    EXPECT_EQ(treesWithTypes("a=[w 1 w,w 2 w]",
                             {BARE_KEY, 71, 72, WS, DEC_INT, WS, 69, WS, DEC_INT, WS, 73}),
              array);
    EXPECT_EQ(
        treesWithTypes("a=[c\n1 c\n,c\n2 c\n]", {BARE_KEY, 71, 72, COMMENT, NL, DEC_INT, COMMENT,
                                                 NL, 69, COMMENT, NL, DEC_INT, COMMENT, NL, 73}),
        array);
}
