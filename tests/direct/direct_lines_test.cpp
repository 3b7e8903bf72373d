// Valid lines among others, read wherever they start.
#include <gtest/gtest.h>

#include "direct/direct_lines.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "direct/reader.h"
#include "direct/visitor_calls.h"
#include "support/event_recorder.h"
#include "support/event_sink.h"
#include "support/guarded_memory.h"
#include "support/line_mixtures.h"
#include "support/text_generator.h"

using namespace vorn::parsers::toml;
using test::Events;

namespace
{

// The lines that are read at a place of a text, and what the visitor gets of them.
struct Lines
{
    std::size_t end = 0;
    Events events;
};

bool operator==(const Lines& one, const Lines& other)
{
    return one.end == other.end && one.events == other.events;
}

Lines linesAt(DirectLines& direct, std::string_view text, std::size_t place)
{
    Lines lines;
    lines.end = static_cast<std::size_t>(direct.read(text.data() + place) - text.data());
    test::EventRecorder visitor;
    std::vector<char> buffer(VisitorCalls::bytesFor(direct.longestText()));
    direct.handTo(visitor, buffer.data());
    lines.events = visitor.events();
    return lines;
}

Lines firstLines(const std::string& text)
{
    DirectLines direct(text);
    return linesAt(direct, text, 0);
}

// Knows how many events there were until the last line's end.
class LineSink : public test::EventSink
{
public:
    void lineEnd(const char* position)
    {
        EventSink::lineEnd(position);
        kept = events.size();
    }
    void emptyLines(const char* position) { EventSink::lineEnd(position); }

    std::size_t kept = 0;
};

// The same lines as the rules read them, which keep nothing.
struct StatedLines
{
    Lines lines;
    std::size_t longestText = 0;
};

StatedLines statedAt(std::string_view text, std::size_t place)
{
    std::vector<NestingStack::Word> words(NestingStack::wordsFor(2 * text.size()));
    NestingStack nesting(words.data(), 2 * text.size());
    LineSink sink;
    Reader(text.data() + place, text.data() + text.size(), nesting, sink).lines();
    StatedLines stated;
    stated.lines.end = sink.lineEnds.empty()
                           ? place
                           : static_cast<std::size_t>(sink.lineEnds.back() - text.data());
    for (const std::string_view seen : sink.texts)
    {
        stated.longestText = std::max(stated.longestText, seen.size());
    }
    sink.events.resize(sink.kept);
    stated.lines.events = sink.events;
    return stated;
}

// Reads a text from its start and from each line on, in memory that ends with it.
void expectAsStated(const std::string& document)
{
    SCOPED_TRACE(testing::PrintToString(document));
    static test::GuardedMemory memory(4096);
    const std::string_view text(memory.holdTerminated(document), document.size());
    DirectLines direct(text);
    for (std::size_t place = 0; place <= text.size(); ++place)
    {
        if (place == 0 || text[place - 1] == '\n')
        {
            const StatedLines stated = statedAt(text, place);
            ASSERT_EQ(linesAt(direct, text, place), stated.lines) << "from " << place;
            ASSERT_GE(direct.longestText(), stated.longestText);
        }
    }
}

Events pairs(std::size_t count)
{
    Events events;
    for (; count > 0; --count)
    {
        events.insert(events.end(),
                      {"beginKeyValue", "visitBareKey a", "visitInteger 1", "endKeyValue"});
    }
    return events;
}

std::string repeated(const std::string& text, std::size_t count)
{
    std::string all;
    for (; count > 0; --count)
    {
        all += text;
    }
    return all;
}

std::size_t levelsOf(const std::string& text)
{
    return DirectLines(text).levelsOfInvalid();
}

} // namespace

