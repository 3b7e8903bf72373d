// The diagnosis of documents made at random: it finds errors where the library rejects, and
// nowhere else, and what it says can be shown.
#include <vorn/parsers/toml_diagnosis.h>

#include "diagnosis/choice.h"
#include "diagnosis/location.h"
#include "diagnosis/token_reader.h"

#include "differential/crash_report.h"
#include "differential/document_generator.h"
#include "differential/escaped.h"
#include "support/reading.h"
#include "support/temporary_directory.h"
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace toml = vorn::parsers::toml;
namespace diagnosis = toml::diagnosis;

namespace
{

using diagnosis::ErrorKind;

constexpr std::size_t count = 20000 / VORN_TEST_STEP;
constexpr std::size_t longest = 20000;

struct Tally
{
    std::size_t accepted = 0;
    std::size_t rejected = 0;
    std::size_t different = 0; // from what is found in the whole document
    std::set<ErrorKind> lexicalKinds;
    std::set<ErrorKind> syntaxKinds;
};

std::size_t countOf(const test::Reading& reading, const std::string& begin)
{
    return static_cast<std::size_t>(std::count_if(reading.lines.begin(), reading.lines.end(),
                                                  [&](const test::LogLine& line)
                                                  { return line.format.rfind(begin, 0) == 0; }));
}

// The errors of the recognisers are those that the library logs.
void expectLogged(const diagnosis::Recognition& found, const test::Reading& reading, Tally& tally)
{
    EXPECT_EQ(found.lexicalErrors.size(), countOf(reading, "Invalid TOML: lexer failure"));
    EXPECT_EQ(found.syntaxErrorsOfLibrary, countOf(reading, "Invalid TOML: parser failure"));
    for (const diagnosis::LexicalError& error : found.lexicalErrors)
    {
        tally.lexicalKinds.insert(error.kind);
    }
    for (const diagnosis::SyntaxError& error : found.syntaxErrors)
    {
        tally.syntaxKinds.insert(error.kind);
        EXPECT_LE(error.token, found.tokens.size());
    }
}

// The reader of tokens has those that the parser gets.
void expectSameTokens(const std::string& text, const diagnosis::Recognition& found)
{
    diagnosis::TokenReader reader(text, 0, diagnosis::TokenReader::Errors::all);
    for (const diagnosis::DocumentToken& token : found.tokens)
    {
        const diagnosis::DocumentToken read = reader.next();
        EXPECT_EQ(read.type, token.type);
        EXPECT_EQ(read.begin, token.begin);
        EXPECT_EQ(read.end, token.end);
    }
    EXPECT_EQ(reader.next().begin, found.end);
    EXPECT_EQ(reader.errors().size(), found.lexicalErrors.size());
}

// Findings are within the document, in order, have words, and hold no bytes that command a
// terminal.
void expectShowable(const std::string& text, const std::vector<toml::Finding>& findings)
{
    std::size_t before = 0;
    for (const toml::Finding& finding : findings)
    {
        EXPECT_LE(before, finding.begin);
        EXPECT_LE(finding.begin, finding.end);
        EXPECT_LE(finding.end, text.size());
        EXPECT_NE(finding.code, "");
        EXPECT_NE(finding.message, "");
        EXPECT_NE(finding.hint, "");
        before = finding.begin;
        const std::string shown =
            finding.message + finding.hint + '\n' + toml::excerpt(text, finding);
        EXPECT_TRUE(std::none_of(shown.begin(), shown.end(),
                                 [](char c)
                                 { return (c >= 0 && c < ' ' && c != '\n') || c == 0x7F; }));
        for (std::size_t at = 0, end = 0; at < shown.size(); at = end + 1)
        {
            end = std::min(shown.find('\n', at), shown.size());
            EXPECT_LT(end - at, 500U);
        }
    }
}

using Places = std::vector<std::pair<std::size_t, std::string>>;

// Statement by statement, the same is found as in the whole document.  (Not always: a parser that
// was lost takes up the whole document in another state than a single statement, and may tell
// more, or less, of what follows from its first mistake.)
void compareWithWhole(const std::string& text, const std::vector<toml::Finding>& findings,
                      const diagnosis::Recognition& found, Tally& tally)
{
    std::vector<diagnosis::Mistake> mistakes;
    diagnosis::addMistakes(text, found, mistakes);
    Places ofWhole;
    for (const toml::Finding& mistake : diagnosis::located(text, std::move(mistakes)))
    {
        ofWhole.emplace_back(mistake.begin, mistake.message);
    }
    Places ofParts;
    for (const toml::Finding& finding : findings)
    {
        if (finding.severity == toml::Severity::error)
        {
            ofParts.emplace_back(finding.begin, finding.message);
        }
    }
    ASSERT_EQ(ofParts.empty(), ofWhole.empty());
    if (!ofParts.empty())
    {
        EXPECT_EQ(ofParts[0], ofWhole[0]);
        tally.different += ofParts == ofWhole ? 0 : 1;
    }
}

void expectDiagnosed(const std::string& text, Tally& tally)
{
    const test::Reading reading = test::read(text);
    ++(reading.accepted ? tally.accepted : tally.rejected);
    toml::DiagnosisOptions all;
    all.maxFindings = 0;
    const std::vector<toml::Finding> findings = toml::diagnose(text, all);
    EXPECT_EQ(std::none_of(findings.begin(), findings.end(),
                           [](const toml::Finding& one)
                           { return one.severity == toml::Severity::error; }),
              reading.accepted);
    test::EventRecorder visitor;
    toml::visitOrDiagnose(text, visitor, all);
    EXPECT_EQ(visitor.events(), reading.accepted ? reading.events : test::Events());
    const diagnosis::Recognition found = diagnosis::recognise(text, diagnosis::wholeOf(text));
    expectLogged(found, reading, tally);
    expectSameTokens(text, found);
    expectShowable(text, findings);
    compareWithWhole(text, findings, found, tally);
}

// Such a number of documents holds every kind of error.
void expectEveryKind(const Tally& tally)
{
    EXPECT_EQ(tally.lexicalKinds,
              (std::set<ErrorKind>{ErrorKind::recognition, ErrorKind::noAlternative,
                                   ErrorKind::mismatchedSet, ErrorKind::other}));
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
    EXPECT_LT(tally.different, count / 300);
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
    // After them is a line about all files.
    EXPECT_EQ(run.standardOutput.substr(0, verdicts.size()), verdicts);
}
