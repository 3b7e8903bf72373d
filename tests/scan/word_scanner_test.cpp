// Bare keys, booleans and numbers: which token the longest match makes of a text.
#include <gtest/gtest.h>

#include "support/scanning.h"

#include <string>
#include <vector>

using namespace test;

namespace
{

// The texts as tokens of this type, whatever may follow a token.
void expectScannedBefore(const std::vector<std::string>& after, TokenType type,
                         const std::vector<std::string>& tokens)
{
    std::vector<ScannedCase> cases;
    for (const std::string& token : tokens)
    {
        for (const std::string& rest : after)
        {
            cases.push_back({token, rest});
        }
    }
    expectScanned(type, cases);
}

// What no word goes on with.
const std::vector<std::string> ends = {"",  "\n", "\r\n", " ",  "\t", ",",    "]",       "}",
                                       "=", "[",  "#",    "\"", "'",  "\x7f", "\xc3\xa9"};

} // namespace

TEST(WordScanner, takesBooleans)
{
    expectScannedBefore(ends, TokenType::boolean, {"true", "false"});
    expectScanned(TokenType::boolean, {{"true", "."}, {"false", "+"}, {"true", ":"}});
}

TEST(WordScanner, takesInfinitiesAndNotNumbers)
{
    expectScannedBefore(ends, TokenType::inf, {"inf", "-inf", "+inf"});
    expectScannedBefore(ends, TokenType::nan, {"nan", "-nan", "+nan"});
    expectScanned(TokenType::inf, {{"inf", "."}, {"-inf", "+"}, {"+inf", "inity"}, {"+inf", "-"}});
    expectScanned(TokenType::nan, {{"nan", "."}, {"-nan", "+"}, {"+nan", "x"}, {"+nan", "_"}});
}

TEST(WordScanner, takesBareKeys)
{
    expectScannedBefore(
        ends, TokenType::bareKey,
        {"a",        "abc",
         "A-Z_0",    "-",
         "_",        "--",
         "---",      "T",
         "e",        "E5",
         "tr",       "tru",
         "truex",    "true_",
         "true-",    "falsey",
         "fals",     "truetrue",
         "infinity", "inf-",
         "in",       "i",
         "nanx",     "nan_",
         "n",        "Inf",
         "NaN",      "True",
         "TRUE",     "FALSE",
         "-a",       "-infx",
         "-in",      "-nanx",
         "-true",    "-_",
         "-e5",      "--1",
         "--inf",    "_1",
         "_inf",     "x0",
         "x0x1F",    "-inf_",
         "a1b2",     "abcdefghijklmnopqrstuvwxyz-ABCDEFGHIJKLMNOPQRSTUVWXYZ_0123456789"});
    expectScanned(TokenType::bareKey,
                  {{"a", ".b"}, {"a", "+1"}, {"e", "+5"}, {"a", ":"}, {"-", "+1"}, {"-", ".5"}});
}

TEST(WordScanner, takesDecimalIntegers)
{
    expectScannedBefore(ends, TokenType::decInt,
                        {"0", "5", "9", "-0", "+0", "7", "-17", "+1", "10", "123", "1979", "1_000",
                         "5_349_221", "1_2_3_4", "-1_0", "+99_99", "1_00_0",
                         "123456789012345678901234567890"});
    expectScanned(TokenType::decInt, {{"1", ":"},
                                      {"12", "+"},
                                      {"-1", "+"},
                                      {"-12", ":"},
                                      {"1", "+1"},
                                      {"7", ":32:00"},
                                      {"123", ":00:00"},
                                      // No key begins with a plus sign.
                                      {"+1", "a"},
                                      {"+1", "-"},
                                      {"+0", "1"},
                                      {"+0", "_1"},
                                      {"+0", "x1"},
                                      {"+12", "-05-27"},
                                      {"+1", "x"}});
}

TEST(WordScanner, takesOtherRadixes)
{
    expectScannedBefore(ends, TokenType::hexInt,
                        {"0x0", "0x1F", "0xdead_beef", "0xDEADBEEF", "0x0_0", "0xabcdefABCDEF"});
    expectScannedBefore(ends, TokenType::octInt, {"0o7", "0o0", "0o755", "0o01_234_567"});
    expectScannedBefore(ends, TokenType::binInt, {"0b1", "0b0", "0b1101_0101", "0b0_1"});
    expectScanned(TokenType::hexInt, {{"0x1", ".5"}, {"0x1e", "+5"}, {"0xF", ":"}});
    expectScanned(TokenType::octInt, {{"0o1", ".5"}});
    expectScanned(TokenType::binInt, {{"0b1", "+1"}});
}

