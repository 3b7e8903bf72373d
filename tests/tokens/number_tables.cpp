// Integers.
#include "token_table.h"

namespace test
{

TokenTables numberTables()
{
    return {
        {"DecimalIntegers_mayHaveASignAndUnderscoresBetweenDigits",
         words("DEC_INT", {"0",    "+0",      "-0",   "7",       "-17",       "+1",        "9",
                           "10",   "123",     "1979", "1_000",   "5_349_221", "1_2_3_4_5", "-1_0",
                           "+1_0", "10_00_0", "5",    "1_2_3_4", "+99_99",    "1_00_0"}) +
             words("DEC_INT",
                   {"99999999999999999999999999999999", "123456789012345678901234567890"}) +
             Rows{
                 {{"DEC_INT", "1"}, {"no token 1:1", ":"}},
                 {{"DEC_INT", "12"}, {"no token 1:3", "+"}},
                 {{"DEC_INT", "-1"}, {"no token 1:3", "+"}},
                 {{"DEC_INT", "-12"}, {"no token 1:3", ":"}},
                 {{"DEC_INT", "1"}, {"DEC_INT", "+1"}},
                 {{"DEC_INT", "7"}, {"no token 1:1", ":"}, {"mismatched character 1:7", "32:00"}},
                 {{"DEC_INT", "123"}, {"no token 1:3", ":"}, {"mismatched character 1:9", "00:00"}},
                 {{"DEC_INT", "+1"}, {"BARE_KEY", "a"}},
                 {{"DEC_INT", "+1"}, {"BARE_KEY", "-"}},
                 {{"DEC_INT", "+0"}, {"DEC_INT", "1"}},
                 {{"DEC_INT", "+0"}, {"BARE_KEY", "_1"}},
                 {{"DEC_INT", "+0"}, {"BARE_KEY", "x1"}},
                 {{"DEC_INT", "+12"}, {"BARE_KEY", "-05-27"}},
                 {{"DEC_INT", "+1"}, {"BARE_KEY", "x"}},
             }},
        {"DecimalIntegers_haveNoOtherUnderscoresAndNoLeadingZero",
         words("BARE_KEY", {"1_", "1__0", "0_1", "00", "01", "-01", "-00", "1_000_", "-1_", "-1__0",
                            "0123", "12-", "1-2", "123a", "1979-"}) +
             Rows{
                 {{"DEC_INT", "+0"}, {"DEC_INT", "0"}},
                 {{"DEC_INT", "+1"}, {"DEC_INT", "-2"}},
                 {{"DEC_INT", "+1"}, {"DEC_INT", "+2"}},
                 {{"DEC_INT", "1"}, {"DEC_INT", "+2"}},
             }},
        {"DecimalIntegers_withAPlusSignFitNoTokenAtAStrayUnderscore",
         {
             {{"no token 1:3", "+"}, {"BARE_KEY", "1_"}},
             {{"no token 1:3", "+"}, {"BARE_KEY", "1_"}, space, {"DEC_INT", "2"}},
             {{"no token 1:3", "+"}, {"BARE_KEY", "1__0"}},
             {{"no token 1:5", "+"}, {"BARE_KEY", "1_0_a"}},
         }},
        {"HexadecimalIntegers_haveDigitsOfEitherCase",
         words("HEX_INT", {"0x0", "0x1F", "0x1f", "0xdead_beef", "0xDEAD_BEEF", "0xDeadBeef",
                           "0x0123456789", "0xabcdefABCDEF", "0x00", "0x0_0_0",
                           "0xffffffffffffffffffff", "0xDEADBEEF", "0x0_0"}) +
             words("BARE_KEY", {"0x", "0x_1", "0x1_", "0x1__2", "0x1G", "0xg", "0X1F", "0x1-",
                                "-0x1", "1x1", "00x1", "0x-1"}) +
             Rows{
                 {{"HEX_INT", "0x1"}, dot, {"DEC_INT", "5"}},
                 {{"HEX_INT", "0x1e"}, {"DEC_INT", "+5"}},
                 {{"HEX_INT", "0xF"}, {"no token 1:3", ":"}},
             }},
        {"OctalIntegers_haveTheDigitsToSeven",
         words("OCT_INT",
               {"0o7", "0o755", "0o0", "0o01234567", "0o7_5_5", "0o00", "0o01_234_567"}) +
             words("BARE_KEY",
                   {"0o", "0o8", "0o78", "0o_7", "0o7_", "0o7__5", "0O7", "0o7a", "-0o7", "1o7"}) +
             Rows{
                 {{"OCT_INT", "0o1"}, dot, {"DEC_INT", "5"}},
             }},
        {"BinaryIntegers_haveZeroesAndOnes",
         words("BIN_INT", {"0b1", "0b0", "0b1101_0101", "0b00", "0b1_0_1", "0b0_1"}) +
             words("BARE_KEY",
                   {"0b", "0b2", "0b12", "0b_1", "0b1_", "0b1__0", "0B1", "0b1a", "-0b1", "1b1"}) +
             Rows{
                 {{"BIN_INT", "0b1"}, {"DEC_INT", "+1"}},
             }},
        {"PrefixedIntegers_takeNoSignAndNoFraction",
         {
             {{"DEC_INT", "+0"}, {"BARE_KEY", "o7"}},
             {{"DEC_INT", "+0"}, {"BARE_KEY", "b1"}},
             {{"OCT_INT", "0o7"}, {"DEC_INT", "+1"}},
             {{"BIN_INT", "0b1"}, comma, {"BIN_INT", "0b0"}},
         }},
        {"Keys_mayLookLikeNumbers",
         words("BARE_KEY", {"-0_1", "-1-", "0X1", "1E_5", "1e-5_", "0_1e5", "1979-05", "1_e5",
                            "1ee5", "-1e5x", "123-45-67", "12345-67-89", "0a", "0-", "0_"}) +
             Rows{
                 {{"BARE_KEY", "00"}, dot, {"DEC_INT", "5"}},
                 {{"BARE_KEY", "0_1"}, dot, {"DEC_INT", "5"}},
                 {{"BARE_KEY", "1a"}, dot, {"DEC_INT", "5"}},
                 {{"BARE_KEY", "01"}, {"no token 1:3", "+"}},
                 {{"BARE_KEY", "01e"}, {"DEC_INT", "+5"}},
                 {{"BARE_KEY", "0_1e"}, {"DEC_INT", "+5"}},
                 {{"BARE_KEY", "1_e"}, {"DEC_INT", "+5"}},
                 {{"BARE_KEY", "1ee"}, {"DEC_INT", "+5"}},
                 {{"BARE_KEY", "1e-"}, {"DEC_INT", "+5"}},
                 {{"BARE_KEY", "1e5x"}, {"DEC_INT", "+5"}},
                 {{"BARE_KEY", "0x"}, dot, {"DEC_INT", "5"}},
                 {{"BARE_KEY", "007"},
                  {"no token 1:3", ":"},
                  {"mismatched character 1:9", "32:00"}},
                 {{"BARE_KEY", "0_7"},
                  {"no token 1:3", ":"},
                  {"mismatched character 1:9", "32:00"}},
             }},
    };
}

} // namespace test
