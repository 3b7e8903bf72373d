// Integers and floats.
#include <gtest/gtest.h>

#include <string>

#include "support/lexer_run.h"

using namespace test;

TEST(DecimalInteger, mayHaveASignAndUnderscoresBetweenDigits)
{
    expectOneToken("DEC_INT", {"0", "+0", "-0", "7", "-17", "+1", "9", "10", "123", "1979", "1_000",
                               "5_349_221", "1_2_3_4_5", "-1_0", "+1_0", "10_00_0",
                               "99999999999999999999999999999999"});
}

TEST(DecimalInteger, hasNoOtherUnderscoresAndNoLeadingZero)
{
    expectOneToken("BARE_KEY", {"1_", "1__0", "_1", "0_1", "00", "01", "-01", "-00", "1_000_",
                                "-1_", "-1__0", "0123", "12-", "1-2", "123a", "1979-"});
    // A plus sign begins no key, so that what fits is the token.
    expectLexed({
        {"+01", {{"DEC_INT", "+0"}, {"DEC_INT", "1"}}},
        {"+00", {{"DEC_INT", "+0"}, {"DEC_INT", "0"}}},
        {"+0_1", {{"DEC_INT", "+0"}, {"BARE_KEY", "_1"}}},
        {"+1a", {{"DEC_INT", "+1"}, {"BARE_KEY", "a"}}},
        {"+1-2", {{"DEC_INT", "+1"}, {"DEC_INT", "-2"}}},
        {"+1+2", {{"DEC_INT", "+1"}, {"DEC_INT", "+2"}}},
        {"1+2", {{"DEC_INT", "1"}, {"DEC_INT", "+2"}}},
    });
}

TEST(DecimalInteger, withAPlusSignFitsNoTokenAtAStrayUnderscore)
{
    expectLexed({
        {"+1_", {{"BARE_KEY", "1_"}}, {"no token 1:3"}},
        {"+1_ 2", {{"BARE_KEY", "1_"}, {"DEC_INT", "2"}}, {"no token 1:3"}},
        {"+1__0", {{"BARE_KEY", "1__0"}}, {"no token 1:3"}},
        {"+1_0_a", {{"BARE_KEY", "1_0_a"}}, {"no token 1:5"}},
    });
}

TEST(HexadecimalInteger, hasDigitsOfEitherCase)
{
    expectOneToken("HEX_INT",
                   {"0x0", "0x1F", "0x1f", "0xdead_beef", "0xDEAD_BEEF", "0xDeadBeef",
                    "0x0123456789", "0xabcdefABCDEF", "0x00", "0x0_0_0", "0xffffffffffffffffffff"});
    expectOneToken("BARE_KEY", {"0x", "0x_1", "0x1_", "0x1__2", "0x1G", "0xg", "0X1F", "0x1-",
                                "-0x1", "1x1", "00x1", "0x-1"});
}

TEST(OctalInteger, hasTheDigitsToSeven)
{
    expectOneToken("OCT_INT", {"0o7", "0o755", "0o0", "0o01234567", "0o7_5_5", "0o00"});
    expectOneToken("BARE_KEY",
                   {"0o", "0o8", "0o78", "0o_7", "0o7_", "0o7__5", "0O7", "0o7a", "-0o7", "1o7"});
}

TEST(BinaryInteger, hasZeroesAndOnes)
{
    expectOneToken("BIN_INT", {"0b1", "0b0", "0b1101_0101", "0b00", "0b1_0_1"});
    expectOneToken("BARE_KEY",
                   {"0b", "0b2", "0b12", "0b_1", "0b1_", "0b1__0", "0B1", "0b1a", "-0b1", "1b1"});
}

