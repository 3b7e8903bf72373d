// The trees of lines, headers and keys.
#include <gtest/gtest.h>

#include "support/parsing.h"

using namespace test;

namespace
{

// A document of one header, with and without a line break after it.
void expectHeaders(const std::vector<AcceptedDocument>& headers)
{
    for (const AcceptedDocument& header : headers)
    {
        expectParsed({{header.text, header.trees + " EOF"},
                      {header.text + "\n", header.trees + R"( NL "\n" EOF)"}});
    }
}

// The key of `key = true`.
void expectKeys(const std::vector<AcceptedDocument>& keys)
{
    for (const AcceptedDocument& key : keys)
    {
        const std::string trees = "KEYVAL(" + key.trees + R"(, VAL_BOOL(BOOLEAN "true")) EOF)";
        expectParsed({{key.text + "=true", trees}, {key.text + " \t=\ttrue", trees}});
    }
}

} // namespace

TEST(ParserDocument, linesWithoutContentAddOnlyTheirLineBreaks)
{
    expectParsed({
        {"", "EOF"},
        {"   ", "EOF"},
        {"\t", "EOF"},
        {"# only a comment", "EOF"},
        {"  # only a comment", "EOF"},
        {"\n", R"(NL "\n" EOF)"},
        {"\r\n", R"(NL "\r\n" EOF)"},
        {"\n\n\n", R"(NL "\n\n\n" EOF)"},
        {"\r\n\n\r\n", R"(NL "\r\n\n\r\n" EOF)"},
        {"   \n", R"(NL "\n" EOF)"},
        {"# comment\n", R"(NL "\n" EOF)"},
        {"# comment\r\n", R"(NL "\n" EOF)"},
        {"\t # comment\n  ", R"(NL "\n" EOF)"},
        {"\n \n", R"(NL "\n" NL "\n" EOF)"},
        {"\n# comment\n\n", R"(NL "\n" NL "\n\n" EOF)"},
        {"# one\n# two\n\t\n", R"(NL "\n" NL "\n" NL "\n" EOF)"},
    });
}

TEST(ParserDocument, eachLineWithContentAddsItsTree)
{
    const std::string a = R"(KEYVAL(KEY_BARE(BARE_KEY "a"), VAL_INTEGER(DEC_INT "1")))";
    const std::string b = R"(KEYVAL(KEY_BARE(BARE_KEY "b"), VAL_INTEGER(DEC_INT "2")))";
    const std::string t = R"(HEADER_TABLE(KEY_BARE(BARE_KEY "t")))";
    const std::string u = R"(HEADER_ARRAY_TABLE(KEY_BARE(BARE_KEY "u")))";
    expectParsed({
        {"a = 1", a + " EOF"},
        {"a=1", a + " EOF"},
        {" \ta\t = \t1 \t", a + " EOF"},
        {"a = 1 # comment", a + " EOF"},
        {"a = 1#comment", a + " EOF"},
        {"a = 1\n", a + R"( NL "\n" EOF)"},
        {"a = 1\r\n", a + R"( NL "\r\n" EOF)"},
        {"a = 1 # comment\r\n", a + R"( NL "\n" EOF)"},
        {"\na = 1", R"(NL "\n" )" + a + " EOF"},
        {"a = 1\n\n\nb = 2\n", a + R"( NL "\n\n\n" )" + b + R"( NL "\n" EOF)"},
        {"a = 1\n# comment\nb = 2", a + R"( NL "\n" NL "\n" )" + b + " EOF"},
        {"a = 1\n  \n\nb = 2", a + R"( NL "\n" NL "\n\n" )" + b + " EOF"},
        {"[t]\na = 1\n[[u]]\nb = 2",
         t + R"( NL "\n" )" + a + R"( NL "\n" )" + u + R"( NL "\n" )" + b + " EOF"},
        {"[t] # comment\n \t[[u]]\t# comment\n", t + R"( NL "\n" )" + u + R"( NL "\n" EOF)"},
        {"a = 1\na = 1\n[t]\n[t]\n",
         a + R"( NL "\n" )" + a + R"( NL "\n" )" + t + R"( NL "\n" )" + t + R"( NL "\n" EOF)"},
    });
}

