// The texts of the log lines, and the runtime's own reports before them.
#include <gtest/gtest.h>

#include "support/driver_log.h"
#include "support/reading.h"

using namespace std::string_literals;
using namespace test;

TEST(TomlLog, aDocumentThatIsRightLogsAndPrintsNothing)
{
    const Reading reading = read("[t]\na = [1, {b = 'x'}]\n\n# c\n"s);
    EXPECT_TRUE(reading.accepted);
    expectDriverLog(reading.lines, {});
    EXPECT_EQ(reading.standardError, "");
}

TEST(TomlLog, theParsersTextIsThatOfAllTokensWithoutBlanksAndComments)
{
    const Reading reading = read(" [ t ] # one\n\n # two\n\ta . \"b c\"\t= '''x\n y''' # three\r\n"
                                 "d = [ 1 2 ] # four\n# five"s);
    expectDriverLog(reading.lines,
                    {parserFailure("[t]\n\n\na.\"b c\"='''x\n y'''\nd=[12]\n"), syntaxErrors(1)});
}

TEST(TomlLog, aNulByteEndsATokensPartInTheParsersText)
{
    const Reading reading = read("a = \"x\0y\" z 'w\0'\n'\0' = 1\n"s);
    expectDriverLog(reading.lines,
                    {parserFailure("a=\"xz'w\n'=1\n"), treeFailure(), syntaxErrors(2)});
}

TEST(TomlLog, theParsersTextKeepsWhatIsNotAscii)
{
    const Reading reading = read("a = '\xc3\xa9' \"\xe2\x82\xac\"\n"s);
    expectDriverLog(reading.lines, {parserFailure("a='\xc3\xa9'\"\xe2\x82\xac\"\n"), treeFailure(),
                                    syntaxErrors(2)});
}

TEST(TomlLog, percentSignsOfADocumentAreNoFormat)
{
    const Reading reading = read("a = '%s%n%d' '%'\n%\n"s);
    expectDriverLog(reading.lines, {lexerFailure("%"), parserFailure("a='%s%n%d''%'\n\n"),
                                    treeFailure(), syntaxErrors(3)});
}

TEST(TomlLog, aLongTextIsLoggedWhole)
{
    const std::string value = "'" + std::string(100'000, 'x') + "'";
    const Reading reading = read("a = " + value + " b\n");
    expectDriverLog(reading.lines,
                    {parserFailure("a=" + value + "b\n"), treeFailure(), syntaxErrors(2)});
}

TEST(TomlLog, theRuntimesOwnReportsStillGoToStandardError)
{
    struct Report
    {
        std::string text;
        std::vector<std::string> parts;
    };
    for (const auto& [text, parts] : std::vector<Report>{
             {"a = 1\n@\n",
              {"toml(2) : lexer error 3 :", "1:1: Tokens : ( T__69 | T__70 |", "near '@' :"}},
             {"a = \"x\ny\n", {"toml(1) : lexer error 1 :", "Unexpected character at offset 6"}},
             {"[[a]\n",
              {"toml(1)  : error 10 : org.antlr.runtime.MissingTokenException", "Missing ']'"}},
             {"a =\n", {"toml(1)  : error 3 : ", "cannot match to any predicted input..."}},
             {"a = {}\n",
              {"toml(1)  : error 3 : ", "error 9 : org.antlr.runtime.UnwantedTokenException",
               "Extraneous input - expected <UP>"}},
         })
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const Reading reading = read(text);
        std::size_t position = 0;
        for (const std::string& part : parts)
        {
            position = reading.standardError.find(part, position);
            ASSERT_NE(position, std::string::npos) << part << " in\n" << reading.standardError;
        }
    }
}

TEST(TomlLog, theWalksFailureIsNotReportedByTheRuntime)
{
    const Reading reading = read("a = 1"s);
    expectDriverLog(reading.lines, {walkFailure()});
    EXPECT_EQ(reading.standardError, "");
}
