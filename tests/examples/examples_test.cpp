// The configurations in examples/: what reading each of them gives.
#include "support/example_files.h"
#include "support/file_content.h"
#include "support/operations.h"
#include "support/reading.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

using vorn::parsers::toml::FilePath;

namespace
{

char unescaped(std::istream& line)
{
    const int letter = line.get();
    switch (letter)
    {
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    case '\\':
        return '\\';
    case 'x':
    {
        std::string digits(2, '\0');
        line.read(digits.data(), 2);
        return static_cast<char>(std::stoi(digits, nullptr, 16));
    }
    default:
        throw std::runtime_error("a list of events has an unknown escape");
    }
}

// A line of a list of events as the recorder has it, with the bytes themselves.
std::string event(const std::string& line)
{
    std::istringstream escaped(line);
    std::string bytes;
    for (char c = '\0'; escaped.get(c);)
    {
        bytes += c == '\\' ? unescaped(escaped) : c;
    }
    return bytes;
}

test::Events expectedEvents(const std::string& name)
{
    std::istringstream list(test::fileContent(test::exampleEventsPath(name)));
    test::Events events;
    for (std::string line; std::getline(list, line);)
    {
        events.push_back(event(line));
    }
    return events;
}

void expectEvents(const test::Events& actual, const test::Events& expected)
{
    EXPECT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < std::min(actual.size(), expected.size()); ++i)
    {
        ASSERT_EQ(actual[i], expected[i]) << "line " << i + 1 << " of the list of events";
    }
}

void expectRead(const test::Reading& reading, const test::Events& expected)
{
    EXPECT_TRUE(reading.accepted);
    EXPECT_TRUE(reading.lines.empty());
    EXPECT_EQ(reading.standardError, "");
    expectEvents(reading.events, expected);
}

TEST(Examples, HaveAListOfEventsEach)
{
    const std::vector<std::string> names = test::exampleNames();
    EXPECT_GE(names.size(), 5U);
    EXPECT_EQ(test::namesIn(VORN_EXAMPLE_EVENTS, ".events"), names);
}

TEST(Examples, GiveTheirEventsAsAFileAndAsAText)
{
    for (const std::string& name : test::exampleNames())
    {
        SCOPED_TRACE(name);
        const std::string path = test::examplePath(name);
        const test::Events expected = expectedEvents(name);
        {
            SCOPED_TRACE("as a file");
            expectRead(test::read(FilePath(path)), expected);
        }
        SCOPED_TRACE("as a text");
        expectRead(test::read(test::fileContent(path)), expected);
    }
}

TEST(Examples, UseEveryOperationOfTheVisitor)
{
    std::set<std::string> all;
    for (const test::Operation& operation : test::operations)
    {
        all.insert(operation.name);
    }
    std::set<std::string> used;
    for (const std::string& name : test::exampleNames())
    {
        for (const std::string& call : test::read(FilePath(test::examplePath(name))).events)
        {
            used.insert(call.substr(0, call.find(' ')));
        }
    }
    EXPECT_EQ(used, all);
}

} // namespace
