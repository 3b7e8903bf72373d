// What every call of diagnose() keeps to, whatever the mistakes are.
#include <vorn/parsers/toml_diagnosis.h>

#include "support/large_documents.h"
#include "support/log_recorder.h"
#include "support/reading.h"
#include "support/stderr_capture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <thread>
#include <vector>

namespace toml = vorn::parsers::toml;

namespace
{

using Findings = std::vector<toml::Finding>;

toml::DiagnosisOptions atMost(std::size_t maxFindings)
{
    toml::DiagnosisOptions options;
    options.maxFindings = maxFindings;
    return options;
}

std::string shown(const Findings& findings)
{
    std::string text;
    for (const toml::Finding& one : findings)
    {
        text += std::to_string(one.line) + ':' + std::to_string(one.column) + ' ' + one.code + '\n';
    }
    return text;
}

} // namespace

TEST(Diagnose, findsNothingInAValidDocument)
{
    EXPECT_EQ(shown(toml::diagnose("")), "");
    EXPECT_EQ(shown(toml::diagnose("\xef\xbb\xbf"
                                   "a = 1\n")),
              "");
    EXPECT_EQ(shown(toml::diagnose(test::mixedDocument(100000))), "");
}

TEST(Diagnose, fillsInAllOfAFinding)
{
    const Findings findings = toml::diagnose("a = 1\nna\xc3\xafve = 1\n");
    ASSERT_EQ(findings.size(), 1U);
    const toml::Finding& finding = findings[0];
    EXPECT_EQ(finding.severity, toml::Severity::error);
    EXPECT_EQ(finding.begin, 8U);
    EXPECT_EQ(finding.end, 10U);
    EXPECT_EQ(finding.line, 2U);
    EXPECT_EQ(finding.column, 3U);
    EXPECT_EQ(finding.endLine, 2U);
    EXPECT_EQ(finding.endColumn, 4U);
    EXPECT_EQ(finding.code, "stray-character");
    EXPECT_NE(finding.message, "");
    EXPECT_NE(finding.hint, "");
}

TEST(Diagnose, returnsAtMostSoManyFindings)
{
    const std::string text = test::repeated("a = []\n", 50);
    EXPECT_EQ(toml::diagnose(text).size(), 20U);
    EXPECT_EQ(toml::diagnose(text, atMost(1)).size(), 1U);
    EXPECT_EQ(toml::diagnose(text, atMost(49)).size(), 49U);
    EXPECT_EQ(toml::diagnose(text, atMost(0)).size(), 50U);
}

// An array that is not closed is told at the first token after it, whatever is before that.
TEST(Diagnose, returnsTheFirstFindings)
{
    const std::string text = "a = [\n" + test::repeated("1,\n", 2000) +
                             "\xe2\x80\x9c"
                             "b = 1\n";
    EXPECT_EQ(shown(toml::diagnose(text, atMost(2))),
              "2002:1 stray-character\n2002:2 unclosed-array\n");
    EXPECT_EQ(shown(toml::diagnose(text, atMost(1))), "2002:1 stray-character\n");
}

// What lies within a mistake that is told takes no other one's place.
TEST(Diagnose, returnsAsManyFindingsAsThereAre)
{
    const std::string text = "\"\xc2\x01\n\xa5";
    toml::DiagnosisOptions options = atMost(0);
    options.strict = true;
    const std::string all = shown(toml::diagnose(text, options));
    EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), 2);
    options.maxFindings = 2;
    EXPECT_EQ(shown(toml::diagnose(text, options)), all);
}

TEST(Diagnose, returnsErrorsRatherThanWarningsWhereThereIsNoRoomForBoth)
{
    const std::string text = "a = \"\xed\xa0\x80\"\nb = []\n";
    EXPECT_EQ(toml::diagnose(text).size(), 2U);
    const Findings first = toml::diagnose(text, atMost(1));
    ASSERT_EQ(first.size(), 1U);
    EXPECT_EQ(first[0].severity, toml::Severity::error);
}

TEST(Diagnose, tellsIndependentMistakesOfEachLine)
{
    // A header that is not closed does not swallow what follows.
    EXPECT_EQ(shown(toml::diagnose("[a\n[b\n[c]\nd\n")),
              "1:3 unclosed-header\n2:3 unclosed-header\n4:2 missing-equals\n");
    // Valid lines in between are passed over, with their own.
    const std::string valid = test::mixedDocument(50000);
    const auto lines = static_cast<std::size_t>(std::count(valid.begin(), valid.end(), '\n'));
    EXPECT_EQ(shown(toml::diagnose("a = []\n" + valid + "b = {}\n" + valid + "c\n")),
              "1:6 empty-array\n" + std::to_string(2 + lines) + ":6 empty-inline-table\n" +
                  std::to_string(3 + 2 * lines) + ":2 missing-equals\n");
}

