// The library beside the reference pipeline: the examples and what is near to them.
#include "comparison.h"
#include "escaped.h"

#include "support/example_files.h"
#include "support/file_content.h"

#include <gtest/gtest.h>

#include <string_view>

namespace
{

constexpr std::size_t step = VORN_TEST_STEP;

// Names the document of the first difference only: more of them say little.
class ExampleTest : public testing::TestWithParam<std::string>
{
protected:
    const std::string& text() const { return text_; }

    void expectSame(const std::string& document) const
    {
        const test::Comparison comparison = test::compare(document);
        ASSERT_TRUE(comparison.isWell()) << test::escaped(document) << '\n'
                                         << test::describe(comparison);
    }

private:
    const std::string text_ = test::fileContent(test::examplePath(GetParam()));
};

INSTANTIATE_TEST_SUITE_P(Examples, ExampleTest, testing::ValuesIn(test::exampleNames()),
                         [](const auto& example) { return example.param; });

} // namespace

TEST_P(ExampleTest, isReadDirectlyAndInTheSameWay)
{
    expectSame(text());
    const test::Comparison comparison = test::compare(text());
    EXPECT_TRUE(comparison.reference.accepted);
    EXPECT_TRUE(comparison.direct);
    EXPECT_GT(comparison.reference.events.size(), 200U);
}

TEST_P(ExampleTest, isTheSameUpToEachByte)
{
    for (std::size_t length = 0; length < text().size() && !HasFatalFailure(); length += step)
    {
        expectSame(text().substr(0, length));
    }
}

TEST_P(ExampleTest, isTheSameWithoutEachByte)
{
    for (std::size_t at = 0; at < text().size() && !HasFatalFailure(); at += step)
    {
        std::string document = text();
        document.erase(at, 1);
        expectSame(document);
    }
}

// Each byte has other places: all of them would take most of the time of the tests.
TEST_P(ExampleTest, isTheSameWithAnotherByte)
{
    using namespace std::string_view_literals;
    constexpr std::size_t others = 4;
    std::size_t first = 0;
    for (const char byte : "\n \"'\\#=,]{\0\xC3"sv)
    {
        first = (first + 1) % others;
        for (std::size_t at = first; at < text().size() && !HasFatalFailure(); at += others * step)
        {
            std::string document = text();
            document[at] = byte;
            expectSame(document);
        }
    }
}