TEST(ParserDocument, headersHoldTheirKey)
{
    const std::string ab = R"(KEY_DOTTED(KEY_BARE(BARE_KEY "a"), KEY_BARE(BARE_KEY "b")))";
    expectHeaders({
        {"[server]", R"(HEADER_TABLE(KEY_BARE(BARE_KEY "server")))"},
        {"[ \tserver\t ]", R"(HEADER_TABLE(KEY_BARE(BARE_KEY "server")))"},
        {R"(["server"])", R"(HEADER_TABLE(KEY_QUOTED(BASIC_STRING "\"server\"")))"},
        {"['server']", R"(HEADER_TABLE(KEY_QUOTED(LITERAL_STRING "'server'")))"},
        {"[a.b]", "HEADER_TABLE(" + ab + ")"},
        {"[ a . b ]", "HEADER_TABLE(" + ab + ")"},
        {"[[items]]", R"(HEADER_ARRAY_TABLE(KEY_BARE(BARE_KEY "items")))"},
        {"[ [items] ]", R"(HEADER_ARRAY_TABLE(KEY_BARE(BARE_KEY "items")))"},
        {"[\t[ items\t]\t]", R"(HEADER_ARRAY_TABLE(KEY_BARE(BARE_KEY "items")))"},
        {R"([["items"]])", R"(HEADER_ARRAY_TABLE(KEY_QUOTED(BASIC_STRING "\"items\"")))"},
        {"[['items']]", R"(HEADER_ARRAY_TABLE(KEY_QUOTED(LITERAL_STRING "'items'")))"},
        {"[[a.b]]", "HEADER_ARRAY_TABLE(" + ab + ")"},
    });
}

TEST(ParserDocument, bareKeysAreTextsThatAreNoValues)
{
    for (const std::string key : {"a", "key", "Key-1_x", "-", "_", "1a", "00", "true_", "truex",
                                  "infinity", "nanx", "1979-", "1979-05-27T", "0x", "e"})
    {
        expectKeys({{key, "KEY_BARE(BARE_KEY \"" + key + "\")"}});
    }
}

TEST(ParserDocument, quotedKeysKeepTheirQuotesAndEscapes)
{
    expectKeys({
        {R"("a")", R"(KEY_QUOTED(BASIC_STRING "\"a\""))"},
        {R"("")", R"(KEY_QUOTED(BASIC_STRING "\"\""))"},
        {R"("a b.c")", R"(KEY_QUOTED(BASIC_STRING "\"a b.c\""))"},
        {R"("a\"\u00e9")", R"(KEY_QUOTED(BASIC_STRING "\"a\\\"\\u00e9\""))"},
        {R"("true")", R"(KEY_QUOTED(BASIC_STRING "\"true\""))"},
        {"'a'", R"(KEY_QUOTED(LITERAL_STRING "'a'"))"},
        {"''", R"(KEY_QUOTED(LITERAL_STRING "''"))"},
        {R"('a\"b')", R"(KEY_QUOTED(LITERAL_STRING "'a\\\"b'"))"},
        {"'\xc3\xa9'", "KEY_QUOTED(LITERAL_STRING \"'\xc3\xa9'\")"},
    });
}

TEST(ParserDocument, dottedKeysHoldTheirPartsInOrder)
{
    expectKeys({
        {"a.b", R"(KEY_DOTTED(KEY_BARE(BARE_KEY "a"), KEY_BARE(BARE_KEY "b")))"},
        {"a.b.c", R"(KEY_DOTTED(KEY_BARE(BARE_KEY "a"), KEY_BARE(BARE_KEY "b"), )"
                  R"(KEY_BARE(BARE_KEY "c")))"},
        {"a \t.\t b", R"(KEY_DOTTED(KEY_BARE(BARE_KEY "a"), KEY_BARE(BARE_KEY "b")))"},
        {R"("a".'b')", R"(KEY_DOTTED(KEY_QUOTED(BASIC_STRING "\"a\""), )"
                       R"(KEY_QUOTED(LITERAL_STRING "'b'")))"},
        {"a.'b'.c", R"(KEY_DOTTED(KEY_BARE(BARE_KEY "a"), KEY_QUOTED(LITERAL_STRING "'b'"), )"
                    R"(KEY_BARE(BARE_KEY "c")))"},
        {R"('a'.b."c")", R"(KEY_DOTTED(KEY_QUOTED(LITERAL_STRING "'a'"), )"
                         R"(KEY_BARE(BARE_KEY "b"), KEY_QUOTED(BASIC_STRING "\"c\"")))"},
    });
}
