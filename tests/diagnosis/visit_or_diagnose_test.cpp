#include <vorn/parsers/toml_diagnosis.h>

#include "support/reading.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

namespace toml = vorn::parsers::toml;

struct Visited
{
    std::vector<toml::Finding> findings;
    test::Events events;
};

// Expects that nothing is logged, or written to standard error.
Visited visited(const std::string& text, const toml::DiagnosisOptions& options = {})
{
    test::EventRecorder visitor;
    const test::LogRecorder log;
    const test::StderrCapture standardError;
    Visited result{toml::visitOrDiagnose(text, visitor, options), {}};
    result.events = visitor.events();
    EXPECT_TRUE(log.lines().empty()) << text;
    EXPECT_EQ(standardError.text(), "") << text;
    return result;
}

toml::DiagnosisOptions strict()
{
    toml::DiagnosisOptions options;
    options.strict = true;
    return options;
}

} // namespace

TEST(VisitOrDiagnose, makesTheCallsOfAnAcceptedDocument)
{
    for (const std::string text : {"", "a = 1\n", "[a.b]\nc = [1, {d = 'x'}]\n", "# only\n"})
    {
        const Visited result = visited(text);
        EXPECT_TRUE(result.findings.empty()) << text;
        EXPECT_EQ(result.events, test::read(text).events) << text;
    }
}

TEST(VisitOrDiagnose, doesNotCallTheVisitorForARejectedDocument)
{
    for (const std::string text : {"a", "a = 1", "a = 1\nb = []\n", "a = \"\xff\n"})
    {
        const Visited result = visited(text);
        ASSERT_FALSE(result.findings.empty()) << text;
        EXPECT_EQ(result.findings[0].severity, toml::Severity::error) << text;
        EXPECT_TRUE(result.events.empty()) << text;
    }
}

// What ends before the text does is read by the recognisers.
TEST(VisitOrDiagnose, returnsTheWarningsOfAnAcceptedDocument)
{
    const std::string text = "a = 1\n# caf\xe9";
    const Visited result = visited(text);
    ASSERT_EQ(result.findings.size(), 1U);
    EXPECT_EQ(result.findings[0].severity, toml::Severity::warning);
    EXPECT_EQ(result.events, test::read(text).events);
}

TEST(VisitOrDiagnose, isStrictIfAsked)
{
    EXPECT_EQ(visited("a = 1\nb = 2\n", strict()).events.size(), 10U);
    const Visited result = visited("a = 1\na = 2\n", strict());
    ASSERT_EQ(result.findings.size(), 1U);
    EXPECT_EQ(result.findings[0].code, "duplicate-key");
    EXPECT_TRUE(result.events.empty());
}

TEST(VisitOrDiagnose, letsThroughWhatTheVisitorThrows)
{
    toml::StrictTomlTreeVisitor visitor;
    EXPECT_THROW(toml::visitOrDiagnose("a = 1\n", visitor), std::logic_error);
}
