// Punctuation, blanks, line breaks and comments.
#include "token_table.h"

using namespace std::string_literals;

namespace test
{
namespace
{

Rows punctuation()
{
    Rows rows;
    for (const std::string mark : {",", ".", "=", "[", "]", "{", "}"})
    {
        rows = rows + before({"", mark, " ", "5", "a", "\n", "\"", "@", "\xff"},
                             each("'" + mark + "'", {mark}));
    }
    return rows;
}

} // namespace

TokenTables markTables()
{
    return {
        {"Punctuation_hasATypeForEachCharacter",
         punctuation() +
             Rows{
                 {{"'['", "["}, {"'['", "["}, {"']'", "]"}, {"']'", "]"}, dot, dot, equals, equals},
                 {{"'{'", "{"}, comma, {"'}'", "}"}},
             }},
        {"Blanks_areDiscarded",
         each("WS", {" ", "\t", " \t \t\t  ", " \t \t  ", std::string(40, ' ')}) +
             Rows{
                 {{"BARE_KEY", "a"}, space, {"BARE_KEY", "b"}},
                 {{"WS", "\t"},
                  {"BARE_KEY", "a"},
                  {"WS", " \t"},
                  equals,
                  {"WS", "\t"},
                  {"DEC_INT", "1"},
                  space},
                 {space, lineFeed},
                 {{"WS", "\t"}, {"mismatched character 1:2", "\r"}},
                 {space, {"no token 1:1", "\x0B"}},
                 {space, {"no token 1:1", "\u00A0"}},
                 {{"WS", "  "}, {"COMMENT", "# c"}},
                 {{"WS", "  "}, {"BARE_KEY", "a"}},
             }},
        {"LineBreaks_areOneTokenForARun",
         each("NL", {"\n", "\r\n", "\n\n\n", "\r\n\r\n", "\r\n\n", "\n\r\n", "\n\n\r\n\r\n\n"}) +
             Rows{
                 {{"BARE_KEY", "a"}, {"NL", "\r\n\r\n\n"}, {"BARE_KEY", "b"}},
                 {lineFeed, {"BARE_KEY", "a"}, lineFeed},
             }},
        {"LineBreaks_areApartWithBlanksOrCommentsBetween",
         each("NL", {"\n\r\n\n\r\n"}) +
             Rows{
                 {lineFeed, space, lineFeed},
                 {lineFeed, {"WS", "\t"}},
                 {{"NL", "\r\n"}, {"WS", "\t"}, {"NL", "\r\n"}},
                 {lineFeed, {"COMMENT", "# a"}, {"NL", "\n\n"}, {"COMMENT", "#"}, lineFeed},
                 {lineFeed, {"COMMENT", "# c"}, lineFeed},
                 {lineFeed, {"BARE_KEY", "a"}},
                 {lineFeed, {"no token 2:0", "\x0B"}},
             }},
        // The character that is not the line feed goes with the failure, the one after it with the
        // recovery, and the breaks before the carriage return are lost.
        {"LineBreaks_failAtACarriageReturnAlone",
         {
             {{"mismatched character 1:1", "\r"}},
             {{"BARE_KEY", "a"}, {"mismatched character 1:2", "\r"}},
             {{"BARE_KEY", "a"}, {"mismatched character 1:2", "\rb"}},
             {{"BARE_KEY", "a"}, {"mismatched character 1:2", "\rbc"}, {"BARE_KEY", "d"}},
             {{"mismatched character 1:1", "\r\ra"}},
             {{"mismatched character 1:1", "\r\r\n"}},
             {{"mismatched character 1:1", "\r\r\r"}, lineFeed},
             {{"BARE_KEY", "a"}, {"mismatched character 2:1", "\n\rb "}, {"BARE_KEY", "c"}},
             {{"mismatched character 3:1", "\r\n\n\r"}},
             {{"mismatched character 1:1", "\ra"}},
             {{"mismatched character 1:1", "\r \n"}},
             {{"mismatched character 2:1", "\n\r"}},
             {{"mismatched character 2:1", "\n\ra"}},
             {{"mismatched character 2:1", "\r\n\r"}},
             {{"mismatched character 3:1", "\n\n\r\r\n"}},
             {{"mismatched character 3:1", "\r\n\r\n\r "}},
         }},
        {"Comments_areDiscarded", each("COMMENT", {"#", "##", "# only a comment", R"(# a = "b)",
                                                   "#\ta\x01\x7F\r b", "# a\rb = 1"}) +
                                      Rows{
                                          {{"BARE_KEY", "a"}, space, {"COMMENT", "# b # c"}},
                                          {{"DEC_INT", "1"}, {"COMMENT", "#2"}},
                                          {{"BARE_KEY", "key"},
                                           space,
                                           equals,
                                           space,
                                           {"BOOLEAN", "true"},
                                           space,
                                           {"COMMENT", "# c"},
                                           lineFeed},
                                      }},
        {"Comments_endBeforeTheLineFeed",
         each("COMMENT", {"# c"}) +
             Rows{
                 {{"COMMENT", "# note"}, lineFeed},
                 {{"COMMENT", "# note\r"}, lineFeed},
                 {{"COMMENT", "#"}, lineFeed, {"BARE_KEY", "a"}},
                 {{"COMMENT", "#"}, {"NL", "\n\n"}},
                 {{"COMMENT", "# a"}, lineFeed, {"COMMENT", "# b"}, lineFeed},
                 {{"COMMENT", "#"}, lineFeed},
                 {{"COMMENT", "# c"}, lineFeed, {"COMMENT", "# d"}, lineFeed},
                 {{"COMMENT", "# c\r"}, lineFeed},
                 {{"COMMENT", "# a\rb"}, lineFeed},
                 {{"COMMENT", R"(## # = ["')"}, lineFeed},
                 {{"COMMENT", "#\t\x00\x01\x7F\x0B"s}, lineFeed},
                 {{"COMMENT", "# \u00E9\u20AC\uFFFF"}, lineFeed},
                 {{"rare COMMENT", "# "}, {"no token 1:2", "\U0001F600"}},
                 {{"rare COMMENT", "# c "},
                  {"no token 1:4", "\U0001F600"},
                  space,
                  {"BARE_KEY", "d"},
                  lineFeed},
             }},
    };
}

} // namespace test
