#include "config/problems.h"

#include "told_problems.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

using namespace vorn::parsers::toml;
using config::Problems;
using config::Source;

Problem problemWith(const std::string& message, Severity severity = Severity::error)
{
    Problem problem;
    problem.message = message;
    problem.severity = severity;
    return problem;
}

const std::string one = "a = 1\nb = 2\n";
const std::string two = "\xEF\xBB\xBF"
                        "c = 3\n";
const std::vector<Source> sources{{"", &one}, {"two.toml", &two}};

} // namespace

TEST(Problems, haveAPlaceInTheirDocument)
{
    Problems problems;
    problems.add({0, 10}, problemWith("number"));
    problems.add({1, 3}, problemWith("key"));
    const std::vector<Problem> found = problems.take(sources);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].place.line, 2U);
    EXPECT_EQ(found[0].place.column, 5U);
    EXPECT_EQ(found[0].place.offset, 10U);
    EXPECT_EQ(found[0].file, "");
    EXPECT_EQ(test::told(found), "2:5: number\ntwo.toml:1:1: key\n");
}

TEST(Problems, areInTheOrderOfTheDocuments)
{
    Problems problems;
    problems.add({1, 3}, problemWith("5"));
    problems.add({0, 0}, problemWith("7"), Problems::Order::last);
    problems.add({0, 6}, problemWith("2"));
    problems.add({1, 7}, problemWith("6"));
    problems.add({0, 0}, problemWith("1", Severity::warning));
    problems.add({0, 6}, problemWith("3"));
    problems.add({0, 10}, problemWith("4"));
    problems.add({1, 3}, problemWith("8"), Problems::Order::last);
    std::string order;
    for (const Problem& problem : problems.take(sources))
    {
        order += problem.message;
    }
    EXPECT_EQ(order, "12345678");
}

TEST(Problems, areAtMostAThousand)
{
    Problems problems;
    for (std::size_t i = 0; i < Problems::max; ++i)
    {
        ASSERT_TRUE(problems.takes(problemWith("")));
        problems.add({0, 0}, problemWith(std::to_string(i)));
    }
    EXPECT_FALSE(problems.takes(problemWith("")));
    EXPECT_FALSE(problems.takes(problemWith("", Severity::warning)));
    problems.add({0, 0}, problemWith("late"));
    const std::vector<Problem> found = problems.take(sources);
    ASSERT_EQ(found.size(), 1000U);
    EXPECT_EQ(found.back().message, "999");
}

TEST(Problems, keepAnErrorAmongManyWarnings)
{
    Problems problems;
    for (std::size_t i = 0; i < Problems::max; ++i)
    {
        problems.add({0, 0}, problemWith("warning", Severity::warning));
    }
    EXPECT_FALSE(problems.takes(problemWith("", Severity::warning)));
    ASSERT_TRUE(problems.takes(problemWith("")));
    problems.add({0, 0}, problemWith("first error"));
    EXPECT_FALSE(problems.takes(problemWith("")));
    problems.add({0, 0}, problemWith("second error"));
    const std::vector<Problem> found = problems.take(sources);
    ASSERT_EQ(found.size(), 1000U);
    EXPECT_EQ(found.back().message, "first error");
    EXPECT_EQ(found[998].message, "warning");
    EXPECT_TRUE(config::haveErrors(found));
}

TEST(Problems, mayBeWarningsOnly)
{
    EXPECT_FALSE(config::haveErrors({}));
    EXPECT_FALSE(config::haveErrors({problemWith("", Severity::warning)}));
    EXPECT_TRUE(config::haveErrors({problemWith("", Severity::warning), problemWith("")}));
}

TEST(Problem, isPrintedWithoutWhatThereIsNot)
{
    Problem problem = problemWith("is wrong");
    EXPECT_EQ(test::told({problem}), "is wrong\n");
    problem.place = {13, 8, 100};
    EXPECT_EQ(test::told({problem}), "13:8: is wrong\n");
    problem.path = "a.b";
    problem.hint = "mend it";
    EXPECT_EQ(test::told({problem}), "13:8: a.b: is wrong (mend it)\n");
    problem.file = "app.toml";
    problem.severity = Severity::warning;
    EXPECT_EQ(test::told({problem}), "app.toml:13:8: warning: a.b: is wrong (mend it)\n");
    problem.place = {};
    EXPECT_EQ(test::told({problem}), "app.toml: warning: a.b: is wrong (mend it)\n");
}
