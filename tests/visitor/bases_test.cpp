// The visitors to derive from: one does nothing, the other refuses.
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <stdexcept>
#include <type_traits>

#include "support/driver_log.h"
#include "support/event_lists.h"
#include "support/file_content.h"
#include "support/operations.h"
#include "support/reading.h"

using namespace std::string_literals;
using namespace test;
using vorn::parsers::toml::StrictTomlTreeVisitor;
using vorn::parsers::toml::TomlTreeVisitor;
using vorn::parsers::toml::visitTomlTree;

namespace
{

// It has each operation at least once.
const std::string everything = "bare = \"basic\"\n\"quoted\" = 'literal'\ndotted.key = [1, 2.5]\n"
                               "[table]\na = {b = true}\n[[array]]\n"
                               "c = \"\"\"multi-line basic\"\"\"\nd = '''multi-line literal'''\n"
                               "e = 2024-03-01T08:00:00Z\nf = 2024-03-01T08:00:00\n"
                               "g = 2024-03-01\nh = 08:00:00\n";

// Which operation a strict visitor refuses in a call; none for "".
template <typename Call>
std::string refused(const Call& call)
{
    try
    {
        call();
    }
    catch (const std::logic_error& error)
    {
        return error.what();
    }
    return "";
}

// The names of the operations that the header declares pure, and so leaves to others.
std::vector<std::string> operationsOfTheHeader()
{
    const std::string header = fileContent(VORN_HEADER);
    const std::regex declaration(R"(virtual void (\w+)\((?:const char\* text)?\) = 0;)");
    std::vector<std::string> names;
    for (std::sregex_iterator found(header.begin(), header.end(), declaration), end; found != end;
         ++found)
    {
        names.push_back(found->str(1));
    }
    return names;
}

class Integers : public TomlTreeVisitor
{
public:
    Events events;
    void visitInteger(const char* text) override { events.push_back("visitInteger "s + text); }
};

// What is needed for pairs of integers with bare keys.
class IntegerPairs : public StrictTomlTreeVisitor
{
public:
    Events events;
    void beginDocument() override { events.emplace_back("beginDocument"); }
    void endDocument() override { events.emplace_back("endDocument"); }
    void beginKeyValue() override { events.emplace_back("beginKeyValue"); }
    void endKeyValue() override { events.emplace_back("endKeyValue"); }
    void visitBareKey(const char* text) override { events.push_back("visitBareKey "s + text); }
    void visitInteger(const char* text) override { events.push_back("visitInteger "s + text); }
};

} // namespace

TEST(VisitorBases, coverTheOperationsOfTheInterface)
{
    std::vector<std::string> names;
    for (const Operation& operation : operations)
    {
        names.push_back(operation.name);
    }
    EXPECT_EQ(operationsOfTheHeader(), names);
    EXPECT_FALSE(std::is_abstract_v<TomlTreeVisitor>);
    EXPECT_FALSE(std::is_abstract_v<StrictTomlTreeVisitor>);
    EXPECT_EQ(sizeof(TomlTreeVisitor), sizeof(void*));
    EXPECT_EQ(sizeof(StrictTomlTreeVisitor), sizeof(void*));
}

TEST(VisitorBases, theDocumentOfTheseTestsHasEveryOperation)
{
    const Reading reading = read(everything);
    EXPECT_TRUE(reading.accepted);
    for (const Operation& operation : operations)
    {
        const bool isCalled =
            std::any_of(reading.events.begin(), reading.events.end(),
                        [&operation](const std::string& event)
                        { return event.substr(0, event.find(' ')) == operation.name; });
        EXPECT_TRUE(isCalled) << operation.name;
    }
}

// A null text, which is not the library's, shows that no operation looks at it.
TEST(TomlTreeVisitor, doesNothingInAnyOperation)
{
    TomlTreeVisitor visitor;
    for (const Operation& operation : operations)
    {
        SCOPED_TRACE(operation.name);
        const StderrCapture standardError;
        EXPECT_NO_THROW(operation.call(visitor, nullptr));
        EXPECT_EQ(standardError.text(), "");
    }
}

TEST(TomlTreeVisitor, takesAnyDocument)
{
    TomlTreeVisitor visitor;
    const LogRecorder log;
    EXPECT_TRUE(visitTomlTree(everything, visitor));
    EXPECT_FALSE(visitTomlTree("a = 1"s, visitor));
    EXPECT_EQ(log.messages(), Messages{walkFailure()});
}

TEST(TomlTreeVisitor, leavesToOthersWhatTheyOverride)
{
    Integers visitor;
    EXPECT_TRUE(visitTomlTree(everything, visitor));
    EXPECT_EQ(visitor.events, Events{"visitInteger 1"});
}

TEST(StrictTomlTreeVisitor, refusesEveryOperationByItsName)
{
    StrictTomlTreeVisitor visitor;
    for (const Operation& operation : operations)
    {
        EXPECT_EQ(refused([&] { operation.call(visitor, nullptr); }),
                  operation.name + " is not overridden");
    }
}

TEST(StrictTomlTreeVisitor, letsReadWhatIsOverridden)
{
    IntegerPairs visitor;
    EXPECT_EQ(refused([&] { EXPECT_TRUE(visitTomlTree("a = 1\n"s, visitor)); }), "");
    EXPECT_EQ(visitor.events, document({pair(bare("a"), integer("1"))}));
}

TEST(StrictTomlTreeVisitor, endsTheReadingAtWhatIsNot)
{
    struct Document
    {
        std::string text;
        std::string operation;
    };
    for (const auto& [text, operation] : std::vector<Document>{
             {"a = 1.5\n", "visitFloat"},
             {"[t]\n", "beginTable"},
             {"a = [1]\n", "beginArray"},
             {"a.b = 1\n", "beginDottedKey"},
             {"a = 1.5", "visitFloat"}, // which would be rejected, too
         })
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const LogRecorder log;
        IntegerPairs visitor;
        EXPECT_EQ(refused([&] { visitTomlTree("x = 7\n" + text, visitor); }),
                  operation + " is not overridden");
        ASSERT_GT(visitor.events.size(), 4u);
        EXPECT_EQ(visitor.events[4], "endKeyValue"); // the line before has been reported
    }
}
