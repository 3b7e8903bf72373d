#include "diagnosis/place.h"
#include "diagnosis/statements.h"
#include "diagnosis/token_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace toml = vorn::parsers::toml;
using toml::TokenType;
using namespace toml::diagnosis;

namespace
{

std::vector<DocumentToken> tokensOf(const std::string& text)
{
    TokenReader reader(text, 0, TokenReader::Errors::all);
    std::vector<DocumentToken> tokens;
    for (DocumentToken token = reader.next(); token.type != TokenType::endOfInput;
         token = reader.next())
    {
        tokens.push_back(token);
    }
    return tokens;
}

// The offsets at which statements start.
std::string startsIn(const std::string& text)
{
    const std::vector<DocumentToken> tokens = tokensOf(text);
    const Statements statements(tokens);
    std::string starts;
    for (std::size_t at = 0; at < tokens.size(); at = statements.nextAfter(at))
    {
        EXPECT_EQ(statements.beginOf(at), at);
        starts += std::to_string(tokens[at].begin) + ' ';
    }
    return starts;
}

Place placeAfter(const std::string& text)
{
    Follower follower;
    for (const DocumentToken& token : tokensOf(text))
    {
        follower.take(token);
    }
    return follower.place();
}

} // namespace

TEST(Statements, startAfterALineBreakOutsideOfBrackets)
{
    EXPECT_EQ(startsIn("a = 1\n[b]\n\nc = [\n1,\n2]\nd\n"), "0 6 11 23 ");
    EXPECT_EQ(startsIn("a = {\nb = 1\n}\nc = 1\n"), "0 14 ");
    EXPECT_EQ(startsIn("a = [\n= 1\n]\nb\n"), "0 12 ");
}

TEST(Statements, areNotSwallowedByABracketThatIsNeverClosed)
{
    EXPECT_EQ(startsIn("a = [1,\n2\nb = 1\n"), "0 10 ");
    EXPECT_EQ(startsIn("a = [1,\n[b]\nc\n"), "0 8 12 ");
    EXPECT_EQ(startsIn("a = {b = 1\nc = 2\n"), "0 11 ");
    EXPECT_EQ(startsIn("[a\n[b\nc = 1\n"), "0 3 6 ");
    EXPECT_EQ(startsIn("[a\n[b\n['c']\n]\n"), "0 3 6 12 ");
}

TEST(OpenBrackets, knowHowManyHaveBeenOpen)
{
    const std::vector<DocumentToken> tokens = tokensOf("a = [[1], {b = [2]}]\n");
    OpenBrackets brackets;
    for (std::size_t at = 0; at < tokens.size(); ++at)
    {
        EXPECT_EQ(brackets.isEmpty(), at < 3 || at == tokens.size() - 1);
        brackets.take(tokens, at);
    }
    EXPECT_EQ(brackets.depth(), 3U);
}

TEST(OpenBrackets, needTheStartOfTheNextStatement)
{
    EXPECT_FALSE(reachesStatement(tokensOf(""), 0));
    EXPECT_FALSE(reachesStatement(tokensOf("[[a.b."), 0));
    EXPECT_FALSE(reachesStatement(tokensOf("a"), 0));
    EXPECT_TRUE(reachesStatement(tokensOf("a.b ="), 0));
    EXPECT_TRUE(reachesStatement(tokensOf("[a]"), 0));
    EXPECT_TRUE(reachesStatement(tokensOf("1"), 0));
}

TEST(Follower, knowsWhatIsDue)
{
    EXPECT_EQ(placeAfter("").due, Due::statement);
    EXPECT_EQ(placeAfter("a").due, Due::equals);
    EXPECT_EQ(placeAfter("a.").due, Due::keyPart);
    EXPECT_EQ(placeAfter("a =").due, Due::value);
    EXPECT_EQ(placeAfter("a = 1").due, Due::lineEnd);
    EXPECT_EQ(placeAfter("[").due, Due::header);
    EXPECT_EQ(placeAfter("[a").due, Due::headerEnd);
    EXPECT_EQ(placeAfter("[[a]").due, Due::headerEnd);
    EXPECT_EQ(placeAfter("[[a]]").due, Due::lineEnd);
    EXPECT_EQ(placeAfter("a = [").due, Due::firstElement);
    EXPECT_EQ(placeAfter("a = [1").due, Due::arrayEnd);
    EXPECT_EQ(placeAfter("a = [1,").due, Due::element);
    EXPECT_EQ(placeAfter("a = {").due, Due::firstPair);
    EXPECT_EQ(placeAfter("a = {b = 1").due, Due::tableEnd);
    EXPECT_EQ(placeAfter("a = {b = 1,").due, Due::pair);
    EXPECT_EQ(placeAfter("a = {b").due, Due::equals);
    EXPECT_EQ(placeAfter("a = [{b = 1}").due, Due::arrayEnd);
}

TEST(Follower, goesOnAfterTokensThatDoNotFit)
{
    EXPECT_EQ(placeAfter("a = {b}").due, Due::lineEnd);
    EXPECT_EQ(placeAfter("a = [{b.}").due, Due::arrayEnd);
    EXPECT_EQ(placeAfter("a = {}").due, Due::lineEnd);
    EXPECT_EQ(placeAfter("a = [{}").due, Due::arrayEnd);
    EXPECT_EQ(placeAfter("a = {,").due, Due::pair);
    EXPECT_EQ(placeAfter("a = {b = ,").due, Due::pair);
    EXPECT_EQ(placeAfter("a = [,").due, Due::element);
    EXPECT_EQ(placeAfter("a = ,").due, Due::lineEnd);
}

TEST(Follower, knowsTheInnermostBracket)
{
    const Place inArray = placeAfter("a = {b = [1,\n");
    EXPECT_TRUE(inArray.isOpen);
    EXPECT_FALSE(inArray.isInTable);
    EXPECT_EQ(inArray.opening.type, TokenType::openBracket);
    EXPECT_EQ(inArray.opening.begin, 9U);
    EXPECT_EQ(inArray.opening.end, 10U);
    EXPECT_EQ(inArray.breaks, 1U);
    EXPECT_EQ(inArray.newline.begin, 12U);
    const Place inTable = placeAfter("a = {b = [1]");
    EXPECT_TRUE(inTable.isInTable);
    EXPECT_EQ(inTable.opening.begin, 4U);
    EXPECT_FALSE(placeAfter("a = {b = [1]}").isOpen);
    EXPECT_TRUE(placeAfter("[[a").isOfArray);
}