TEST(Diagnose, tellsAnErrorInAStringOfSeveralLinesAsTheLast)
{
    EXPECT_EQ(shown(toml::diagnose("a\nb = \"\"\"\\q\nc = 1\nd\n")),
              "1:2 missing-equals\n2:8 unknown-escape\n");
}

TEST(Diagnose, comparesNoKeysAcrossAStatementThatMayBeAHeader)
{
    const auto strictly = [](const std::string& text)
    {
        toml::DiagnosisOptions options;
        options.strict = true;
        return shown(toml::diagnose(text, options));
    };
    EXPECT_EQ(strictly("a = 1\na = 1\n"), "2:1 duplicate-key\n");
    EXPECT_EQ(strictly("a = 1\n]\na = 1\n"), "2:1 stray-bracket\n");
    // The rest of a statement is no statement, after empty ones either.
    EXPECT_EQ(strictly("[b]\n@[b]\n"), "2:1 stray-character\n");
    EXPECT_EQ(strictly("[b]\n@\n@[b]\n"), "2:1 stray-character\n3:1 stray-character\n");
    // Bytes that are an error are not a warning, too.
    EXPECT_EQ(strictly("@\xff\xff, x\n"), "1:1 stray-character\n1:2 not-utf8\n");
}

TEST(Diagnose, neverLogsOrPrints)
{
    const test::LogRecorder log;
    const test::StderrCapture printed;
    for (const std::string text : {"a = []\n", "a = \"\"\"", "\xff", "a = [[[[\n", "a 1\na 2\n"})
    {
        EXPECT_FALSE(toml::diagnose(text).empty());
    }
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(printed.text(), "");
}

TEST(Diagnose, runsOnManyThreadsAtOnce)
{
    const std::string text = test::mixedDocument(20000) + "a = []\n@\nb = 1 2\n";
    const std::string expected = shown(toml::diagnose(text));
    std::vector<std::string> found(8);
    std::vector<std::thread> threads;
    threads.reserve(found.size());
    for (std::string& one : found)
    {
        threads.emplace_back(
            [&]
            {
                for (int count = 0; count < 5; ++count)
                {
                    one = shown(toml::diagnose(text));
                }
            });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    EXPECT_EQ(found, std::vector<std::string>(found.size(), expected));
}

// Of a statement that is too long for the recognisers the first mistake is told.
TEST(Diagnose, tellsTheFirstMistakeOfALongStatement)
{
    const std::string elements = test::repeated("  1, 2,\n", 20000);
    EXPECT_EQ(shown(toml::diagnose("a = [\n" + elements + "  [],\n  3\n]\nb\n")),
              "20002:4 empty-array\n20005:2 missing-equals\n");
    EXPECT_EQ(shown(toml::diagnose("x = 1\na = [\n" + elements)), "20003:1 unclosed-array\n");
    EXPECT_EQ(shown(toml::diagnose("a = '" + std::string(100000, 'x') + "' 1\nb\n")),
              "1:100008 extra-text\n2:2 missing-equals\n");
    EXPECT_EQ(shown(toml::diagnose("a\n" + std::string(100000, '@') + "\nb\n")),
              "1:2 missing-equals\n2:1 stray-character\n3:2 missing-equals\n");
}

TEST(Excerpt, showsTheLineOfAFinding)
{
    const std::string text = "a = 1\nnames = []\n";
    const Findings findings = toml::diagnose(text);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(toml::excerpt(text, findings[0]), "    2 | names = []\n      |          ^\n");
    toml::Finding missing = findings[0];
    missing.related.push_back({0, 1, 1, 1, 1, 2, "see here"});
    EXPECT_EQ(toml::excerpt(text, missing), "    2 | names = []\n      |          ^\n"
                                            "    1 | a = 1\n      | ^ see here\n");
}

TEST(Excerpt, isSafeForAnotherDocument)
{
    toml::Finding finding;
    finding.begin = 1000;
    finding.end = 500;
    finding.line = 123456;
    EXPECT_EQ(toml::excerpt("a = 1\n", finding), "123456 | \n       | ^\n");
    EXPECT_EQ(toml::excerpt("", finding), "123456 | \n       | ^\n");
}
