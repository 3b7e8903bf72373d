#include <gtest/gtest.h>
#include <vorn/parsers/toml_places.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "place_recorder.h"
#include "support/stderr_capture.h"

using namespace vorn::parsers::toml;

namespace
{

// Each call with its line and column.
std::vector<std::string> shownCalls(const std::string& document)
{
    test::PlaceRecorder recorder;
    EXPECT_TRUE(visitTomlTree(document, recorder)) << document;
    std::vector<std::string> shown;
    for (const test::PlacedCall& call : recorder.calls())
    {
        shown.push_back(std::to_string(call.place.line) + ':' + std::to_string(call.place.column) +
                        ' ' + call.event());
    }
    return shown;
}

using Shown = std::vector<std::string>;

struct Thrower : PlacedVisitor
{
    void visitInteger(const char*) override { throw std::runtime_error("an integer"); }
};

void expectPlace(const Place& place, std::size_t line, std::size_t column, std::size_t offset)
{
    EXPECT_EQ(place.line, line);
    EXPECT_EQ(place.column, column);
    EXPECT_EQ(place.offset, offset);
}

} // namespace

TEST(Places, AreThoseOfTexts)
{
    EXPECT_EQ(shownCalls("ssh = 22\nhttp = 80800\n"),
              (Shown{"1:1 beginDocument", "1:1 beginKeyValue", "1:1 visitBareKey ssh",
                     "1:7 visitInteger 22", "1:7 endKeyValue", "2:1 beginKeyValue",
                     "2:1 visitBareKey http", "2:8 visitInteger 80800", "2:8 endKeyValue",
                     "3:1 endDocument"}));
    EXPECT_EQ(shownCalls(" 'k' = \"\xC3\xA9\" # c\n\n\tx =\t'''\n'''\r\ny = true\n"),
              (Shown{"1:1 beginDocument", "1:2 beginKeyValue", "1:2 visitQuotedKey 'k'",
                     "1:8 visitBasicString \"\xC3\xA9\"", "1:8 endKeyValue", "3:2 beginKeyValue",
                     "3:2 visitBareKey x", "3:6 visitMultilineLiteralString '''\n'''",
                     "3:6 endKeyValue", "5:1 beginKeyValue", "5:1 visitBareKey y",
                     "5:5 visitBoolean true", "5:5 endKeyValue", "6:1 endDocument"}));
}

TEST(Places, AreThoseOfBrackets)
{
    EXPECT_EQ(
        shownCalls("# a\n[ t.'u' ]\n[[v]]\n[ [w] ]\n"),
        (Shown{"1:1 beginDocument", "2:1 beginTable", "2:3 beginDottedKey", "2:3 visitBareKey t",
               "2:5 visitQuotedKey 'u'", "2:5 endDottedKey", "2:9 endTable", "3:1 beginArrayTable",
               "3:3 visitBareKey v", "3:5 endArrayTable", "4:1 beginArrayTable",
               "4:4 visitBareKey w", "4:7 endArrayTable", "5:1 endDocument"}));
    EXPECT_EQ(shownCalls("a.b = [ # c\n { x = 1, y.z = 1.5 },\n 2\n]\n"),
              (Shown{"1:1 beginDocument",   "1:1 beginKeyValue",    "1:1 beginDottedKey",
                     "1:1 visitBareKey a",  "1:3 visitBareKey b",   "1:3 endDottedKey",
                     "1:7 beginArray",      "2:2 beginInlineTable", "2:4 beginKeyValue",
                     "2:4 visitBareKey x",  "2:8 visitInteger 1",   "2:8 endKeyValue",
                     "2:11 beginKeyValue",  "2:11 beginDottedKey",  "2:11 visitBareKey y",
                     "2:13 visitBareKey z", "2:13 endDottedKey",    "2:17 visitFloat 1.5",
                     "2:17 endKeyValue",    "2:21 endInlineTable",  "3:2 visitInteger 2",
                     "4:1 endArray",        "4:1 endKeyValue",      "5:1 endDocument"}));
}