TEST(PrefixedInteger, takesNoSignAndNoFraction)
{
    expectLexed({
        {"+0x1", {{"DEC_INT", "+0"}, {"BARE_KEY", "x1"}}},
        {"+0o7", {{"DEC_INT", "+0"}, {"BARE_KEY", "o7"}}},
        {"+0b1", {{"DEC_INT", "+0"}, {"BARE_KEY", "b1"}}},
        {"0x1.5", {{"HEX_INT", "0x1"}, {"'.'", "."}, {"DEC_INT", "5"}}},
        {"0o7+1", {{"OCT_INT", "0o7"}, {"DEC_INT", "+1"}}},
        {"0b1,0b0", {{"BIN_INT", "0b1"}, {"','", ","}, {"BIN_INT", "0b0"}}},
    });
}

TEST(Float, hasAFractionOrAnExponentOrBoth)
{
    expectOneToken("FLOAT", {"1.5",       "0.5",      "-3.14",     "+1.0",        "-0.0",
                             "+0.0",      "1e5",      "1E5",       "1E+05",       "1e-5",
                             "+1e5",      "-1e5",     "1e05",      "0e0",         "6.626e-34",
                             "1.5E3",     "1.5E+3",   "1.05e+0_1", "1_000.000_1", "1.00_00",
                             "1.0_5e1_0", "12_3e4_5", "1.007",     "1e0_0",       "-1.5e-1_0"});
}

TEST(Float, isAKeyWhileNothingElseStands)
{
    expectOneToken("BARE_KEY", {"1e", "1E", "1e-", "1e_5", "1e5_", "1e5__0", "1e5x", "1e-5x",
                                "1e5e5", "1e-5-", "01e5", "-1e", "1e--5", "-01e5"});
    expectLexed({
        {"01.5", {{"BARE_KEY", "01"}, {"'.'", "."}, {"DEC_INT", "5"}}},
        {"-01.5", {{"BARE_KEY", "-01"}, {"'.'", "."}, {"DEC_INT", "5"}}},
        {"1_.5", {{"BARE_KEY", "1_"}, {"'.'", "."}, {"DEC_INT", "5"}}},
        {"1__0.5", {{"BARE_KEY", "1__0"}, {"'.'", "."}, {"DEC_INT", "5"}}},
        {"1e.5", {{"BARE_KEY", "1e"}, {"'.'", "."}, {"DEC_INT", "5"}}},
        {"1e5x.5", {{"BARE_KEY", "1e5x"}, {"'.'", "."}, {"DEC_INT", "5"}}},
        {".5", {{"'.'", "."}, {"DEC_INT", "5"}}},
        {"-.5", {{"BARE_KEY", "-"}, {"'.'", "."}, {"DEC_INT", "5"}}},
        {"+.5", {{"'.'", "."}, {"DEC_INT", "5"}}, {"no token 1:1"}},
    });
}

TEST(Float, endsWhereItCannotGoOn)
{
    expectLexed({
        {"1.5x", {{"FLOAT", "1.5"}, {"BARE_KEY", "x"}}},
        {"1.5-", {{"FLOAT", "1.5"}, {"BARE_KEY", "-"}}},
        {"1.5.5", {{"FLOAT", "1.5"}, {"'.'", "."}, {"DEC_INT", "5"}}},
        {"1e5.5", {{"FLOAT", "1e5"}, {"'.'", "."}, {"DEC_INT", "5"}}},
        {"1e+5x", {{"FLOAT", "1e+5"}, {"BARE_KEY", "x"}}},
        {"1.5e3e", {{"FLOAT", "1.5e3"}, {"BARE_KEY", "e"}}},
        {"+1.5+1", {{"FLOAT", "+1.5"}, {"DEC_INT", "+1"}}},
        {"+01.5", {{"DEC_INT", "+0"}, {"FLOAT", "1.5"}}},
        {"+1e5x", {{"FLOAT", "+1e5"}, {"BARE_KEY", "x"}}},
    });
}

