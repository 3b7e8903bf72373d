// The visitor's interface: the order of its operations and what they are called with.
#include <gtest/gtest.h>

#include <cstring>
#include <type_traits>

#include "support/event_lists.h"
#include "support/operations.h"
#include "support/reading.h"

using namespace test;
using vorn::parsers::toml::ITomlTreeVisitor;

namespace
{

// The destructor has two entries in the table of virtual functions, which come first.
constexpr std::size_t destructorEntries = 2;

// Calls an entry of the table, with a text or without.
template <typename... Text>
void callEntry(ITomlTreeVisitor& visitor, std::size_t index, Text... text)
{
    void (*const* table)(ITomlTreeVisitor*, Text...) = nullptr;
    std::memcpy(&table, static_cast<void*>(&visitor), sizeof(table));
    table[index](&visitor, text...);
}

void expectCalls(const std::string& text, const Events& events)
{
    SCOPED_TRACE(testing::PrintToString(text));
    const Reading reading = read(text);
    EXPECT_TRUE(reading.accepted);
    EXPECT_EQ(reading.events, events);
}

} // namespace

TEST(Visitor, operationsKeepTheirPlacesInTheTable)
{
    EXPECT_EQ(operations.size(), 27u);
    for (std::size_t index = 0; index < operations.size(); ++index)
    {
        const Operation& operation = operations[index];
        SCOPED_TRACE(operation.name);
        EventRecorder visitor;
        operation.call(visitor, "the text");
        const std::size_t entry = destructorEntries + index;
        operation.takesText() ? callEntry(visitor, entry, "the text") : callEntry(visitor, entry);
        const std::string event = operation.name + (operation.takesText() ? " the text" : "");
        EXPECT_EQ(visitor.events(), Events({event, event}));
    }
}

TEST(Visitor, theDestructorIsFirstInTheTable)
{
    class Destroyed : public EventRecorder
    {
    public:
        explicit Destroyed(int& count) : count_(count) {}
        ~Destroyed() override { ++count_; }

    private:
        int& count_;
    };

    int count = 0;
    // The first entry destroys in place, the second one frees the memory as well.
    alignas(Destroyed) unsigned char memory[sizeof(Destroyed)];
    callEntry(*new (memory) Destroyed(count), 0);
    EXPECT_EQ(count, 1);
    callEntry(*new Destroyed(count), 1);
    EXPECT_EQ(count, 2);
}

TEST(Visitor, hasNoDataOfItsOwn)
{
    EXPECT_TRUE(std::is_abstract_v<ITomlTreeVisitor>);
    EXPECT_TRUE(std::has_virtual_destructor_v<ITomlTreeVisitor>);
    EXPECT_EQ(sizeof(ITomlTreeVisitor), sizeof(void*));
}

TEST(Visitor, aPairEnclosesItsKeyAndValue)
{
    expectCalls("a = 1\n", {"beginDocument", "beginKeyValue", "visitBareKey a", "visitInteger 1",
                            "endKeyValue", "endDocument"});
}

TEST(Visitor, aHeaderEnclosesItsKey)
{
    expectCalls("[t.\"u\"]\n", {"beginDocument", "beginTable", "beginDottedKey", "visitBareKey t",
                                "visitQuotedKey \"u\"", "endDottedKey", "endTable", "endDocument"});
}

// An empty inline table cannot be written in a document, so this one has a pair.
TEST(Visitor, anArrayEnclosesItsElements)
{
    expectCalls("x = [true, {y = 1}]\n",
                {"beginDocument", "beginKeyValue", "visitBareKey x", "beginArray",
                 "visitBoolean true", "beginInlineTable", "beginKeyValue", "visitBareKey y",
                 "visitInteger 1", "endKeyValue", "endInlineTable", "endArray", "endKeyValue",
                 "endDocument"});
}

TEST(Visitor, quotedKeysAndStringsOfTheSameTextAreToldApart)
{
    expectCalls("\"s\" = \"s\"\n's' = 's'\n",
                document({pair(quoted("\"s\""), scalar("visitBasicString", "\"s\"")),
                          pair(quoted("'s'"), scalar("visitLiteralString", "'s'"))}));
}

TEST(Visitor, infinitiesAndNotANumberAreFloats)
{
    for (const std::string value : {"inf", "+inf", "-inf", "nan", "+nan", "-nan"})
    {
        expectCalls("a = " + value + "\n",
                    document({pair(bare("a"), scalar("visitFloat", value))}));
    }
}
