// Places in documents that are made at random.
#include <gtest/gtest.h>
#include <vorn/parsers/toml_places.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "config/utf8.h"
#include "differential/damage.h"
#include "differential/document_generator.h"
#include "differential/escaped.h"
#include "place_recorder.h"
#include "support/event_recorder.h"
#include "support/log_recorder.h"
#include "support/stderr_capture.h"

using namespace vorn::parsers::toml;
using test::PlacedCall;

namespace
{

// The line and column of an offset, counted from the document's start.
Place naivePlace(std::string_view document, std::size_t offset)
{
    Place place = {1, 1, offset};
    std::size_t at = config::byteOrderMarkLength(document);
    while (at < offset)
    {
        const bool isLineFeed = document[at] == '\n';
        at += config::characterLength(document, at);
        place.line += isLineFeed ? 1 : 0;
        place.column = isLineFeed ? 1 : place.column + 1;
    }
    return place;
}

// What a call is at the place of: its text, a bracket, or nothing of its own.
std::string_view whatIsThere(const PlacedCall& call)
{
    const std::string_view operation = call.operation;
    if (operation.substr(0, 5) == "visit")
    {
        return call.text;
    }
    const bool isBegin = operation.substr(0, 5) == "begin";
    const std::string_view of = operation.substr(isBegin ? 5 : 3);
    if (of == "InlineTable")
    {
        return isBegin ? "{" : "}";
    }
    if (of == "Table" || of == "ArrayTable" || of == "Array")
    {
        return isBegin ? "[" : "]";
    }
    return "";
}

// A bracket may be malformed.
bool isThere(std::string_view document, std::size_t offset, std::string_view text)
{
    return document.substr(offset, text.size()) == text ||
           (text.size() == 1 && offset < document.size() &&
            config::readCharacter(document, offset).code == static_cast<unsigned char>(text[0]));
}

// Whether there is nothing between two tokens but separators and comments, and the second bracket
// of a header.
bool isBetween(std::string_view text, bool hasBracket)
{
    std::size_t brackets = 0;
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        if (text[at] == '#')
        {
            at = std::min(text.find('\n', at), text.size());
            continue;
        }
        brackets += text[at] == '[' || text[at] == ']' ? 1 : 0;
        if (std::string_view(" \t\r\n,=.[]").find(text[at]) == std::string_view::npos)
        {
            return false;
        }
    }
    return brackets == (hasBracket ? 1 : 0);
}

// Expects the calls at their places.  Where nothing is malformed and no text is cut, nothing else
// may be between them.
void expectPlaces(const std::string& document, const std::vector<PlacedCall>& calls, bool isPlain)
{
    std::size_t end = config::byteOrderMarkLength(document);
    bool hasBracket = false;
    for (const PlacedCall& call : calls)
    {
        const std::size_t offset = call.place.offset;
        ASSERT_LE(offset, document.size());
        const Place naive = naivePlace(document, offset);
        ASSERT_EQ(call.place.line, naive.line) << call.event();
        ASSERT_EQ(call.place.column, naive.column) << call.event();
        const std::string_view there = whatIsThere(call);
        if (there.empty())
        {
            continue;
        }
        ASSERT_TRUE(isThere(document, offset, there)) << call.event();
        ASSERT_GE(offset, end) << call.event();
        hasBracket = hasBracket != (call.operation == "endArrayTable");
        if (isPlain)
        {
            ASSERT_TRUE(isBetween(std::string_view(document).substr(end, offset - end), hasBracket))
                << call.event();
        }
        hasBracket = call.operation == "beginArrayTable";
        end = offset + there.size();
    }
}

