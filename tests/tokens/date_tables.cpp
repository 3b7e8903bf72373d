// Dates and date-times.
#include "token_table.h"

namespace test
{
namespace
{

const std::vector<std::string> offsetDateTimes = {
    "1979-05-27T07:32:00Z", "1979-05-27t07:32:00Z", "1979-05-27 07:32:00Z",
    "1979-05-27T00:32:00-07:00", "1979-05-27t00:32:00.999999+07:00", "1979-05-27 07:32:00.5Z",
    "1979-05-27 07:32:00.5-00:00", "1979-05-27T07:32:00+99:99",
    "1979-05-27T07:32:00.0123456789012345678901234Z", "0000-00-00T00:00:00Z",
    // Ranges are not checked.
    "1979-13-45T25:61:61Z", "9999-99-99T99:99:99+99:99"};

const std::vector<std::string> localDateTimes = {
    "1979-05-27T07:32:00", "1979-05-27t07:32:00", "1979-05-27 07:32:00",
    "1979-05-27T00:32:00.999999", "1979-05-27 00:32:00.9", "0000-00-00 00:00:00.0",
    "1979-05-27t00:32:00.0123456789012345678901234",
    "1979-05-27T07:32:00.123456789012345678901234567890",

    // Ranges are not checked.
    "2023-02-31 24:60:60", "1979-13-45T25:61:61"};

const std::vector<std::string> localDates = {"1979-05-27", "0000-00-00", "2024-02-29",
                                             "2023-02-31", "2024-13-45", "9999-99-99"};

const std::vector<std::string> brokenDateTimes = {
    // A blank after a date has started a date-time,
    "1979-05-27 ", "1979-05-27 \n", "1979-05-27 # note", "1979-05-27  07:32:00", "1979-05-27 x",
    "1979-05-27 \t", "1979-05-27 0", "1979-05-27 07", "1979-05-27 07 ", "1979-05-27 07-",
    "1979-05-27 07:", "1979-05-27 07:32:00.", "1979-05-27 07:32:00-7:00",
    // and so has an hour with a colon.
    "1979-05-27T07:", "1979-05-27t07:", "1979-05-27T07:x", "1979-05-27T07:3", "1979-05-27T07:32",
    "1979-05-27T07:32:", "1979-05-27T07:32:0", "1979-05-27T07:32:0x", "1979-05-27t07:32:00.",
    "1979-05-27T07:32:00.x", "1979-05-27T07:32:00.Z", "1979-05-27T07:32:00+",
    "1979-05-27T07:32:00-", "1979-05-27T07:32:00+x", "1979-05-27T07:32:00+0",
    "1979-05-27T07:32:00+07", "1979-05-27T07:32:00+0700",
    "1979-05-27T07:32:00+07:", "1979-05-27T07:32:00+07:0", "1979-05-27T07:32:00+07:0x",
    "1979-05-27T07:32:00.5+07:x0", "1979-05-27T07:320:00"};

// What is left of a date that has lost its first digit.
const Piece rest = {"BARE_KEY", "979-05-27"};
const Piece restWithHour = {"BARE_KEY", "979-05-27T07"};
const Piece colon = {"no token 1:13", ":"};

} // namespace

TokenTables dateTables()
{
    return {
        {"OffsetDateTimes_endInZOrASignedOffset",
         words("OFFSET_DATE_TIME", offsetDateTimes) +
             before({"x", "Z", "0", ":00", "+07:00"}, each("OFFSET_DATE_TIME", offsetDateTimes))},
        // The sign decides.
        {"OffsetDateTimes_failAtABrokenOffset",
         {
             {{"mismatched set 1:20", "1979-05-27T07:32:00+"}},
             {{"mismatched set 1:20", "1979-05-27T07:32:00-x "}, {"BARE_KEY", "y"}},
             {{"mismatched set 1:21", "1979-05-27T07:32:00+7"}},
             {{"mismatched character 1:22", "1979-05-27T07:32:00+07"}},
             {{"mismatched character 1:22", "1979-05-27T07:32:00+0100"}, comma},
             {{"mismatched character 1:22", "1979-05-27 07:32:00-01x "}, {"BARE_KEY", "y"}},
             {{"mismatched set 1:25", "1979-05-27T07:32:00.5+07:"}},
             {{"mismatched set 1:26", "1979-05-27T07:32:00.5+07:0x "}, {"BARE_KEY", "y"}},
         }},
        {"LocalDateTimes_haveNoOffset",
         words("LOCAL_DATE_TIME", localDateTimes) +
             before({" Z", "z", "x", "_1", ":00", "T"}, each("LOCAL_DATE_TIME", localDateTimes)) +
             before({"1"}, each("LOCAL_DATE_TIME", {"1979-05-27T07:32:00"}))},
        {"DateTimes_endWhereTheyCannotGoOn",
         {
             {{"LOCAL_DATE_TIME", "1979-05-27T07:32:00"}, {"BARE_KEY", "z"}},
             {{"LOCAL_DATE_TIME", "1979-05-27T07:32:00"}, {"BARE_KEY", "x"}},
             {{"LOCAL_DATE_TIME", "1979-05-27T07:32:00"}, {"DEC_INT", "0"}},
             {{"LOCAL_DATE_TIME", "1979-05-27T07:32:00"}, space, {"BARE_KEY", "Z"}},
             {{"LOCAL_DATE_TIME", "1979-05-27T07:32:00"}, space, {"COMMENT", "# note"}},
             {{"LOCAL_DATE_TIME", "1979-05-27T07:32:00.5"}, {"BARE_KEY", "z"}},
             {{"LOCAL_DATE_TIME", "1979-05-27T07:32:00.5"}, dot, {"DEC_INT", "5"}},
             {{"OFFSET_DATE_TIME", "1979-05-27T07:32:00Z"}, {"BARE_KEY", "x"}},
             {{"OFFSET_DATE_TIME", "1979-05-27T07:32:00+07:00"}, {"DEC_INT", "0"}},
         }},
        {"DateTimes_fitNoTokenAtACharacterOutOfPlace",
         {
             {{"no token 1:14", "1"}, restWithHour, colon},
             {{"no token 1:14", "1"}, restWithHour, colon, {"BARE_KEY", "x"}},
             {{"no token 1:16", "1"}, restWithHour, colon, {"DEC_INT", "32"}},
             {{"no token 1:17", "1"}, restWithHour, colon, {"mismatched set 1:17", "32:"}},
             {{"no token 1:18", "1"}, restWithHour, colon, {"mismatched set 1:18", "32:0"}},
             {{"no token 1:18", "1"}, rest, space, {"mismatched set 1:18", "07:32:0x,"}},
             {{"no token 1:20", "1"}, restWithHour, colon, {"mismatched character 1:19", "32:00."}},
             {{"no token 1:20", "1"},
              rest,
              space,
              {"early exit 1:20", "07:32:00.x"},
              space,
              {"BARE_KEY", "y"}},
         }},
        {"DateTimes_haveNoWayBackToTheDate", each("fails", brokenDateTimes)},
        {"LocalDates_areAloneOrBeforeAnythingButABlank",
         before({"", "\n", "\r\n", "\t", "\t07:32:00", ",", "]", "}", "#", ".", "=", "+07:00", ":",
                 "\xc3\xa9"},
                each("LOCAL_DATE", localDates)) +
             Rows{
                 {{"LOCAL_DATE", "1979-05-27"}, {"WS", "\t"}, {"COMMENT", "# birthday"}},
                 {{"LOCAL_DATE", "1979-05-27"}, {"WS", "\t"}, {"LOCAL_TIME", "07:32:00"}},
                 {{"LOCAL_DATE", "1979-05-27"}, {"NL", "\r\n"}},
                 {{"LOCAL_DATE", "1979-05-27"}, {"COMMENT", "#"}},
                 {{"LOCAL_DATE", "1979-05-27"}, comma},
                 {{"LOCAL_DATE", "1979-05-27"}, {"']'", "]"}},
                 {{"LOCAL_DATE", "1979-05-27"}, dot, {"DEC_INT", "1"}},
                 {{"LOCAL_DATE", "1979-05-27"}, equals},
                 {{"LOCAL_DATE", "1979-05-27"}, {"DEC_INT", "+1"}},
                 {{"LOCAL_DATE", "1979-05-27"}, {"no token 1:10", ":"}},
             }},
        {"LocalDates_areKeysWithMoreOrFewerKeyCharacters",
         words("BARE_KEY",
               {"1979-05-27T",   "1979-05-27t",    "1979-05-27Z",      "1979-05-27x",
                "1979-05-27-",   "1979-05-27_",    "1979-05-270",      "1979-05-27T0",
                "1979-05-27T07", "1979-05-27T07x", "1979-05-27T07-32", "1979-05-2",
                "1979-05-",      "1979-5-27",      "979-05-27",        "19790-05-27",
                "-1979-05-27",   "1979-05-2x",     "1979_05-27",       "1979-05-27Tx"}) +
             Rows{
                 {{"DEC_INT", "1979"},
                  {"no token 1:4", "/"},
                  {"BARE_KEY", "05"},
                  {"no token 1:7", "/"},
                  {"DEC_INT", "27"}},
                 {{"DEC_INT", "+1979"}, {"BARE_KEY", "-05-27"}},
                 {{"BARE_KEY", "1979-05-27T"}, dot, {"DEC_INT", "5"}},
                 {{"BARE_KEY", "1979-05-27T07"}, dot},
                 {{"BARE_KEY", "1979-05-27T0"}, {"no token 1:12", ":"}},
                 {{"BARE_KEY", "1979-05-27T007"}, {"no token 1:14", ":"}, {"BARE_KEY", "00"}},
                 {{"BARE_KEY", "1979-05-27Tx7"}, colon},
                 {{"BARE_KEY", "1979-05-27T07x"}, {"no token 1:14", ":"}},
                 {{"BARE_KEY", "1979-05-27T"}, space, {"LOCAL_TIME", "07:32:00"}},
                 {{"BARE_KEY", "1979-05-27a"}, space, {"LOCAL_TIME", "07:32:00"}},
                 {{"BARE_KEY", "1979-05-27x07"}, colon, {"mismatched character 1:19", "32:00"}},
                 {{"BARE_KEY", "1979-05-27-"}, {"no token 1:12", "+"}},
             }},
        // The first digit goes with the recovery; what is left of the date is a key.
        {"LocalDates_beforeABlankNeedATime",
         {
             {{"no token 1:11", "1"}, rest, space},
             {{"no token 1:11", "1"}, rest, space, lineFeed},
             {{"no token 1:11", "1"}, rest, {"WS", "  "}},
             {{"no token 1:11", "1"}, rest, space, {"COMMENT", "# note"}},
             {{"no token 1:11", "1"}, rest, {"WS", " \t"}},
             {{"no token 1:11", "1"}, rest, space, comma},
             {{"no token 1:11", "1"},
              rest,
              space,
              {"BARE_KEY", "T07"},
              {"no token 1:14", ":"},
              {"mismatched character 1:20", "32:00"}},
             {{"no token 1:11", "2"}, {"BARE_KEY", "024-01-01"}, space, {"BARE_KEY", "x"}},
             {{"BARE_KEY", "x"},
              space,
              equals,
              space,
              {"no token 1:15", "1"},
              rest,
              space,
              {"COMMENT", "# birthday"},
              lineFeed},
             {{"no token 1:12", "1"}, rest, space, {"DEC_INT", "1"}},
             {{"no token 1:13", "1"}, rest, space, {"DEC_INT", "12"}},
             {{"no token 1:13", "1"}, rest, space, {"LOCAL_DATE", "1979-05-27"}},
         }},
    };
}

} // namespace test
