// Characters beyond ASCII, and bytes that are none.
#include "token_table.h"

using namespace std::string_literals;

namespace test
{

TokenTables characterTables()
{
    return {
        {"Characters_afterAQuoteInAMultilineStringAreAllButItsQuote",
         each("ML_BASIC_STRING", {"\"\"\"a\"\x00\"\"\x00\"\"\""s, "\"\"\"a\"\n\"\"\n\"\"\"",
                                  "\"\"\"a\"\x7F\"\"\x7F\"\"\"", "\"\"\"a\"\u00E9\"\"\u00E9\"\"\"",
                                  "\"\"\"a\"\uFFFF\"\"\uFFFF\"\"\""}) +
             each("ML_LITERAL_STRING",
                  {"'''a'\x00''\x00'''"s, "'''a'\n''\n'''", "'''a'\x7F''\x7F'''",
                   "'''a'\u00E9''\u00E9'''", "'''a'\uFFFF''\uFFFF'''"})},
        {"Characters_outsideStringsAreAnErrorEach",
         {
             {{"no token 1:0", "\u00E9"}},
             {{"no token 1:0", "\xC2\x80"},
              {"no token 1:1", "\uFFFF"},
              {"no token 1:2", "\U00010000"}},
             {{"no token 1:0", "\u043A"},
              {"no token 1:1", "\u043B"},
              {"no token 1:2", "\u044E"},
              {"no token 1:3", "\u0447"},
              space,
              equals,
              space,
              {"DEC_INT", "1"}},
             {{"BARE_KEY", "na"}, {"no token 1:2", "\u00EF"}, {"BARE_KEY", "ve"}},
             {{"DEC_INT", "1"}, {"no token 1:1", "\u0661"}},
             {{"LOCAL_DATE", "1979-05-27"}, {"no token 1:10", "\u00A0"}},
             {{"BARE_KEY", "a"},
              {"no token 1:1", "\xC2\x85"},
              {"BARE_KEY", "b"},
              {"no token 1:3", "\u2028"},
              {"BARE_KEY", "c"}},
         }},
        {"Characters_beyondTheClassesBreakStringsAndComments",
         {
             {{"mismatched character 1:2", "\"a\U0001F600b"}, {"BARE_KEY", "c"}},
             {{"mismatched character 1:2", "\"a\U00010000b"}, {"BARE_KEY", "c"}},
             {{"mismatched character 1:2", "'a\U0001F600b"}, {"BARE_KEY", "c"}},
             {{"mismatched character 1:4", "\"\"\"a\U0001F600b"}, {"BARE_KEY", "c"}},
             {{"mismatched character 1:4", "'''a\U0001F600b"}, {"BARE_KEY", "c"}},
             {{"mismatched character 1:5", "\"\"\"a\"\U0001F600b"}, {"BARE_KEY", "c"}},
             {{"mismatched character 1:6", "'''a''\U0001F600b"}, {"BARE_KEY", "c"}},
             {{"rare COMMENT", "# a"},
              {"no token 1:3", "\U0001F600"},
              {"BARE_KEY", "b"},
              lineFeed,
              {"BARE_KEY", "c"}},
             {{"no token 1:1", R"(")"},
              {"no token 1:1", "\U0001F600"},
              {"BARE_KEY", "b"},
              {"no token 1:4", R"(")"}},
             {{"no token 1:1", "'"}, {"no token 1:1", "\U0001F600"}, {"BARE_KEY", "b"}},
             {{"BASIC_STRING", R"("")"}, {"no token 1:2", "\U0001F600"}},
             {{"no escape 35 1:2", "\"\\\U0001F600"}, {"BARE_KEY", "b"}},
             {{"no escape 34 1:3", R"("""\)"}, {"no token 1:4", "\U0001F600"}},
         }},
        {"Characters_ofAByteOrderMarkCountOnlyElsewhereThanAtTheStart",
         each("unread", {"\uFEFF"}) + each("BASIC_STRING", {"\"\uFEFF\""}) +
             Rows{
                 {{"unread", "\uFEFF"}, {"BARE_KEY", "a"}, space, equals, space, {"DEC_INT", "1"}},
                 {{"unread", "\uFEFF"}, {"no token 1:0", "@"}},
                 {{"unread", "\uFEFF"}, {"no token 1:0", "\uFEFF"}, {"BARE_KEY", "a"}},
                 {{"BARE_KEY", "a"}, {"no token 1:1", "\uFEFF"}},
                 {space, {"no token 1:1", "\uFEFF"}, {"BARE_KEY", "a"}},
             }},
        {"Bytes_ofValueZeroAreCharacters",
         each("BASIC_STRING", {"\"\x00\""s, "\"a\x00"
                                            "b\""s}) +
             each("LITERAL_STRING", {"'\x00'"s, "'a\x00"
                                                "b'"s}) +
             each("ML_BASIC_STRING", {"\"\"\"\x00"
                                      "a\"\x00\"\"\""s}) +
             each("ML_LITERAL_STRING", {"'''\x00"
                                        "a'\x00'''"s}) +
             Rows{
                 {{"COMMENT", "# a\x00"
                              "b"s},
                  lineFeed,
                  {"BARE_KEY", "c"}},
                 {{"no token 1:0", "\x00"s}, {"BARE_KEY", "a"}, {"no token 1:2", "\x00"s}},
                 {{"no escape 35 1:2", "\"\\\x00"s}, {"BARE_KEY", "a"}},
             }},
        {"Bytes_ofACharacterCutOffAtTheEndAreNoCharacter",
         each("unread", {"\xC3"}) +
             Rows{
                 {{"BARE_KEY", "a"}, {"unread", "\xC3"}},
                 {{"BARE_KEY", "a"}, {"unread", "\xE2\x82"}},
                 {{"BARE_KEY", "a"}, {"unread", "\xF0\x9F\x98"}},
                 {{"rare COMMENT", "# a"}, {"unread", "\xF0\x9F"}},
                 {{"mismatched set 1:2", "1.\xC3"}},
                 {{"mismatched character 1:2", "\"a\xC3"}},
                 {{"mismatched character 1:4", "'''a\xE2\x82"}},
                 {{"no escape 35 1:2", "\"\\\xC3"}},
                 {{"no token 1:0", "@"}, {"unread", "\xC3"}},
             }},
        {"Bytes_ofACharacterCutOffTakeThoseAfterThemIn",
         {
             {{"mismatched character 1:3", "\"a\xC3\""}},
             {{"rare BASIC_STRING", "\"a\xC3\" b\""}},
             {{"rare BASIC_STRING", "\"a\xE2\x82\" b\""}},
             {{"no token 1:0", "\xC3"
                               "a"},
              {"BARE_KEY", "b"}},
             {{"rare COMMENT", "# a\xC3\nb"}, lineFeed, {"BARE_KEY", "c"}},
         }},
        {"Bytes_aloneOfThoseAfterTheFirstAreCharacters",
         {
             {{"no token 1:0", "\x80"}},
             {{"rare BASIC_STRING", "\"\x80\xBF\""}},
             {{"BARE_KEY", "a"}, {"no token 1:1", "\xBF"}, {"BARE_KEY", "z"}},
         }},
        {"Bytes_ofAFormTooLongAreTheCharacter",
         {
             {{"BARE_KEY", "a"}, {"rare NL", "\xC0\x8A"}, {"BARE_KEY", "b"}},
             {{"rare BARE_KEY", "\xC1\x81\xE0\x81\x82"}},
             {{"malformed BARE_KEY", "key\xC1\xA1"}},
             {{"malformed DEC_INT", "1\xC0\xB0"}, comma},
             {{"malformed NL", "\n\xC0\x8A"}, {"BARE_KEY", "a"}},
             {{"malformed mismatched character 1:3", "\"\"\xC0\xA2"}},
             {{"LITERAL_STRING", "'a'"}, {"no token 1:3", "\u00E4"}},
             {{"rare COMMENT", "#"}, {"no token 1:1", "\U0001F600"}},
             {{"rare COMMENT", "#"}, {"unread", "\xC3"}},
         }},
        {"Bytes_thatReadAsTheEndOfTheInputEndIt",
         each("unread", {"\xC1?a"}) +
             Rows{
                 {{"BARE_KEY", "a"}, {"unread", "\xC1?b"}},
                 {{"DEC_INT", "1"}, space, {"unread", "\xC1?2"}},
                 {{"rare COMMENT", "# a"}, {"unread", "\xC1?\nb"}},
                 {{"mismatched character 1:3", "\"ab\xC1?c"},
                  {"BARE_KEY", "d"},
                  {"no token 1:7", R"(")"}},
                 {{"no token 1:1", R"(")"}, {"unread", "\xC1?a"}},
                 {{"mismatched character 1:5", "\"\"\"a\"\xC1?b"}, {"BARE_KEY", "c"}},
             }},
    };
}

} // namespace test