// Reads a document with and without places: all else has to be the same.
bool read(const std::string& document, test::PlaceRecorder& recorder)
{
    const test::StderrCapture errors;
    bool isAccepted = false;
    std::vector<std::string> messages;
    {
        const test::LogRecorder log;
        isAccepted = visitTomlTree(document, recorder);
        messages = log.messages();
    }
    const test::LogRecorder log;
    test::EventRecorder unplaced;
    EXPECT_EQ(visitTomlTree(document, unplaced), isAccepted);
    EXPECT_EQ(log.messages(), messages);
    test::Events events;
    for (const PlacedCall& call : recorder.calls())
    {
        events.push_back(call.event());
    }
    EXPECT_EQ(unplaced.events(), events);
    return isAccepted;
}

bool isPlainText(const std::string& document)
{
    for (std::size_t at = 0; at < document.size();)
    {
        const std::size_t length = config::characterLength(document, at);
        if (document[at] == '\0' || (length == 1 && !config::isAscii(document[at])))
        {
            return false;
        }
        at += length;
    }
    return true;
}

struct Counts
{
    unsigned accepted = 0;
    unsigned plain = 0;
    unsigned rejected = 0;
};

void expectDocument(const std::string& document, Counts& counts)
{
    SCOPED_TRACE(test::escaped(document));
    test::PlaceRecorder recorder;
    if (read(document, recorder))
    {
        const bool isPlain = isPlainText(document);
        ++counts.accepted;
        counts.plain += isPlain ? 1 : 0;
        expectPlaces(document, recorder.calls(), isPlain);
        return;
    }
    ++counts.rejected;
    for (const PlacedCall& call : recorder.calls())
    {
        EXPECT_LE(call.place.offset, document.size());
    }
}

// Puts bytes somewhere into a string or a comment, as far as that can be told.
void addBytes(std::string& document, test::Random& random)
{
    using namespace std::string_view_literals;
    constexpr std::string_view pieces[] = {
        "\0"sv,       "\0x"sv,      "\xC3\xA9"sv,     "\xE2"sv,        "\xC0\xA2"sv,
        "\xC0\x8A"sv, "\xC2\n"sv,   "\xC3\""sv,       "\xE2\x82"sv,    "\xFF"sv,
        "\x80"sv,     "\xC0\xA0"sv, "\xF0\x9F\x98"sv, "# \xE2\n k\n"sv};
    const std::size_t from = random.below(document.size() + 1);
    const std::size_t near = document.find_first_of("\"'#", from);
    const std::size_t at = near != std::string::npos ? near + 1 : from;
    document.insert(at, random.oneOf(pieces));
}

constexpr std::size_t documentCount = 4000 / VORN_TEST_STEP;

} // namespace

TEST(PlacesGenerated, AreThoseOfTheTexts)
{
    test::DocumentGenerator documents(1);
    Counts counts;
    for (std::size_t index = 0; index < documentCount && !HasFailure(); ++index)
    {
        expectDocument(documents.next(), counts);
    }
    EXPECT_GT(counts.plain, documentCount / 4);
    EXPECT_GT(counts.rejected, documentCount / 8);
}

TEST(PlacesGenerated, AreThoseOfTheTextsAmongOtherBytes)
{
    test::DocumentGenerator documents(2);
    test::Random random(3);
    Counts counts;
    for (std::size_t index = 0; index < documentCount && !HasFailure(); ++index)
    {
        std::string document = documents.next();
        for (std::size_t count = random.between(1, 3); count > 0; --count)
        {
            addBytes(document, random);
        }
        expectDocument(document, counts);
    }
    EXPECT_GT(counts.accepted - counts.plain, documentCount / 40);
}

TEST(PlacesGenerated, StayWithinDamagedDocuments)
{
    test::DocumentGenerator documents(4);
    test::Random random(5);
    Counts counts;
    for (std::size_t index = 0; index < documentCount && !HasFailure(); ++index)
    {
        std::string document = documents.next();
        for (std::size_t count = random.between(1, 5); count > 0; --count)
        {
            test::damage(document, random);
        }
        expectDocument(document, counts);
    }
    EXPECT_GT(counts.rejected, documentCount / 4);
}
