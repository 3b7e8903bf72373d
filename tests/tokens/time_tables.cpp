// Times.
#include "token_table.h"

namespace test
{
namespace
{

const std::vector<std::string> localTimes = {"07:32:00",
                                             "00:32:00.999999",
                                             "00:00:00.0",
                                             "00:00:00",
                                             "99:99:99.0",
                                             "99:99:99.9",
                                             "07:32:00.0123456789012345678901234"};

} // namespace

TokenTables timeTables()
{
    return {
        {"LocalTimes_haveSecondsAndAnOptionalFraction",
         words("LOCAL_TIME", localTimes) +
             before({"Z", "+07:00", "x", "_0", "-1", ":00"}, each("LOCAL_TIME", localTimes)) +
             before({"0"}, each("LOCAL_TIME", {"07:32:00"}))},
        {"LocalTimes_areDecidedByTheirFirstThreeCharacters",
         {
             {{"mismatched set 1:3", "07:"}},
             {{"mismatched set 1:3", "07:x "}, {"BARE_KEY", "y"}},
             {{"mismatched set 1:4", "07:3"}},
             {{"mismatched character 1:5", "07:32"}},
             {{"mismatched character 1:5", "07:32\n\n"}, {"BARE_KEY", "a"}},
             {{"mismatched character 1:5", "07:32x "}, {"BARE_KEY", "y"}},
             {{"mismatched set 1:6", "07:32:"}},
             {{"mismatched set 1:7", "07:32:0"}},
             {{"mismatched set 1:7", "07:32:0x "}, {"BARE_KEY", "y"}},
             {{"mismatched set 1:3", "07::3"}, {"DEC_INT", "2"}},
         }},
        {"LocalTimes_failAtAPointWithoutDigits",
         {
             {{"early exit 1:9", "07:32:00."}},
             {{"early exit 1:9", "07:32:00.x"}, {"BARE_KEY", "y"}},
             {{"early exit 1:9", "07:32:00.\n"}, {"BARE_KEY", "a"}},
             {{"early exit 1:9", "07:32:00.."}, {"DEC_INT", "5"}},
         }},
        {"LocalTimes_startWithTwoDigitsAndAColon",
         {
             {{"DEC_INT", "123"}, {"no token 1:3", ":"}, {"DEC_INT", "45"}},
             {{"BARE_KEY", "-07"}, {"no token 1:3", ":"}, {"DEC_INT", "1"}},
             {{"DEC_INT", "+0"}, {"DEC_INT", "7"}, {"no token 1:3", ":"}, {"DEC_INT", "1"}},
             {{"BARE_KEY", "a07"}, {"no token 1:3", ":"}, {"DEC_INT", "1"}},
             {{"DEC_INT", "1_2"}, {"no token 1:3", ":"}, {"DEC_INT", "3"}},
         }},
        {"LocalTimes_endWhereTheyCannotGoOn",
         {
             {{"LOCAL_TIME", "07:32:00"}, {"BARE_KEY", "x"}},
             {{"LOCAL_TIME", "07:32:00"}, {"BARE_KEY", "Z"}},
             {{"LOCAL_TIME", "07:32:00"}, {"DEC_INT", "1"}},
             {{"LOCAL_TIME", "07:32:00"}, space, {"COMMENT", "# note"}},
             {{"LOCAL_TIME", "07:32:00.5"}, dot, {"DEC_INT", "5"}},
             {{"LOCAL_TIME", "07:32:00.5"}, {"BARE_KEY", "_5"}},
             {{"LOCAL_TIME", "07:32:00"},
              {"DEC_INT", "+0"},
              {"DEC_INT", "7"},
              {"no token 1:11", ":"},
              {"BARE_KEY", "00"}},
         }},
        {"LocalTimes_haveNoWayBack",
         {
             {{"mismatched set 1:3", "01:"}},
             {{"mismatched set 1:3", "99:x"}},
             {{"mismatched character 1:5", "07:32\n"}},
             {{"mismatched set 1:7", "07:32:0x"}},
             {{"mismatched set 1:3", "07:x2"}, {"no token 1:5", ":"}, {"BARE_KEY", "00"}},
             {{"mismatched character 1:5", "07:32-0"}, {"DEC_INT", "0"}},
             {{"mismatched set 1:3", "07: 3"},
              {"DEC_INT", "2"},
              {"no token 1:6", ":"},
              {"BARE_KEY", "00"}},
             {{"mismatched set 1:3", "07::0"},
              {"DEC_INT", "0"},
              {"no token 1:6", ":"},
              {"BARE_KEY", "00"}},
             {{"early exit 1:9", "07:32:00.x"}},
             {{"early exit 1:9", "07:32:00.\n"}},
             {{"mismatched character 1:5", "07:032:"}, {"BARE_KEY", "00"}},
         }},
    };
}

} // namespace test
