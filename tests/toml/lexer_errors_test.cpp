// Documents with errors of the lexer: what was matched is logged with the byte after it.
#include <gtest/gtest.h>

#include "support/event_lists.h"
#include "support/reading.h"
#include "support/rejected.h"

using namespace std::string_literals;
using namespace test;

namespace
{

// Values, in `a = VALUE` and a line break, of which no token is left.  If `lineBreakLost`
// then the errors took the line break, too.
void expectNoValue(const std::string& value, const Messages& failures, bool lineBreakLost)
{
    Messages messages = failures;
    messages.push_back(parserFailure(lineBreakLost ? "a=" : "a=\n"));
    messages.push_back(walkFailure());
    expectRejected(
        {{"a = " + value + "\n", brokenOff({{"beginKeyValue", "visitBareKey a"}}), messages}});
}

} // namespace

TEST(TomlLexerErrors, aCharacterThatStartsNoTokenIsDropped)
{
    for (const char character : "@$!%+&*():;<>?\\^`|~/\x01\x7f"s)
    {
        const std::string text(1, character);
        expectRejected({{text, document({}), {lexerFailure(text), syntaxErrors(1)}},
                        {"a = 1\n" + text + "b = 2\n",
                         document({pair(bare("a"), integer("1")), pair(bare("b"), integer("2"))}),
                         {lexerFailure(text), syntaxErrors(1)}}});
    }
}

TEST(TomlLexerErrors, ofACharacterOfManyBytesTheFirstByteIsLogged)
{
    for (const std::string character :
         {"\xc3\xa9", "\xe2\x82\xac", "\xef\xbf\xbf", "\xf0\x9f\x98\x80", "\xfb\xbf\xbf\xbf\xbf",
          "\xc5\x81", "\x80", "\xff"})
    {
        const std::string logged = character.substr(0, 1);
        // The runtime takes a byte FF for the start of six: the rest of the line goes too.
        const std::string padding = character == "\xff" ? "12345" : "";
        expectRejected({{character + padding + "\n" + "a = 1\n",
                         document({pair(bare("a"), integer("1"))}),
                         {lexerFailure(logged), syntaxErrors(1)}}});
    }
    expectRejected(
        {{"\xd0\xba\xd0\xbb\xd1\x8e\n",
          document({}),
          {lexerFailure("\xd0"), lexerFailure("\xd0"), lexerFailure("\xd1"), syntaxErrors(3)}}});
}

TEST(TomlLexerErrors, anyOtherBytesBringNothingDown)
{
    // Every byte alone, in a pair's place, in a comment and in a string; the result does
    // not matter here, only that the reading ends.
    for (int byte = 0; byte < 256; ++byte)
    {
        const std::string text(1, static_cast<char>(byte));
        for (const std::string& one : {text, "a = 1\n" + text + "\nb = 2\n", "# " + text + "\n",
                                       "a = \"" + text + "\"\n", "a = \"\"\"" + text})
        {
            SCOPED_TRACE(testing::PrintToString(one));
            const Reading reading = read(one);
            ASSERT_FALSE(reading.events.empty());
            EXPECT_EQ(reading.events.front(), "beginDocument");
            EXPECT_EQ(reading.accepted, reading.lines.empty());
        }
    }
}

TEST(TomlLexerErrors, charactersAboveTheBasicPlaneFitNoString)
{
    const std::string smile = "\xf0\x9f\x98\x80";
    expectNoValue('"' + smile + '"', {lexerFailure("\""), lexerFailure("\xf0"), lexerFailure("\"")},
                  false);
    expectNoValue("'" + smile + "'", {lexerFailure("'"), lexerFailure("\xf0"), lexerFailure("'")},
                  false);
    expectRejected({{"# " + smile + "\n", document({}), {lexerFailure("\xf0"), syntaxErrors(1)}}});
}