TEST(Float, failsWithoutADigitAfterThePoint)
{
    // The point decides; the character in the digit's place goes with the failure, the
    // one behind it with the recovery.
    expectLexed({
        {"1.", {}, {"mismatched set 1:2"}},
        {"1.\n", {}, {"mismatched set 1:2"}},
        {"1.\n\na", {{"BARE_KEY", "a"}}, {"mismatched set 1:2"}},
        {"1.x y", {{"BARE_KEY", "y"}}, {"mismatched set 1:2"}},
        {"1.e5", {}, {"mismatched set 1:2"}},
        {"1.b.c", {{"BARE_KEY", "c"}}, {"mismatched set 1:2"}},
        {"1._5", {}, {"mismatched set 1:2"}},
        {"+1. x", {}, {"mismatched set 1:3"}},
        {"1.5_", {}, {"mismatched set 1:4"}},
        {"1.5_x y", {{"BARE_KEY", "y"}}, {"mismatched set 1:4"}},
        {"1.5__5,6", {{"','", ","}, {"DEC_INT", "6"}}, {"mismatched set 1:4"}},
    });
}

TEST(Float, failsWithoutADigitInTheExponent)
{
    expectLexed({
        {"1e+", {}, {"mismatched set 1:3"}},
        {"1e+x y", {{"BARE_KEY", "y"}}, {"mismatched set 1:3"}},
        {"1e+_5", {}, {"mismatched set 1:3"}},
        {"1e++5", {}, {"mismatched set 1:3"}},
        {"1e+5_", {}, {"mismatched set 1:5"}},
        {"1.5e", {}, {"mismatched set 1:4"}},
        {"1.5e ,6", {{"DEC_INT", "6"}}, {"mismatched set 1:4"}},
        {"1.5e+", {}, {"mismatched set 1:5"}},
        {"1.5e-x y", {{"BARE_KEY", "y"}}, {"mismatched set 1:5"}},
        {"1.5e_5", {}, {"mismatched set 1:4"}},
        {"+1e", {}, {"mismatched set 1:3"}},
        {"+1ex y", {{"BARE_KEY", "y"}}, {"mismatched set 1:3"}},
    });
}

TEST(SpecialFloat, isLowerCaseWithAnOptionalSign)
{
    expectOneToken("INF", {"inf", "+inf", "-inf"});
    expectOneToken("NAN", {"nan", "+nan", "-nan"});
    expectOneToken("BARE_KEY",
                   {"Inf",   "INF",   "NaN",  "NAN",  "Nan",    "infinity", "nanx", "nan_",
                    "inf-",  "inf0",  "in",   "na",   "i",      "n",        "-in",  "-na",
                    "-infx", "-nan-", "-Inf", "-NaN", "infinf", "nannan",   "_inf", "--inf"});
}

TEST(SpecialFloat, endsAnywhereAfterAPlusSign)
{
    expectLexed({
        {"+infx", {{"INF", "+inf"}, {"BARE_KEY", "x"}}},
        {"+infinity", {{"INF", "+inf"}, {"BARE_KEY", "inity"}}},
        {"+nan0", {{"NAN", "+nan"}, {"DEC_INT", "0"}}},
        {"inf.nan", {{"INF", "inf"}, {"'.'", "."}, {"NAN", "nan"}}},
        {"inf+nan", {{"INF", "inf"}, {"NAN", "+nan"}}},
    });
}

TEST(SpecialFloat, isDecidedByTheLetterAfterAPlusSign)
{
    expectLexed({
        {"+Inf", {{"BARE_KEY", "Inf"}}, {"no token 1:1"}},
        {"+NaN", {{"BARE_KEY", "NaN"}}, {"no token 1:1"}},
        {"+in", {}, {"mismatched character 1:3"}},
        {"+i", {}, {"mismatched character 1:2"}},
        {"+na", {}, {"mismatched character 1:3"}},
        {"+iax y", {{"BARE_KEY", "y"}}, {"mismatched character 1:2"}},
        {"+inx yz", {{"BARE_KEY", "yz"}}, {"mismatched character 1:3"}},
        {"+nax yz", {{"BARE_KEY", "yz"}}, {"mismatched character 1:3"}},
    });
}