TEST(DirectLines, endBeforeTheFirstTokenThatIsNotTheirs)
{
    for (const auto& [valid, rest] : std::vector<std::pair<std::string, std::string>>{
             {"", ""},
             {"", "@"},
             {"", "a = 1"},
             {"", "a = 1 # c"},
             {"\n", ""},
             {" # c\n\n", ""},
             {"\n \n", "@\n"},
             {"a = 1\n", ""},
             {"a = 1\n", "@"},
             {"a = 1\n \t", "b\n"},
             {"a = 1\n\n\r\n\n  ", "b\n"},
             {"a = 1 # c\r\n", "b = \n"},
             {"\n# c\n a = 1\n", "]"},
             {"[t]\na = [1,\n2\n] # c\n", "c = [\n"},
             {"[t]\n[[ u . 'v' ]]\n", "[w\n"},
             {"a = 1\n# c\n\n", "b\n"},
             {"a = 1\n # c\n# d\n", ""},
             {"a = 1\n\n# c\n", ""},
             {"a = 1\n# c", ""},
             {"\xef\xbb\xbf", ""},
         })
    {
        const std::string text = valid + rest;
        SCOPED_TRACE(testing::PrintToString(text));
        DirectLines direct(text);
        ASSERT_TRUE(direct.hasMemory());
        EXPECT_EQ(direct.size(), text.size());
        const std::size_t start = valid == "\xef\xbb\xbf" ? valid.size() : 0;
        EXPECT_EQ(direct.read(text.data() + start), text.data() + valid.size());
    }
}

TEST(DirectLines, goToTheVisitorWithoutWhatComesBeforeAndAfterThem)
{
    EXPECT_EQ(firstLines("a = 1\na = [2\n").events, pairs(1));
    EXPECT_EQ(firstLines("a = [2\na = 1\n").events, Events());
    EXPECT_EQ(
        firstLines("# c\n\na = 1 # c\n[t]\n[[u.'v']]\n@").events,
        Events({"beginKeyValue", "visitBareKey a", "visitInteger 1", "endKeyValue", "beginTable",
                "visitBareKey t", "endTable", "beginArrayTable", "beginDottedKey", "visitBareKey u",
                "visitQuotedKey 'v'", "endDottedKey", "endArrayTable"}));

    const std::string text = "a = 1\na = [\n# c\na = 1\na = 1\na = ";
    DirectLines direct(text);
    EXPECT_EQ(linesAt(direct, text, 0), (Lines{6, pairs(1)}));
    EXPECT_EQ(linesAt(direct, text, 6), (Lines{6, {}}));
    EXPECT_EQ(linesAt(direct, text, 12), (Lines{28, pairs(2)}));
    // Those before may be read again.
    EXPECT_EQ(linesAt(direct, text, 0), (Lines{6, pairs(1)}));
}

// What the record has no room for is read again when it goes to the visitor, and that ends where
// the first reading ended.
TEST(DirectLines, goToTheVisitorAlsoWhereTheyAreMoreThanTheRecordKeeps)
{
    // A short text with two events a byte, and a long one.
    const std::string levels = "a = " + std::string(50, '[') + "1" + std::string(50, ']') + "\n";
    for (const std::string& valid : {repeated("a=1\n", 200000), "a = 1\n" + levels + "a = 1\n"})
    {
        // The last one has more events than the record has room for, none of which is called.
        for (const std::string& rest :
             {std::string(), std::string("b = [1, 'x\n"), std::string("a = \na = 1\n"),
              "b = " + std::string(140000, '[')})
        {
            const std::string text = valid + rest;
            const Lines stated = statedAt(text, 0).lines;
            EXPECT_EQ(stated.end, valid.size());
            DirectLines direct(text);
            EXPECT_TRUE(linesAt(direct, text, 0) == stated);
            // The next record is a new one.
            const std::size_t last = valid.size() - (valid.size() > 1000 ? 4 : 6);
            EXPECT_EQ(linesAt(direct, text, last), (Lines{valid.size(), pairs(1)}));
        }
    }
}

TEST(DirectLines, knowTheLongestTextOfAllThatWereRead)
{
    const std::string text =
        "a = '" + std::string(1000, 'x') + "'\na\nb = '" + std::string(2000, 'y') + "'\nb\na = 1\n";
    DirectLines direct(text);
    EXPECT_LE(direct.longestText(), 256U);
    const char* const first = direct.read(text.data());
    EXPECT_EQ(direct.longestText(), 1002U);
    const char* const second = direct.read(first + 2);
    EXPECT_EQ(direct.longestText(), 2002U);
    EXPECT_EQ(direct.read(second + 2), text.data() + text.size());
    EXPECT_EQ(direct.longestText(), 2002U);
    // Also that of a line that the record does not keep.
    const std::string lost =
        "a = [" + repeated("[1],", 1000) + "'" + std::string(300, 'z') + "']\n";
    DirectLines losing(lost);
    EXPECT_EQ(losing.read(lost.data()), lost.data() + lost.size());
    EXPECT_EQ(losing.longestText(), 302U);
}

