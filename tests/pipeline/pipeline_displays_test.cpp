// The displays of errors: the runtime's own comes first, and the log line after it.
#include <gtest/gtest.h>

#include "pipeline_spy.h"
#include "support/driver_log.h"
#include "support/event_lists.h"
#include "support/reading.h"

using namespace std::string_literals;
using namespace test;
using vorn::parsers::toml::visitTomlTree;

namespace
{

struct Character
{
    std::string bytes;
    ANTLR3_UCHAR codePoint;
    ANTLR3_UCHAR displayed;
    std::string printed;
};

struct SeenCharacters
{
    std::vector<ANTLR3_UCHAR> displayed; // in the runtime's display
    std::vector<ANTLR3_UCHAR> reported;  // when the error has been reported
    std::string standardError;
};

SeenCharacters charactersSeen(const std::string& text)
{
    SeenCharacters seen;
    PipelineSpy spy;
    spy.onDisplay = [&seen](const std::string&, pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8*)
    { seen.displayed.push_back(failed->state->exception->c); };
    spy.onLexerReport = [&seen](pANTLR3_BASE_RECOGNIZER failed)
    { seen.reported.push_back(failed->state->exception->c); };
    seen.standardError = read(text).standardError;
    return seen;
}

} // namespace

// The first recogniser of its kind in the process gave the display; the later ones' are
// never called, in whatever order these tests run.
TEST(PipelineDisplays, ofTheFirstRecognisersAreCalledBeforeEachLogLine)
{
    for (int round = 0; round < 3; ++round)
    {
        SCOPED_TRACE(round);
        PipelineSpy spy;
        const LogRecorder log;
        const StderrCapture quiet;
        std::vector<std::size_t> linesBefore;
        spy.onDisplay =
            [&](const std::string& kind, pANTLR3_BASE_RECOGNIZER failed, pANTLR3_UINT8* tokenNames)
        {
            linesBefore.push_back(log.lines().size());
            EXPECT_EQ(tokenNames, failed->state->tokenNames) << kind;
            EXPECT_EQ(tokenNames == nullptr, kind == "lexer");
        };
        EventRecorder visitor;
        EXPECT_FALSE(visitTomlTree("@\na = {}\n", visitor));
        expectDriverLog(log.lines(), {lexerFailure("@"), parserFailure("\na={}\n"), treeFailure(),
                                      syntaxErrors(3)});
        EXPECT_EQ(linesBefore, std::vector<std::size_t>({0, 1, 2}));
        EXPECT_EQ(
            spy.steps,
            Steps({"new input",    "new lexer",      "new tokens",   "new parser", "display lexer",
                   "parse",        "display parser", "new nodes",    "new tree",   "walk",
                   "display tree", "count lexer",    "count parser", "count tree", "free tree",
                   "free nodes",   "free parser",    "free tokens",  "free lexer", "close input"}));
    }
}

// isprint() takes no more than a byte, and a low byte alone may be that of a printable
// character (U+015B was shown as '['); the character is whole again for whoever looks at
// the exception after the runtime's display.
TEST(PipelineDisplays, ofTheLexerGetCharactersThatFitAByte)
{
    for (const auto& [bytes, codePoint, displayed, printed] : std::vector<Character>{
             {"@", '@', '@', "near '@'"},
             {"\x01", 1, 1, "near char(0X1)"},
             {"\xc3\xa9", 0xE9, 0xE9, "near char(0XE9)"},
             {"\xc3\xbf", 0xFF, 0xFF, "near char(0XFF)"},
             {"\xc4\x80", 0x100, 0xC4, "near char(0XC4)"},
             {"\xc5\x9b", 0x15B, 0xC5, "near char(0XC5)"},
             {"\xe2\x82\xac", 0x20AC, 0xE2, "near char(0XE2)"},
             {"\xef\xbf\xbf", 0xFFFF, 0xEF, "near char(0XEF)"},
             {"\xf0\x9f\x98\x80", 0x1F600, 0xF0, "near char(0XF0)"},
             {"\xf0\x9f\x98\xba", 0x1F63A, 0xF0, "near char(0XF0)"},
             {"\xfb\xbf\xbf\xbf\xbf", 0x3FFFFFF, 0xFB, "near char(0XFB)"},
         })
    {
        SCOPED_TRACE(printed);
        const SeenCharacters seen = charactersSeen(bytes + "\n");
        EXPECT_EQ(seen.displayed, std::vector<ANTLR3_UCHAR>({displayed}));
        EXPECT_EQ(seen.reported, std::vector<ANTLR3_UCHAR>({codePoint}));
        EXPECT_NE(seen.standardError.find(printed), std::string::npos) << seen.standardError;
    }
}

TEST(PipelineDisplays, ofTheLexerGetTheEndOfTheInputAsItIs)
{
    const SeenCharacters seen = charactersSeen("# c\n\"x");
    EXPECT_EQ(seen.displayed, std::vector<ANTLR3_UCHAR>({ANTLR3_CHARSTREAM_EOF}));
    EXPECT_EQ(seen.reported, seen.displayed);
    EXPECT_NE(seen.standardError.find("(end of input)"), std::string::npos) << seen.standardError;
}