TEST(Places, OfAllKindsOfScalars)
{
    EXPECT_EQ(shownCalls("\xEF\xBB\xBF"
                         "a = [\"b\", 'l', \"\"\"m\"\"\", 1979-05-27 07:32:00Z, "
                         "1979-05-27T07:32:00,\n1979-05-27,07:32:00,-inf]\n"),
              (Shown{"1:1 beginDocument", "1:1 beginKeyValue", "1:1 visitBareKey a",
                     "1:5 beginArray", "1:6 visitBasicString \"b\"", "1:11 visitLiteralString 'l'",
                     "1:16 visitMultilineBasicString \"\"\"m\"\"\"",
                     "1:25 visitOffsetDateTime 1979-05-27 07:32:00Z",
                     "1:47 visitLocalDateTime 1979-05-27T07:32:00", "2:1 visitLocalDate 1979-05-27",
                     "2:12 visitLocalTime 07:32:00", "2:21 visitFloat -inf", "2:25 endArray",
                     "2:25 endKeyValue", "3:1 endDocument"}));
}

TEST(Places, AreUnknownOutsideOfAReading)
{
    test::PlaceRecorder recorder;
    expectPlace(recorder.place(), 0, 0, 0);
    EXPECT_TRUE(visitTomlTree("a = 1\n", recorder));
    expectPlace(recorder.place(), 0, 0, 0);
    ITomlTreeVisitor& unplaced = recorder;
    EXPECT_TRUE(visitTomlTree("a = 1\n", unplaced));
    expectPlace(recorder.calls().back().place, 0, 0, 0);
}

TEST(Places, StayWhereAnOperationThrows)
{
    Thrower visitor;
    EXPECT_THROW(visitTomlTree("a = 'x'\nb = 1\n", visitor), std::runtime_error);
    expectPlace(visitor.place(), 2, 5, 12);
    EXPECT_TRUE(visitTomlTree("a = 'x'\n", visitor));
    expectPlace(visitor.place(), 0, 0, 0);
    // Through the recognisers.
    const test::StderrCapture capture;
    EXPECT_THROW(visitTomlTree("a = 'x'\nb = 1", visitor), std::runtime_error);
    expectPlace(visitor.place(), 2, 5, 12);
}

TEST(Places, OfOneVisitorInTwoReadings)
{
    struct Reentrant : PlacedVisitor
    {
        void visitInteger(const char*) override
        {
            integer = place();
            EXPECT_TRUE(visitTomlTree("\n\nb = 1.5\n", *this));
            after = place();
        }
        void visitFloat(const char*) override { inner = place(); }
        Place integer;
        Place after;
        Place inner;
    };
    Reentrant visitor;
    EXPECT_TRUE(visitTomlTree("\na = 1\n", visitor));
    expectPlace(visitor.integer, 2, 5, 5);
    expectPlace(visitor.inner, 3, 5, 6);
    expectPlace(visitor.after, 2, 5, 5);
    expectPlace(visitor.place(), 0, 0, 0);
}

TEST(Places, OfCopies)
{
    struct Copying : PlacedVisitor
    {
        void visitInteger(const char*) override
        {
            copies.push_back(*this);
            PlacedVisitor assigned;
            assigned = *this;
            expectPlace(assigned.place(), 1, 5, 4);
            // The visitor stays where it is.
            PlacedVisitor::operator=(PlacedVisitor());
            expectPlace(place(), 1, 5, 4);
            const PlacedVisitor& same = *this;
            PlacedVisitor::operator=(same);
            expectPlace(place(), 1, 5, 4);
        }
        std::vector<PlacedVisitor> copies;
    };
    Copying visitor;
    EXPECT_TRUE(visitTomlTree("a = 1\nb = 'x'\n", visitor));
    ASSERT_EQ(visitor.copies.size(), 1U);
    expectPlace(visitor.copies[0].place(), 1, 5, 4);
    expectPlace(visitor.place(), 0, 0, 0);
}
