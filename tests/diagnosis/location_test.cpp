#include "diagnosis/location.h"

#include <gtest/gtest.h>

#include <string>

namespace toml = vorn::parsers::toml;
using toml::diagnosis::Mistake;

namespace
{

Mistake mistake(std::size_t begin, std::size_t end)
{
    return {toml::Severity::error, begin, end, "code", "message", "hint"};
}

std::string shown(std::size_t line, std::size_t column)
{
    return std::to_string(line) + ':' + std::to_string(column);
}

} // namespace

TEST(Location, countsLinesAndCharacters)
{
    // A byte order mark has no column; a byte that is part of no character has one.
    const std::string text = "\xef\xbb\xbf"
                             "a = 1\r\n\xc3\xa9\xff = 2\n\nb";
    std::vector<Mistake> mistakes = {mistake(3, 4),   mistake(10, 12), mistake(12, 13),
                                     mistake(13, 19), mistake(19, 20), mistake(20, 20)};
    const auto findings = toml::diagnosis::located(text, std::move(mistakes));
    ASSERT_EQ(findings.size(), 6U);
    std::string begins;
    std::string ends;
    for (const toml::Finding& finding : findings)
    {
        begins += shown(finding.line, finding.column) + ' ';
        ends += shown(finding.endLine, finding.endColumn) + ' ';
    }
    EXPECT_EQ(begins, "1:1 2:1 2:2 2:3 4:1 4:2 ");
    EXPECT_EQ(ends, "1:2 2:2 2:3 4:1 4:2 4:2 ");
}

TEST(Location, countsNothingOfAByteOrderMark)
{
    const std::string text = "\xef\xbb\xbf"
                             "a\n";
    const auto findings = toml::diagnosis::located(text, {mistake(0, 3), mistake(1, 4)});
    EXPECT_EQ(shown(findings[0].line, findings[0].column), "1:1");
    EXPECT_EQ(shown(findings[0].endLine, findings[0].endColumn), "1:1");
    EXPECT_EQ(shown(findings[1].line, findings[1].column), "1:1");
    EXPECT_EQ(shown(findings[1].endLine, findings[1].endColumn), "1:2");
}

TEST(Location, takesPlacesInAnyOrder)
{
    const std::string text = "a = 1\nb = 2\nc = 3\n";
    Mistake first = mistake(12, 13);
    first.origins = {{0, 1, "here"}, {6, 7, "and here"}};
    const auto findings = toml::diagnosis::located(text, {first, mistake(4, 5)});
    EXPECT_EQ(shown(findings[0].line, findings[0].column), "3:1");
    ASSERT_EQ(findings[0].related.size(), 2U);
    EXPECT_EQ(shown(findings[0].related[0].line, findings[0].related[0].endColumn), "1:2");
    EXPECT_EQ(shown(findings[0].related[1].endLine, findings[0].related[1].column), "2:1");
    EXPECT_EQ(findings[0].related[1].message, "and here");
    EXPECT_EQ(shown(findings[1].line, findings[1].column), "1:5");
}

TEST(Location, namesTheLineOfAnOrigin)
{
    Mistake opened = mistake(6, 6);
    opened.message = "opened on line ";
    opened.afterLine = ", not closed";
    opened.origins = {{2, 3, "here"}, {0, 1, "and here"}};
    const auto findings = toml::diagnosis::located("a\nb\nc\n", {opened});
    EXPECT_EQ(findings[0].message, "opened on line 2, not closed");
}

TEST(Location, keepsAllElse)
{
    const auto findings = toml::diagnosis::located(
        "a", {{toml::Severity::warning, 0, 1, "empty-array", "the message", "the hint"}});
    EXPECT_EQ(findings[0].severity, toml::Severity::warning);
    EXPECT_EQ(findings[0].begin, 0U);
    EXPECT_EQ(findings[0].end, 1U);
    EXPECT_EQ(findings[0].code, "empty-array");
    EXPECT_EQ(findings[0].message, "the message");
    EXPECT_EQ(findings[0].hint, "the hint");
}
