// Floats.
#include "token_table.h"

namespace test
{
namespace
{

Rows brokenFloats()
{
    Rows rows;
    for (const std::string number : {"1", "0", "-1", "+1", "12", "1_0", "-1_0", "+0"})
    {
        for (const std::string rest :
             {".",    ".x",    "._5",     "..5",  ".e5",   ".-5",  ".+5",   ". 5",  ".5_",
              ".5_x", ".5__0", ".5e",     ".5ex", ".5e_5", ".5e+", ".5e+x", ".5e-", ".5e-_5",
              ".5E ", ".5e5_", ".5e5__0", "e+",   "e+x",   "e+_5", "E+ ",   "e+5_", "e+5__0"})
        {
            rows.push_back({{"fails", number + rest}});
            rows.push_back({{"fails", number + rest + "\n"}});
        }
    }
    return rows;
}

} // namespace

TokenTables floatTables()
{
    return {
        {"Floats_haveAFractionOrAnExponentOrBoth",
         words("FLOAT",
               {"1.5",         "0.5",     "-3.14",     "+1.0",      "-0.0",     "+0.0",
                "1e5",         "1E5",     "1E+05",     "1e-5",      "+1e5",     "-1e5",
                "1e05",        "0e0",     "6.626e-34", "1.5E3",     "1.5E+3",   "1.05e+0_1",
                "1_000.000_1", "1.00_00", "1.0_5e1_0", "12_3e4_5",  "1.007",    "1e0_0",
                "-1.5e-1_0",   "0.0",     "+0e0",      "1_0.5",     "1.0_5",    "1e1_0",
                "+1e+5",       "-1E-1_0", "1.5E5",     "-0.5e-1_0", "0.000000", "1.00"}) +
             words("FLOAT", {"123456789.123456789e+123456789"})},
        {"Floats_areKeysWhileNothingElseStands",
         words("BARE_KEY", {"1e", "1E", "1e-", "1e_5", "1e5_", "1e5__0", "1e5x", "1e-5x", "1e5e5",
                            "1e-5-", "01e5", "-1e", "1e--5", "-01e5"}) +
             Rows{
                 {{"BARE_KEY", "01"}, dot, {"DEC_INT", "5"}},
                 {{"BARE_KEY", "-01"}, dot, {"DEC_INT", "5"}},
                 {{"BARE_KEY", "1_"}, dot, {"DEC_INT", "5"}},
                 {{"BARE_KEY", "1__0"}, dot, {"DEC_INT", "5"}},
                 {{"BARE_KEY", "1e"}, dot, {"DEC_INT", "5"}},
                 {{"BARE_KEY", "1e5x"}, dot, {"DEC_INT", "5"}},
                 {{"no token 1:1", "+"}, dot, {"DEC_INT", "5"}},
             }},
        {"Floats_endWhereTheyCannotGoOn",
         {
             {{"FLOAT", "1.5"}, {"BARE_KEY", "x"}},
             {{"FLOAT", "1.5"}, {"BARE_KEY", "-"}},
             {{"FLOAT", "1.5"}, dot, {"DEC_INT", "5"}},
             {{"FLOAT", "1e5"}, dot, {"DEC_INT", "5"}},
             {{"FLOAT", "1e+5"}, {"BARE_KEY", "x"}},
             {{"FLOAT", "1.5e3"}, {"BARE_KEY", "e"}},
             {{"FLOAT", "+1.5"}, {"DEC_INT", "+1"}},
             {{"DEC_INT", "+0"}, {"FLOAT", "1.5"}},
             {{"FLOAT", "+1e5"}, {"BARE_KEY", "x"}},
             {{"FLOAT", "1.5"}, {"DEC_INT", "+1"}},
             {{"FLOAT", "1.5"}, {"no token 1:3", ":"}},
             {{"FLOAT", "1e5"}, {"no token 1:4", "+"}},
             {{"FLOAT", "1e5"}, {"no token 1:3", ":"}},
             {{"FLOAT", "1e+5"}, {"BARE_KEY", "-"}},
             {{"FLOAT", "1.5e5"}, {"BARE_KEY", "x"}},
             {{"FLOAT", "1.5e-5"}, {"DEC_INT", "-5"}},
             {{"FLOAT", "1.5e5"}, dot, {"DEC_INT", "1"}},
             {{"FLOAT", "-1e+5"}, {"BARE_KEY", "e"}},
         }},
        // The point decides; the character in the digit's place goes with the failure, the one
        // after it with the recovery.
        {"Floats_failWithoutADigitAfterThePoint",
         {
             {{"mismatched set 1:2", "1."}},
             {{"mismatched set 1:2", "1.\n"}},
             {{"mismatched set 1:2", "1.\n\n"}, {"BARE_KEY", "a"}},
             {{"mismatched set 1:2", "1.x "}, {"BARE_KEY", "y"}},
             {{"mismatched set 1:2", "1.e5"}},
             {{"mismatched set 1:2", "1.b."}, {"BARE_KEY", "c"}},
             {{"mismatched set 1:2", "1._5"}},
             {{"mismatched set 1:3", "+1. x"}},
             {{"mismatched set 1:4", "1.5_"}},
             {{"mismatched set 1:4", "1.5_x "}, {"BARE_KEY", "y"}},
             {{"mismatched set 1:4", "1.5__5"}, comma, {"DEC_INT", "6"}},
         }},
        {"Floats_failWithoutADigitInTheExponent",
         {
             {{"mismatched set 1:3", "1e+"}},
             {{"mismatched set 1:3", "1e+x "}, {"BARE_KEY", "y"}},
             {{"mismatched set 1:3", "1e+_5"}},
             {{"mismatched set 1:3", "1e++5"}},
             {{"mismatched set 1:5", "1e+5_"}},
             {{"mismatched set 1:4", "1.5e"}},
             {{"mismatched set 1:4", "1.5e ,"}, {"DEC_INT", "6"}},
             {{"mismatched set 1:5", "1.5e+"}},
             {{"mismatched set 1:5", "1.5e-x "}, {"BARE_KEY", "y"}},
             {{"mismatched set 1:4", "1.5e_5"}},
             {{"mismatched set 1:3", "+1e"}},
             {{"mismatched set 1:3", "+1ex "}, {"BARE_KEY", "y"}},
         }},
        // The choice does not look at a whole float before it commits to it.
        {"Floats_haveNoWayBackToTheInteger", brokenFloats()},
    };
}

} // namespace test
