#include "config/findings.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using namespace vorn::parsers::toml;
using config::problemOf;
using config::StrictFindings;

} // namespace

TEST(StrictFindings, areWhatIsDefinedTwice)
{
    const std::string document = "a = 1\nb = 1979-02-30\na = 99999999999999999999\n[c]\n[c]\n";
    StrictFindings strict(document);
    const auto& twice = strict.definedTwice();
    ASSERT_EQ(twice.size(), 2U);
    EXPECT_EQ(twice[0].code, "duplicate-key");
    EXPECT_EQ(twice[0].begin, 21U);
    EXPECT_EQ(twice[1].code, "duplicate-table");
    // They are looked for once.
    EXPECT_EQ(&strict.definedTwice(), &twice);
}

TEST(StrictFindings, areValuesThatThereAreNot)
{
    const std::string document = "a = 1979-02-30\nb = \"x\\uD800\"\n";
    StrictFindings strict(document);
    const Finding* const date = strict.noValueIn(4, 14);
    ASSERT_NE(date, nullptr);
    EXPECT_EQ(date->code, "date-does-not-exist");
    EXPECT_EQ(strict.noValueIn(date->begin, date->begin + 1), date);
    EXPECT_EQ(strict.noValueIn(4, date->begin), nullptr);
    const Finding* const escape = strict.noValueIn(19, 29);
    ASSERT_NE(escape, nullptr);
    EXPECT_EQ(escape->code, "escape-of-no-character");
    EXPECT_EQ(strict.noValueIn(0, 4), nullptr);
    EXPECT_EQ(strict.noValueIn(15, 19), nullptr);
    EXPECT_EQ(strict.noValueIn(29, 30), nullptr);
    EXPECT_TRUE(strict.definedTwice().empty());
}

TEST(StrictFindings, areNothingInAStrictDocument)
{
    const std::string document = "a = 1\n";
    StrictFindings strict(document);
    EXPECT_TRUE(strict.definedTwice().empty());
    EXPECT_EQ(strict.noValueIn(0, document.size()), nullptr);
}

TEST(ProblemOfAFinding, saysTheSame)
{
    Finding finding;
    finding.code = "empty-array";
    finding.message = "an empty array";
    finding.hint = "Leave it out.";
    finding.severity = Severity::warning;
    finding.related.push_back({});
    const Problem problem = problemOf(finding);
    EXPECT_EQ(problem.message, "an empty array");
    EXPECT_EQ(problem.hint, "Leave it out.");
    EXPECT_EQ(problem.severity, Severity::warning);
    EXPECT_EQ(problem.path, "");
}

TEST(ProblemOfAFinding, hasThePlaceOfTheFirstDefinition)
{
    Finding finding;
    finding.code = "duplicate-key";
    finding.hint = "Leave it out.";
    EXPECT_EQ(problemOf(finding).hint, "Leave it out.");
    RelatedPlace first;
    first.line = 3;
    first.column = 5;
    first.message = "it is defined here first";
    finding.related = {first};
    EXPECT_EQ(problemOf(finding).hint, "it is defined at 3:5 first");
    finding.related[0].message = "the first one is";
    EXPECT_EQ(problemOf(finding).hint, "the first one is at 3:5");
}
