// The examples that the public header gives for visitors: they do what it says.
#include <gtest/gtest.h>

#include <vorn/parsers/toml.h>

#include <algorithm>
#include <regex>
#include <sstream>
#include <string>

#include "support/event_lists.h"
#include "support/file_content.h"
#include "support/reading.h"

using namespace vorn::parsers::toml;

namespace
{

// The lines of the header after one up to another, which are comments, without their slashes.
std::string headerComment(const std::string& before, const std::string& after)
{
    const std::string header = test::fileContent(VORN_HEADER);
    const auto line = header.find("\n// " + before);
    const auto begin = header.find('\n', line + 1);
    const auto end = header.find("\n// " + after, begin);
    if (line == std::string::npos || end == std::string::npos)
    {
        return "no lines from " + before + " to " + after;
    }
    return std::regex_replace(header.substr(begin, end - begin), std::regex("\n//(   )?"), "\n");
}

std::string withSingleBlanks(const std::string& text)
{
    return std::regex_replace(text, std::regex("\\s+"), " ");
}

#define SHOWN(...)                                                                                 \
    __VA_ARGS__                                                                                    \
    const std::string shown = #__VA_ARGS__

// clang-format off
SHOWN(
class Sum : public TomlTreeVisitor
{
public:
    long long sum = 0;
    void visitInteger(const char* text) override { sum += parseInteger(text); }
};
);
// clang-format on

} // namespace

TEST(HeaderExamples, showTheCallsOfADocument)
{
    const std::string heading = "# document                 # calls";
    std::istringstream lines(headerComment("  " + heading, "A header does not"));
    std::string document;
    std::string calls;
    for (std::string line; std::getline(lines, line);)
    {
        line.resize(std::max(line.size(), heading.size()), ' ');
        const std::size_t column = heading.find("# calls");
        document += line.substr(0, column) + "\n";
        calls += line.substr(column) + ",";
    }
    test::Events expected;
    const std::regex call(R"([^\s,][^,]*[^\s,])");
    for (std::sregex_iterator found(calls.begin(), calls.end(), call), end; found != end; ++found)
    {
        expected.push_back(found->str());
    }
    const test::Reading reading = test::read(document);
    EXPECT_TRUE(reading.accepted);
    EXPECT_EQ(reading.events, expected);
    EXPECT_EQ(expected.size(), 19u);
}

TEST(HeaderExamples, showAClientsVisitor)
{
    const std::string example = withSingleBlanks(
        headerComment("A visitor whose operations do nothing", "What you do not override"));
    const std::string use = R"(Sum visitor;
        visitTomlTree("a = [1, 2]\nb = 0x10\n", visitor); // visitor.sum is 19)";
    EXPECT_EQ(example, " " + withSingleBlanks(shown + " " + use) + " ");
    Sum visitor;
    EXPECT_TRUE(visitTomlTree("a = [1, 2]\nb = 0x10\n", visitor));
    EXPECT_EQ(visitor.sum, 19);
}
