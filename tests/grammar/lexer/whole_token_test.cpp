// Which tokens the lexer takes whole.
#include <gtest/gtest.h>

#include "grammar/lexer/whole_token.h"

#include <string>

#include "support/lexer.h"

using namespace test;

namespace
{

// Whether all of a text's tokens are, so that no rule is needed.
bool tookWhole(const std::string& text, void (*prepare)(pANTLR3_INPUT_STREAM) = nullptr)
{
    const Lexer lexer(text);
    if (prepare != nullptr)
    {
        prepare(lexer.input());
    }
    const pANTLR3_INT_STREAM stream = lexer.input()->istream;
    bool whole = true;
    while (whole && stream->_LA(stream, 1) != ANTLR3_CHARSTREAM_EOF)
    {
        whole = vorn::parsers::toml::takeWholeToken(lexer.get()->pLexer);
    }
    return whole;
}

const std::string everyToken = "a = [ 1, 0x1F, 0o7, 0b1, 1.5, inf, nan, true ] # c\r\n"
                               "'b'.\"c\" = { d = '''e''', f = \"\"\"g\n\"\"\" }\n"
                               "h = 1979-05-27\t\ni = 07:32:00\nj = 1979-05-27T07:32:00\n"
                               "k = 1979-05-27 07:32:00Z\nl = \"\xC3\xA4\"\n";

} // namespace

TEST(ScannedTokens, areTakenWhole)
{
    EXPECT_TRUE(tookWhole(everyToken));
}

TEST(ScannedTokens, thatTheScannerDoesNotRecogniseAreLeftToTheRules)
{
    for (const char* text : {"@", "\r", "\"a", "'a", "\"\"\"a", "'''a", "1.", "07:", "1979-05-27 x",
                             "#\xF0\x9F\x98\x80", "#\xC3"})
    {
        EXPECT_FALSE(tookWhole(text)) << testing::PrintToString(text);
    }
}

TEST(ScannedTokens, beforeAByteThatIsNotAsciiAreLeftToTheRules)
{
    EXPECT_FALSE(tookWhole("key\xC1\xA1"));
    EXPECT_FALSE(tookWhole("\"\"\xC0\xA2"));
    EXPECT_FALSE(tookWhole("'a'\xC3\xA4"));
}

TEST(ScannedTokens, ofStreamsThatAreNotPlainUtf8AreLeftToTheRules)
{
    EXPECT_FALSE(tookWhole(everyToken, [](pANTLR3_INPUT_STREAM input)
                           { input->setUcaseLA(input, ANTLR3_TRUE); }));
    EXPECT_FALSE(tookWhole(everyToken,
                           [](pANTLR3_INPUT_STREAM input) { input->SetNewLineChar(input, ';'); }));
}
