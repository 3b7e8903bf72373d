// Strings between three quotes.
#include "token_table.h"

namespace test
{

TokenTables multilineStringTables()
{
    return {
        {"MultilineBasicStrings_areOneTokenWithTheirQuotes",
         each("ML_BASIC_STRING",
              {R"("""""")", R"("""it's '''quoted''' # here""")", "\"\"\"\n\"\"\"",
               "\"\"\"\r\n\"\"\"", "\"\"\"\none\ntwo\r\n\n\nthree\"\"\"", "\"\"\"\ra\rb\r\"\"\"",
               "\"\"\"a\t\x01\x7F\"\"\""})},
        {"MultilineBasicStrings_holdUpToTwoQuotesInARow",
         each("ML_BASIC_STRING",
              {R"("""a"b""")", R"("""a""b""")", R"("""a"b""c"d""e""")", R"(""""a""")",
               R"("""""a""")", "\"\"\"a\"\n\"\"b\"\"\"", R"("""a"\tb""\tc""")"})},
        {"MultilineBasicStrings_holdOneQuoteBeforeTheirEnd",
         each("ML_BASIC_STRING", {R"("""a"""")"}) +
             Rows{
                 {{"ML_BASIC_STRING", R"("""a"""")"}, {"no token 1:9", R"(")"}},
                 {{"ML_BASIC_STRING", R"("""a"""")"}, {"BASIC_STRING", R"("")"}},
                 {{"ML_BASIC_STRING", R"("""a"""")"}, {"BASIC_STRING", R"("b")"}},
                 {{"ML_BASIC_STRING", R"("""a"""")"}, lineFeed},
                 {{"ML_BASIC_STRING", R"("""a""")"}, {"BARE_KEY", "b"}},
                 {{"ML_BASIC_STRING", R"("""a""")"}, space, {"COMMENT", "# b"}},
             }},
        {"MultilineBasicStrings_ofNothingButQuotesHaveOneAtMost",
         each("ML_BASIC_STRING", {R"(""""""")"}) +
             Rows{
                 {{"ML_BASIC_STRING", R"(""""""")"}, {"no token 1:8", R"(")"}},
                 {{"ML_BASIC_STRING", R"(""""""")"}, {"BASIC_STRING", R"("")"}},
                 {{"ML_BASIC_STRING", R"(""""""")"}, {"mismatched character 1:10", R"(""")"}},
                 {{"ML_BASIC_STRING", R"(""""""")"}, {"ML_BASIC_STRING", R"("""""")"}},
             }},
        {"MultilineBasicStrings_takeTheTenEscapes",
         each("ML_BASIC_STRING",
              {R"("""a\"b""")", R"("""a\'b""")", R"("""a\\b""")", R"("""a\bb""")", R"("""a\fb""")",
               R"("""a\nb""")", R"("""a\rb""")", R"("""a\tb""")", R"("""a\u00E9b""")",
               R"("""a\UFFFFFFFFb""")", R"("""\"""")", R"("""a\"""b""")", R"("""a""\"""")"})},
        {"MultilineBasicStrings_takeOneLineBreakAfterABackslash",
         each("ML_BASIC_STRING",
              {"\"\"\"one\\\ntwo\"\"\"", "\"\"\"one\\\r\n   two\"\"\"",
               "\"\"\"one\\\n\n\t two\"\"\"", "\"\"\"\\\n\"\"\"",
               "\"\"\"one\\\n\\\n\\\r\ntwo\"\"\"", "\"\"\"one\"\\\n\"\"\\\n\"\"\""})},
        {"MultilineBasicStrings_failAtAnUnknownEscape",
         {
             {{"no escape 34 1:4", R"("""a\)"},
              {"BARE_KEY", "qb"},
              {"mismatched character 1:10", R"(""")"}},
             {{"no escape 34 1:4", R"("""a\)"}, space, {"BARE_KEY", "b"}},
             {{"no escape 34 1:4", R"("""a\)"}, space, lineFeed, {"BARE_KEY", "b"}},
             {{"no escape 34 1:4", R"("""a\)"}, {"WS", "\t"}, lineFeed, {"BARE_KEY", "b"}},
             {{"no escape 34 1:3", R"("""\)"}},
             {{"no escape 34 1:5", R"("""a"\)"}, {"DEC_INT", "0"}},
             {{"no escape 34 2:1", "\"\"\"a\nb\\"}, {"BARE_KEY", "x"}},
             {{"no escape 34 1:3", R"("""\)"}, {"BARE_KEY", "a_"}},
             {{"no escape 34 1:3", R"("""\)"}, {"BARE_KEY", "B_"}},
             {{"no escape 34 1:3", R"("""\)"}, {"BARE_KEY", "e_"}},
             {{"no escape 34 1:3", R"("""\)"}, {"BARE_KEY", "N_"}},
             {{"no escape 34 1:3", R"("""\)"}, {"BARE_KEY", "v_"}},
             {{"no escape 34 1:3", R"("""\)"}, {"BARE_KEY", "x_"}},
             {{"no escape 34 1:3", R"("""\)"}, {"BARE_KEY", "z_"}},
             {{"no escape 34 1:3", R"("""\)"}, {"BARE_KEY", "0_"}},
             {{"no escape 34 1:3", R"("""\)"}, {"BARE_KEY", "-_"}},
         }},
        {"MultilineBasicStrings_failAtAnIncompleteEscape",
         {
             {{"mismatched character 1:5", "\"\"\"\\\rxy"}, {"BARE_KEY", "z"}},
             {{"mismatched character 1:5", "\"\"\"\\\r\r\n"}, {"BARE_KEY", "z"}},
             {{"mismatched character 1:5", "\"\"\"\\\r"}},
             {{"mismatched set 1:7", R"("""\u12"")"}, {"no token 1:10", R"(")"}},
             {{"mismatched set 1:7", R"("""\u12xy)"}, {"BARE_KEY", "z"}},
             {{"mismatched set 1:12", R"("""\U0123456xy)"}, {"BARE_KEY", "z"}},
         }},
        {"MultilineBasicStrings_failWithoutTheirEnd",
         {
             {{"mismatched character 1:3", R"(""")"}},
             {{"mismatched character 1:4", R"("""a)"}},
             {{"mismatched character 1:5", R"("""a")"}},
             {{"mismatched character 1:6", R"("""a"")"}},
             {{"mismatched character 3:0", "\"\"\"a\nb\n"}},
             {{"mismatched character 1:8", R"("""a\""")"}},
             {{"mismatched character 1:7", R"("""a''')"}},
         }},
        {"MultilineLiteralStrings_areOneTokenWithTheirQuotes",
         each("ML_LITERAL_STRING",
              {"''''''", R"('''a """quoted""" # here''')", "'''\n'''",
               "'''\none\ntwo\r\n\n\nthree'''", "'''\ra\rb\r'''", "'''a\t\x01\x7F'''"})},
        {"MultilineLiteralStrings_holdUpToTwoQuotesInARow",
         each("ML_LITERAL_STRING", {"'''a'b'''", "'''a''b'''", "'''a'b''c'd''e'''", "''''a'''",
                                    "'''''a'''", "'''a'\n''b'''"})},
        {"MultilineLiteralStrings_holdOneQuoteBeforeTheirEnd",
         each("ML_LITERAL_STRING", {"'''a''''", "'''''''"}) +
             Rows{
                 {{"ML_LITERAL_STRING", "'''a''''"}, {"no token 1:9", "'"}},
                 {{"ML_LITERAL_STRING", "'''a''''"}, {"LITERAL_STRING", "''"}},
                 {{"ML_LITERAL_STRING", "'''a'''"}, {"BARE_KEY", "b"}},
                 {{"ML_LITERAL_STRING", "'''''''"}, {"no token 1:8", "'"}},
                 {{"ML_LITERAL_STRING", "'''''''"}, {"LITERAL_STRING", "''"}},
                 {{"ML_LITERAL_STRING", "'''''''"}, {"mismatched character 1:10", "'''"}},
             }},
        {"MultilineLiteralStrings_takeABackslashAsItIs",
         each("ML_LITERAL_STRING", {R"('''a\''')", R"('''\q\u12 \''')", "'''one\\\n two'''",
                                    "'''one\\ \n two'''", R"('''a'\'''')"}) +
             Rows{
                 {{"ML_LITERAL_STRING", R"('''a\''')"}, {"BARE_KEY", "b"}},
             }},
        {"MultilineLiteralStrings_failWithoutTheirEnd",
         {
             {{"mismatched character 1:3", "'''"}},
             {{"mismatched character 1:4", "'''a"}},
             {{"mismatched character 1:5", "'''a'"}},
             {{"mismatched character 1:6", "'''a''"}},
             {{"mismatched character 3:0", "'''a\nb\n"}},
             {{"mismatched character 1:7", R"('''a""")"}},
         }},
    };
}

} // namespace test
