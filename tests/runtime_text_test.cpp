// Texts of the runtime's objects.
#include <gtest/gtest.h>

#include <string>

#include "cleanup_guard.h"
#include "runtime_text.h"
#include "support/stderr_capture.h"

#include "grammar/recognisers.h"

using namespace std::string_literals;
using vorn::parsers::toml::CleanupGuard;
using vorn::parsers::toml::textOf;

namespace
{

struct TokensText
{
    std::string own;
    std::string runtimes;
};

// The text of all tokens of `text`, as the runtime makes it and as textOf() does.
TokensText textOfTokens(std::string text)
{
    const test::StderrCapture quiet;
    const pANTLR3_INPUT_STREAM input = antlr3StringStreamNew(
        reinterpret_cast<pANTLR3_UINT8>(text.data()), ANTLR3_ENC_UTF8,
        static_cast<ANTLR3_UINT32>(text.size()), reinterpret_cast<pANTLR3_UINT8>(text.data()));
    const CleanupGuard inputGuard([input] { input->close(input); });
    const pTomlLexer lexer = TomlLexerNew(input);
    const CleanupGuard lexerGuard([lexer] { lexer->free(lexer); });
    const pANTLR3_COMMON_TOKEN_STREAM tokens =
        antlr3CommonTokenStreamSourceNew(1025, lexer->pLexer->rec->state->tokSource);
    const CleanupGuard tokensGuard([tokens] { tokens->free(tokens); });

    const pANTLR3_TOKEN_STREAM stream = tokens->tstream;
    stream->_LT(stream, 1); // fills the stream
    const auto own = textOf(stream);
    // Without a token the runtime would read before the first one.
    const bool isEmpty = stream->istream->size(stream->istream) == 0;
    const char* const runtimes =
        isEmpty ? "" : vorn::parsers::toml::characters(stream->toString(stream));
    return {own != nullptr ? own.get() : "(null)", runtimes};
}

} // namespace

TEST(RuntimeText, ofTokensIsTheirTextsJoined)
{
    for (const auto& [text, expected] : std::vector<std::pair<std::string, std::string>>{
             {"", ""},
             {" \t # c", ""},
             {"\xef\xbb\xbf", ""},
             {"a", "a"},
             {" a = 1 # c\n", "a=1\n"},
             {"[ a . \"b c\" ]\r\n\r\n# c\n", "[a.\"b c\"]\r\n\r\n\n"},
             {"@a@ = @\n", "a=\n"},
             {"'\xc3\xa9\xe2\x82\xac'\n", "'\xc3\xa9\xe2\x82\xac'\n"},
             {"\"x\0y\" 'z'\n"s, "\"x'z'\n"},
             {"'\0' '\0\0' b\n"s, "''b\n"},
             {"'''\n\0'''\n"s, "'''\n\n"},
             {"1979-05-27T07:32:00Z,inf", "1979-05-27T07:32:00Z,inf"},
         })
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const TokensText joined = textOfTokens(text);
        EXPECT_EQ(joined.own, expected);
        EXPECT_EQ(joined.runtimes, expected);
    }
}

TEST(RuntimeText, ofManyTokensIsWhole)
{
    std::string text;
    std::string expected;
    for (int index = 0; index < 5000; ++index)
    {
        const std::string number = std::to_string(index);
        text += "key-" + number + " = '\xc3\xa9" + number + "' # " + number + "\n";
        expected += "key-" + number + "='\xc3\xa9" + number + "'\n";
    }
    const TokensText joined = textOfTokens(text);
    EXPECT_TRUE(joined.own == expected);
    EXPECT_TRUE(joined.runtimes == expected);
}

TEST(RuntimeText, charactersAreNeverNull)
{
    using vorn::parsers::toml::characters;
    EXPECT_STREQ(characters(nullptr), "");
    ANTLR3_STRING string = {};
    EXPECT_STREQ(characters(&string), "");
    std::string text = "a\xc3\xa9";
    string.chars = reinterpret_cast<pANTLR3_UINT8>(text.data());
    EXPECT_EQ(characters(&string), text.data());
}
