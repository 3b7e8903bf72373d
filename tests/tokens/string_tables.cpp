// Strings on one line.
#include "token_table.h"

namespace test
{
namespace
{

// The character goes with the recovery, and the rest is read anew.
Rows unknownEscapes()
{
    Rows rows;
    for (char letter = '\0'; letter < '\x7F'; ++letter)
    {
        if (std::string("\"'\\bfnrtuU\n").find(letter) == std::string::npos)
        {
            rows.push_back(
                {{"no escape 35 1:2", std::string("\"\\") + letter}, {"BARE_KEY", "key"}});
        }
    }
    return rows;
}

} // namespace

TokenTables stringTables()
{
    return {
        {"BasicStrings_areOneTokenWithTheirQuotes",
         each("BASIC_STRING", {R"("")", R"("a")", R"("plain text, with # and = and [brackets]")",
                               R"("'")", R"("'a'")", R"("it's")"})},
        {"BasicStrings_takeControlCharactersOtherThanALineFeed",
         each("BASIC_STRING", {"\"\ta\t\"", "\"\ra\r\"", "\"a\r\"", "\"\x7F\"", "\"a\x01\x1F\""})},
        {"BasicStrings_takeTheTenEscapes",
         each("BASIC_STRING", {R"("a\"b")", R"("a\'b")", R"("a\\b")", R"("a\bb")", R"("a\fb")",
                               R"("a\nb")", R"("a\rb")", R"("a\tb")", R"("a\u00E9b")",
                               R"("a\U0001F600b")", R"("\"")", R"("\\")"}) +
             each("BASIC_STRING", {R"("\"\'\\\b\f\n\r\t\u0041\U00000041")"})},
        {"BasicStrings_takeAnyFourOrEightHexadecimalDigits",
         each("BASIC_STRING",
              {R"("\uabcd")", R"("\uEF01")", R"("\u23456")", R"("\uD800")", R"("\uDFFF")",
               R"("\U789abcdefg")", R"("\UFFFFFFFF")", R"("\UffffFFFF")", R"("\U00110000")"})},
        {"BasicStrings_endAtTheNextQuote",
         {
             {{"BASIC_STRING", R"("")"}, {"BARE_KEY", "x"}},
             {{"BASIC_STRING", R"("")"}, lineFeed},
             {{"BASIC_STRING", R"("a")"}, {"BARE_KEY", "b"}},
             {{"BASIC_STRING", R"("a")"}, {"BASIC_STRING", R"("b")"}},
             {{"BASIC_STRING", R"("a")"}, {"LITERAL_STRING", "'b'"}},
             {{"BASIC_STRING", R"("a")"}, dot, {"DEC_INT", "1"}},
             {{"BASIC_STRING", R"("a")"}, space, {"COMMENT", "# b"}},
         }},
        {"BasicStrings_fitNoTokenIfALineFeedOrNothingFollowsTheirQuote",
         {
             {{"no token 1:1", R"(")"}},
             {{"no token 1:1", R"(")"}, lineFeed},
             {{"no token 1:1", R"(")"}, lineFeed, {"BARE_KEY", "a"}},
         }},
        {"BasicStrings_failAtALineFeed",
         {
             {{"mismatched character 1:3", "\"ab\n"}},
             {{"mismatched character 1:3", "\"ab\nc"}, {"BARE_KEY", "d"}, {"no token 2:3", R"(")"}},
             {{"mismatched character 1:4", "\"ab\r\nc"}, {"BARE_KEY", "d"}},
             {{"mismatched character 1:3", "\"ab\n\n"}, {"BARE_KEY", "cd"}},
             {{"mismatched character 1:3", "\"\\n\na"}, {"BARE_KEY", "b"}},
         }},
        {"BasicStrings_failAtTheEndOfTheInput",
         {
             {{"mismatched character 1:2", R"("a)"}},
             {{"BARE_KEY", "x"},
              space,
              equals,
              space,
              {"mismatched character 1:12", R"("a b # c)"}},
             {{"mismatched character 1:4", R"("a\")"}},
             {{"mismatched character 1:3", R"("a')"}},
         }},
        {"BasicStrings_failAtAnUnknownEscape",
         unknownEscapes() +
             Rows{
                 {{"no escape 35 1:3", R"("a\q)"}, {"BARE_KEY", "b"}, {"no token 1:6", R"(")"}},
                 {{"no escape 35 1:2", R"("\q)"}},
                 {{"no escape 35 1:2", R"("\q)"}, {"DEC_INT", "1"}, comma, space, {"DEC_INT", "2"}},
                 {{"no escape 35 1:2", R"("\)"}},
                 {{"no escape 35 1:2", "\"\\\n"}, {"BARE_KEY", "ab"}},
                 {{"no escape 35 1:2", "\"\\\r"}, lineFeed, {"BARE_KEY", "ab"}},
             }},
        {"BasicStrings_failAtTheFirstCharacterThatIsNoHexadecimalDigit",
         {
             {{"mismatched set 1:3", R"("\u")"}},
             {{"mismatched set 1:5", R"("\u12")"}},
             {{"mismatched set 1:6", R"("\u123")"}},
             {{"mismatched set 1:6", R"("\u123)"}},
             {{"mismatched set 1:5", R"("\u12g4)"}, comma},
             {{"mismatched set 1:6", R"("\u123G4)"}, {"DEC_INT", "5"}},
             {{"mismatched set 1:3", R"("\u/a)"}, {"no token 1:5", ":"}, {"BARE_KEY", "b"}},
             {{"mismatched set 1:3", R"("\U")"}},
             {{"mismatched set 1:10", R"("\U0001F60x1)"}, comma},
             {{"mismatched set 1:5", R"("\u12" )"}, {"BARE_KEY", "x"}},
         }},
        {"LiteralStrings_areOneTokenWithTheirQuotes",
         each("LITERAL_STRING", {"''", "'a'", "'plain text, with # and = and [brackets]'", R"('"')",
                                 R"('"a"')", R"('"""')", "'\ta\r'", "'\ra'", "'\x7F\x01'"})},
        {"LiteralStrings_takeABackslashAsItIs",
         each("LITERAL_STRING", {R"('C:\path\')", R"('\')", R"('\\')", R"('\q\u12')"}) +
             Rows{
                 {{"LITERAL_STRING", R"('a\')"}, {"BARE_KEY", "b"}},
             }},
        {"LiteralStrings_endAtTheNextQuote",
         {
             {{"LITERAL_STRING", "''"}, {"BARE_KEY", "x"}},
             {{"LITERAL_STRING", "''"}, lineFeed},
             {{"LITERAL_STRING", "'a'"}, {"LITERAL_STRING", "'b'"}},
             {{"LITERAL_STRING", "'a'"}, {"BASIC_STRING", R"("b")"}},
         }},
        {"LiteralStrings_failWithoutTheirClosingQuote",
         {
             {{"no token 1:1", "'"}},
             {{"no token 1:1", "'"}, lineFeed},
             {{"mismatched character 1:2", "'a"}},
             {{"mismatched character 1:3", R"('a")"}},
             {{"mismatched character 1:3", "'ab\n"}},
             {{"mismatched character 1:3", "'ab\nc"}, {"BARE_KEY", "d"}, {"no token 2:3", "'"}},
             {{"mismatched character 1:4", "'ab\r\nc"}, {"BARE_KEY", "d"}},
             {{"mismatched character 1:3", "'a\\\nb"}, {"BARE_KEY", "c"}},
         }},
        {"Strings_areChosenByTheCharactersAfterTheFirstQuote",
         each("ML_BASIC_STRING", {R"("""a""")", R"("""'""")"}) +
             each("BASIC_STRING", {"\"\r\"", "\"\t\"", R"("'''")"}) +
             each("ML_LITERAL_STRING", {"'''a'''", R"('''"''')"}) +
             each("LITERAL_STRING", {"'\r'", "'\t'"}) +
             Rows{
                 {{"BASIC_STRING", R"("")"}, {"LITERAL_STRING", "''"}},
                 {{"LITERAL_STRING", "''"}, {"BASIC_STRING", R"("")"}},
                 {{"BASIC_STRING", R"("a'")"}, {"no token 1:5", "'"}},
                 {{"LITERAL_STRING", R"('a"')"}, {"no token 1:5", R"(")"}},
                 {{"ML_BASIC_STRING", R"("""'''""")"}, {"no token 1:10", "'"}},
                 {{"ML_LITERAL_STRING", R"('''"""''')"}, {"no token 1:10", R"(")"}},
             }},
    };
}

} // namespace test
