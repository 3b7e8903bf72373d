// Calls of the visitor, and the texts that it gets.
#include <gtest/gtest.h>

#include "direct/visitor_calls.h"

#include <set>
#include <string>
#include <vector>

#include "support/event_recorder.h"
#include "support/guarded_memory.h"
#include "support/operations.h"

using vorn::parsers::toml::Event;
using vorn::parsers::toml::VisitorCalls;

namespace
{

const char* endOf(const std::string& text)
{
    return text.data() + text.size();
}

// The text of a document's bytes from `begin` on.
std::string terminated(const char* begin, std::size_t length, const char* end)
{
    test::EventRecorder visitor;
    test::GuardedMemory memory(VisitorCalls::bytesFor(length));
    char* const buffer = const_cast<char*>(memory.end()) - VisitorCalls::bytesFor(length);
    VisitorCalls calls(visitor, buffer, end);
    return calls.terminated({begin, length});
}

} // namespace

// Which event is for which operation, tests of whole documents show.
TEST(VisitorCalls, callOneOperationForEachEventAndAnotherForAnother)
{
    const std::string document = "some text";
    std::set<std::string> called;
    for (std::size_t number = 0; number < static_cast<std::size_t>(Event::none); ++number)
    {
        test::EventRecorder visitor;
        std::vector<char> buffer(VisitorCalls::bytesFor(4));
        VisitorCalls calls(visitor, buffer.data(), endOf(document));
        const auto event = static_cast<Event>(number);
        event < Event::visitBareKey ? calls.call(event) : calls.call(event, document.data() + 5);
        ASSERT_EQ(visitor.events().size(), 1u);
        called.insert(visitor.events()[0]);
    }
    std::set<std::string> all;
    for (const test::Operation& operation : test::operations)
    {
        all.insert(operation.name + (operation.takesText() ? " text" : ""));
    }
    all.erase("beginDocument");
    all.erase("endDocument");
    EXPECT_EQ(called, all);
}

TEST(VisitorCalls, knowTheirVisitor)
{
    test::EventRecorder visitor;
    const std::string document = "a";
    const VisitorCalls calls(visitor, nullptr, endOf(document));
    EXPECT_EQ(&calls.visitor(), &visitor);
    EXPECT_EQ(visitor.events(), test::Events());
}

// The text is just before a page that cannot be read, or some bytes before that; its copy is just
// before a page that cannot be written.
TEST(VisitorCalls, terminateTextsThatEndAnywhereBeforeTheDocument)
{
    std::string bytes;
    for (int index = 0; index < 300; ++index)
    {
        bytes += static_cast<char>('A' + index % 50);
    }
    test::GuardedMemory memory(bytes.size());
    memory.hold(bytes);
    for (std::size_t length = 0; length <= 260; ++length)
    {
        for (std::size_t after = 0; after <= 40; ++after)
        {
            const char* const begin = memory.end() - after - length;
            ASSERT_EQ(terminated(begin, length, memory.end()), std::string(begin, length))
                << length << " bytes, " << after << " after them";
        }
    }
}

TEST(VisitorCalls, endEachTextWhereItEndsWhateverCameBefore)
{
    const std::string document(1000, 'x');
    test::EventRecorder visitor;
    std::vector<char> buffer(VisitorCalls::bytesFor(500));
    VisitorCalls calls(visitor, buffer.data(), endOf(document));
    for (const std::size_t length : {500u, 1u, 0u, 127u, 128u, 31u, 32u, 33u, 499u, 126u, 2u, 500u})
    {
        EXPECT_EQ(calls.terminated({document.data(), length}), std::string(length, 'x'));
    }
}
