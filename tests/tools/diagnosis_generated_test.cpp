// The diagnosis of documents made at random: it finds errors where the library rejects, and
// nowhere else, and what it says can be shown.
#include "diagnosis.h"
#include "excerpt.h"
#include "json_report.h"
#include "source_lines.h"
#include "text_report.h"

#include "differential/crash_report.h"
#include "differential/document_generator.h"
#include "differential/escaped.h"
#include "support/reading.h"
#include "support/temporary_directory.h"
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <set>
#include <string>

namespace
{

constexpr std::size_t count = 20000 / VORN_TEST_STEP;
constexpr std::size_t longest = 20000;

struct Tally
{
    std::size_t accepted = 0;
    std::size_t rejected = 0;
    std::set<tool::ErrorKind> lexicalKinds;
    std::set<tool::ErrorKind> syntaxKinds;
    std::set<std::string> unknown;
};

std::size_t countOf(const test::Reading& reading, const std::string& begin)
{
    return static_cast<std::size_t>(std::count_if(reading.lines.begin(), reading.lines.end(),
                                                  [&](const test::LogLine& line)
                                                  { return line.format.rfind(begin, 0) == 0; }));
}

// The errors of the recognisers are those that the library logs.
void expectLogged(const std::string& text, const test::Reading& reading, Tally& tally)
{
    const tool::Recognition found = tool::recognise(text);
    EXPECT_EQ(found.lexicalErrors.size(), countOf(reading, "Invalid TOML: lexer failure"));
    EXPECT_EQ(found.syntaxErrorsOfLibrary, countOf(reading, "Invalid TOML: parser failure"));
    for (const tool::LexicalError& error : found.lexicalErrors)
    {
        tally.lexicalKinds.insert(error.kind);
    }
    for (const tool::SyntaxError& error : found.syntaxErrors)
    {
        tally.syntaxKinds.insert(error.kind);
        EXPECT_LE(error.token, found.tokens.size());
    }
    const tool::Recognition lexed = tool::findTokens(text);
    EXPECT_EQ(lexed.tokens.size(), found.tokens.size());
    EXPECT_EQ(lexed.end, found.end);
}

// Findings are within the document, in order, have words, and hold no bytes that command a
// terminal.
void expectShowable(const std::string& text, const tool::Diagnosis& diagnosis)
{
    std::size_t before = 0;
    for (const tool::Finding& finding : diagnosis.findings)
    {
        EXPECT_LE(before, finding.begin);
        EXPECT_LE(finding.begin, finding.end);
        EXPECT_LE(finding.end, text.size());
        EXPECT_NE(finding.message, "");
        EXPECT_NE(finding.hint, "");
        before = finding.begin;
    }
    const std::string report = tool::textReport("name", text, diagnosis, false);
    EXPECT_TRUE(std::none_of(report.begin(), report.end(),
                             [](char c) { return (c >= 0 && c < ' ' && c != '\n') || c == 0x7F; }));
    for (const std::string::value_type* at = report.c_str(); *at != '\0';)
    {
        const std::string line(at, std::find(at, report.c_str() + report.size(), '\n'));
        EXPECT_TRUE(line.find(" | ") == std::string::npos || line.size() < 500);
        at += line.size() + 1;
    }
    const auto json = tool::jsonReport("name", tool::rejected, text, diagnosis);
    EXPECT_EQ(json["findings"].size(), diagnosis.findings.size());
    EXPECT_NO_THROW(json.dump());
}

void expectDiagnosed(const std::string& text, Tally& tally)
{
    const test::Reading reading = test::read(text);
    ++(reading.accepted ? tally.accepted : tally.rejected);
    const tool::Diagnosis diagnosis = tool::diagnose(text);
    ASSERT_EQ(diagnosis.refusal, tool::Refusal::none);
    EXPECT_EQ(diagnosis.errors == 0, reading.accepted);
    if (reading.accepted)
    {
        EXPECT_EQ(tool::warningsFor(text).size(), diagnosis.findings.size());
    }
    expectLogged(text, reading, tally);
    expectShowable(text, diagnosis);
}

// Such a number of documents holds every kind of error.
void expectEveryKind(const Tally& tally)
{
    using tool::ErrorKind;
    EXPECT_EQ(tally.lexicalKinds,
              (std::set<ErrorKind>{ErrorKind::recognition, ErrorKind::noAlternative,
                                   ErrorKind::mismatchedSet, ErrorKind::earlyExit}));
    EXPECT_EQ(tally.syntaxKinds,
              (std::set<ErrorKind>{ErrorKind::recognition, ErrorKind::noAlternative,
                                   ErrorKind::unwantedToken, ErrorKind::missingToken}));
}

} // namespace

TEST(DiagnosisOfGeneratedDocuments, findsErrorsInThoseThatAreRejected)
{
    test::DocumentGenerator generator(20261121);
    std::string document;
    test::reportCrashesOn(document);
    Tally tally;
    for (std::size_t number = 0; number < count && !HasFailure();)
    {
        document = generator.next();
        if (document.size() <= longest)
        {
            ++number;
            SCOPED_TRACE(test::escaped(document));
            expectDiagnosed(document, tally);
        }
    }
    EXPECT_GT(tally.accepted, count / 4);
    EXPECT_GT(tally.rejected, count / 4);
    // A shortened run does not meet the rare ones.
    if (VORN_TEST_STEP == 1)
    {
        expectEveryKind(tally);
    }
}

TEST(DiagnosisOfGeneratedDocuments, isThatOfTheProgram)
{
    const test::TemporaryDirectory directory;
    test::DocumentGenerator generator(1);
    std::vector<std::string> words = {"check"};
    std::string verdicts;
    int worst = test::accepted;
    for (std::size_t number = 0; number < count / 10; ++number)
    {
        const std::string document = generator.next().substr(0, longest);
        words.push_back(directory.write(std::to_string(number), document));
        const bool accepted = test::read(document).accepted;
        verdicts += words.back() + (accepted ? ": accepted\n" : ": rejected\n");
        worst = std::max<int>(worst, accepted ? test::accepted : test::rejected);
    }
    const test::ProgramRun run = test::runTool(words);
    EXPECT_EQ(run.status, worst);
    EXPECT_EQ(run.standardOutput, verdicts);
}