TEST(TomlLexerErrors, stringsThatDoNotEnd)
{
    expectNoValue("\"", {lexerFailure("\"")}, false);
    expectNoValue("'", {lexerFailure("'")}, false);
    expectNoValue("\"x\ny\"", {lexerFailure("\"x\ny"), lexerFailure("\"")}, false);
    expectNoValue("\"x", {lexerFailure("\"x\n")}, true);
    expectNoValue("'x", {lexerFailure("'x\n")}, true);
    expectNoValue("\"\"\"x", {lexerFailure("\"\"\"x\n")}, true);
    expectNoValue("'''x''", {lexerFailure("'''x''\n")}, true);
}

TEST(TomlLexerErrors, escapesOfTheWrongForm)
{
    expectNoValue(R"("\q")", {lexerFailure(R"("\q)"), lexerFailure("\"")}, false);
    expectNoValue(R"("\u12")", {lexerFailure("\"\\u12\"\n")}, true);
    expectNoValue(R"("\U1234567")", {lexerFailure("\"\\U1234567\"\n")}, true);
    // In a multi-line string the escape is chosen before its backslash is taken.
    expectNoValue("\"\"\"\\ ", {lexerFailure("\"\"\"\\")}, false);
    expectRejected({{"a = \"\"\"\\q\n",
                     brokenOff({{"beginKeyValue", "visitBareKey a"}}),
                     {lexerFailure("\"\"\"\\"), parserFailure("a=q\n"), walkFailure()}}});
}

TEST(TomlLexerErrors, aQuoteTooManyBehindAString)
{
    for (const std::string quotes : {"\"\"\"", "'''"})
    {
        const std::string quote = quotes.substr(0, 1);
        const std::string operation =
            quote == "'" ? "visitMultilineLiteralString" : "visitMultilineBasicString";
        for (const std::string& content : {quote, "x" + quote})
        {
            const std::string text = quotes + content + quotes;
            expectRejected({{"a = " + text + quote + "\n",
                             document({pair(bare("a"), scalar(operation, text))}),
                             {lexerFailure(quote), syntaxErrors(1)}}});
        }
    }
}

TEST(TomlLexerErrors, numbersAndTimesOfTheWrongForm)
{
    expectNoValue("+", {lexerFailure("+")}, false);
    expectNoValue("1.", {lexerFailure("1.\n")}, true);
    expectNoValue("07:32", {lexerFailure("07:32\n")}, true);
    expectNoValue("07:32:00.", {lexerFailure("07:32:00.\n")}, true);
}

TEST(TomlLexerErrors, aDateAndOneBlankCommitToADateTime)
{
    const Events noValue = {"beginKeyValue", "visitBareKey a"};
    expectRejected({
        {"a = 1979-05-27 # birthday\n",
         brokenOff({noValue}),
         {lexerFailure("1"), parserFailure("a=979-05-27\n"), walkFailure()}},
        {"a = 2024-01-01 x\n",
         brokenOff({noValue}),
         {lexerFailure("2"), parserFailure("a=024-01-01x\n"), walkFailure()}},
        // Without its first digit the date is a key.
        {"2020-01-01 = 1\n",
         document({pair(bare("020-01-01"), integer("1"))}),
         {lexerFailure("2"), syntaxErrors(1)}},
    });
}

TEST(TomlLexerErrors, aCarriageReturnAloneIsNoLineBreak)
{
    expectRejected({
        {"a\r",
         document({}),
         {lexerFailure("\r"), parserFailure("a"), treeFailure(), syntaxErrors(3)}},
        {"a = 1\rb = 2\n", // the error takes the b as well
         document({}),
         {lexerFailure("\rb "), parserFailure("a=1=2\n"), treeFailure(), syntaxErrors(3)}},
    });
}

TEST(TomlLexerErrors, aNulByteEndsWhatIsLogged)
{
    expectRejected({
        {"a = 1\0\n"s,
         document({pair(bare("a"), integer("1"))}),
         {lexerFailure(""), syntaxErrors(1)}},
        {"a = \"x\0y\n"s,
         brokenOff({{"beginKeyValue", "visitBareKey a"}}),
         {lexerFailure("\"x"), parserFailure("a="), walkFailure()}},
    });
}