TEST(WordScanner, takesFloats)
{
    expectScannedBefore(ends, TokenType::floating,
                        {"1.5",       "0.5",      "-3.14",
                         "+1.0",      "1e5",      "1E5",
                         "1e05",      "1E+05",    "1e-5",
                         "6.626e-34", "0.0",      "0e0",
                         "-0.0",      "+0e0",     "1_0.5",
                         "1.0_5",     "1e1_0",    "1_000.000_1",
                         "1.05e+0_1", "-1e5",     "+1e5",
                         "+1e+5",     "-1E-1_0",  "1.5E5",
                         "-0.5e-1_0", "0.000000", "123456789.123456789e+123456789",
                         "1.00"});
    expectScanned(TokenType::floating, {{"1.5", ".5"},
                                        {"1.5", "x"},
                                        {"1.5", "-"},
                                        {"1.5", "+1"},
                                        {"1.5", ":"},
                                        {"1e5", ".5"},
                                        {"1e5", "+"},
                                        {"1e5", ":"},
                                        {"1e+5", "x"},
                                        {"1e+5", "-"},
                                        {"1.5e5", "x"},
                                        {"1.5e-5", "-5"},
                                        {"1.5e5", ".1"},
                                        {"+1e5", "x"},
                                        {"-1e+5", "e"}});
}

TEST(WordScanner, takesWhatOnlyLooksLikeANumberAsABareKey)
{
    expectScannedBefore(
        ends, TokenType::bareKey,
        {"00",         "01",        "-01",        "-00",       "0_1",         "-0_1",  "1_",
         "1__0",       "-1_",       "123a",       "12-",       "1-2",         "-1-",   "0x",
         "0X1",        "0x1G",      "0x_1",       "0x1_",      "0x1__2",      "-0x1",  "0o",
         "0o8",        "0o_7",      "0o7_",       "0b",        "0b2",         "0b_1",  "0b1_",
         "0O7",        "0B1",       "00x1",       "1x1",       "1e",          "1e-",   "1E_5",
         "1e5_",       "1e5__0",    "1e5x",       "1e-5_",     "1e-5-",       "01e5",  "0_1e5",
         "1979-",      "1979-05",   "1_e5",       "1ee5",      "1e5e5",       "1e--5", "-1e5x",
         "0123456789", "1979-05-2", "1979_05-27", "123-45-67", "12345-67-89", "0a",    "0-",
         "0_"});
    expectScanned(TokenType::bareKey, {{"00", ".5"},
                                       {"01", ".5"},
                                       {"-01", ".5"},
                                       {"0_1", ".5"},
                                       {"1_", ".5"},
                                       {"1a", ".5"},
                                       {"1e", ".5"},
                                       {"01", "+"},
                                       {"01e", "+5"},
                                       {"0_1e", "+5"},
                                       {"1_e", "+5"},
                                       {"1ee", "+5"},
                                       {"1e-", "+5"},
                                       {"1e5x", "+5"},
                                       {"0x", ".5"},
                                       {"007", ":32:00"},
                                       {"0_7", ":32:00"}});
}

// The prediction does not look at a whole float before it commits to it.
TEST(WordScanner, doesNotGoBackFromAFloatThatFails)
{
    std::vector<std::string> texts;
    for (const std::string number : {"1", "0", "-1", "+1", "12", "1_0", "-1_0", "+0"})
    {
        for (const std::string rest :
             {".",    ".x",    "._5",     "..5",  ".e5",   ".-5",  ".+5",   ". 5",  ".5_",
              ".5_x", ".5__0", ".5e",     ".5ex", ".5e_5", ".5e+", ".5e+x", ".5e-", ".5e-_5",
              ".5E ", ".5e5_", ".5e5__0", "e+",   "e+x",   "e+_5", "E+ ",   "e+5_", "e+5__0"})
        {
            texts.push_back(number + rest);
            texts.push_back(number + rest + "\n");
        }
    }
    expectNotRecognised(texts);
}

TEST(WordScanner, needsANumberBehindAPlusSign)
{
    expectNotRecognised({"+",     "+ 1",  "+a",   "+_1",   "+-1",   "++1",   "+in", "+na", "+i",
                         "+Inf",  "+NaN", "+.5",  "+1_",   "+1__0", "+1_x",  "+e5", "+1e", "+1ex",
                         "+1e_5", "+1e-", "+1e+", "+1_e5", "+\n",   "+\"\"", "+0e", "+12_"});
}
