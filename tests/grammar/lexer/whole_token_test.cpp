// Well-formed tokens need no rule: the lexer takes them whole.
#include <gtest/gtest.h>

#include "grammar/lexer/whole_token.h"

#include <string>

#include "support/lexer.h"

TEST(ScannedTokens, areTakenWhole)
{
    const std::string everyToken = "a = [ 1, 0x1F, 0o7, 0b1, 1.5, inf, nan, true ] # c\r\n"
                                   "'b'.\"c\" = { d = '''e''', f = \"\"\"g\n\"\"\" }\n"
                                   "h = 1979-05-27\t\ni = 07:32:00\nj = 1979-05-27T07:32:00\n"
                                   "k = 1979-05-27 07:32:00Z\nl = \"\xC3\xA4\"\n";
    const test::Lexer lexer(everyToken);
    while (lexer.offset() < everyToken.size())
    {
        ASSERT_TRUE(vorn::parsers::toml::takeWholeToken(lexer.get()->pLexer)) << lexer.offset();
    }
}