TEST(DirectLines, knowTheLevelsOfTheFirstStatementThatIsNotValid)
{
    for (const auto& [text, levels] : std::vector<std::pair<std::string, std::size_t>>{
             {"", 0},
             {"@", 0},
             {"a = 1\n@", 0},
             {"a = [\n", 1},
             {"a = [{b = [", 3},
             {"a = [1, {b = 2}, [3]\n@", 2},
             // Up to the mistake, not after it.
             {"a = [1 @ [[[", 1},
             {"a = 1 [[[[", 0},
             // Levels that are closed have been open.
             {"a = [[[1]], [1] @", 3},
             {"a = [[[1]]] @", 3},
             // Those of valid lines do not count, nor those of statements after the first.
             {"a = [[[[1]]]]\nb = [[@\n", 2},
             {"a = [[[[1]]]]\n# c\n\n# d\nb = [@\n", 1},
             {"a = [@\nb = [[[[\n", 1},
             {"a = [[[[1]]]]\n", 0},
             // No brackets of headers.
             {"[[t\n", 0},
             {"\xef\xbb\xbf"
              "a = [[\n",
              2},
             {"\xef\xbb\xbf"
              "a = [[1]]\nb = [\n",
              1},
         })
    {
        EXPECT_EQ(levelsOf(text), levels) << testing::PrintToString(text);
    }
}

TEST(DirectLines, countLevelsThatAreNeverClosedInFull)
{
    for (const std::size_t levels : {1U, 2U, 3U, 15U, 16U, 17U, 33U, 100U, 100000U})
    {
        EXPECT_EQ(levelsOf("a=" + std::string(levels, '[')), levels);
        EXPECT_EQ(levelsOf("a=[1]\na=" + std::string(levels, '[') + "\n"), levels);
        EXPECT_EQ(levelsOf("a=" + repeated("{b=", levels)), levels);
    }
}

// Bytes that are not ASCII may go on with a line break, to the lexer: \xC0\x8A is one more, in two
// bytes, and \xF8\x80\x80\x80\x8A in five.
TEST(DirectLines, areNotReadWhereTheirLineBreaksMayGoOn)
{
    for (const std::string after : {"\r", "\r\r\n", "\rb = 2\n", "\xc0\x8a", "\xf8\x80\x80\x80\x8a",
                                    "\xc3\xa9 = 1\n", "\xe2\x82\xac", "\x80", "\xff"})
    {
        for (const std::string lineBreak : {"\n", "\r\n", "\n\n"})
        {
            const std::string next = "a = 1" + lineBreak + after;
            SCOPED_TRACE(testing::PrintToString(next));
            EXPECT_EQ(firstLines(next), Lines());
            // The lines before are not concerned.
            EXPECT_EQ(firstLines("a = 1\n\n" + next), (Lines{7, pairs(1)}));
        }
    }
    // Neither are line breaks with a blank after them, which ends the token.
    EXPECT_EQ(firstLines("a = 1\n \xc0\x8a"), (Lines{7, pairs(1)}));
    EXPECT_EQ(firstLines("a = 1\n \r"), (Lines{7, pairs(1)}));
}

TEST(DirectLines, areAsTheRulesReadThemInShortTexts)
{
    const std::string_view alphabet("a1=\n\r [{]}#,.'\xc0\x8a", 16);
    for (const std::string start : {"", "a = 1\n", "a=1"})
    {
        for (std::size_t number = 0; number < 16 * 16 * 16 * 16; number += VORN_TEST_STEP)
        {
            std::string text = start;
            for (std::size_t left = number; left > 0; left /= 16)
            {
                text += alphabet[left % 16];
            }
            expectAsStated(text);
            if (HasFatalFailure())
            {
                return;
            }
        }
    }
}

TEST(DirectLines, areAsTheRulesReadThemInRandomTexts)
{
    test::TextGenerator texts;
    for (int count = 0; count < 20000 && !HasFatalFailure(); count += VORN_TEST_STEP)
    {
        expectAsStated(texts.mixture(test::linePieces, 12));
    }
}
