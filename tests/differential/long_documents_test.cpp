// What the documents reach that are mostly rejected, the long ones and those about recovery.
#include "comparison.h"
#include "escaped.h"
#include "kept_memory.h"
#include "long_documents.h"
#include "plain_text.h"
#include "recovery_documents.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <regex>
#include <string>
#include <utility>
#include <vector>

namespace
{

struct Made
{
    std::string document;
    bool accepted = false;
    bool isWalked = false;
    std::ptrdiff_t lexerErrors = 0;
    std::ptrdiff_t parserErrors = 0;
    std::ptrdiff_t treeErrors = 0;
    std::size_t calls = 0;
    // Where the first error that is displayed was, from 0 to 1; none: 2.
    double firstError = 2;

    std::ptrdiff_t errors() const { return lexerErrors + parserErrors + treeErrors; }
    bool startsWith(const std::string& text) const { return document.rfind(text, 0) == 0; }
    bool has(const std::string& text) const { return document.find(text) != std::string::npos; }
};

double firstErrorIn(const std::string& document, const std::string& display)
{
    const std::string before = "toml(";
    const std::size_t at = display.find(before);
    if (at == std::string::npos)
    {
        return 2;
    }
    const auto lines = std::count(document.begin(), document.end(), '\n') + 1;
    return std::stod(display.substr(at + before.size(), 10)) / static_cast<double>(lines);
}

Made readByAll(std::string document)
{
    const test::Comparison comparison = test::compareQuickly(document);
    EXPECT_TRUE(comparison.isWell()) << test::escaped(document.substr(0, 1000));
    const test::Reading& reading = comparison.reference;
    const auto lines = [&reading](const std::string& start)
    {
        return std::count_if(reading.lines.begin(), reading.lines.end(),
                             [&start](const test::LogLine& line)
                             { return line.format.rfind(start, 0) == 0; });
    };
    const double firstError = firstErrorIn(document, reading.standardError);
    return {std::move(document),           reading.accepted,
            lines("Failed to visit") == 0, lines("Invalid TOML: lexer"),
            lines("Invalid TOML: parser"), lines("Invalid TOML: tree parser"),
            reading.events.size(),         firstError};
}

template <typename Generator>
std::vector<Made> makeAndRead(std::size_t count)
{
    test::keepMemory();
    Generator generator(1);
    std::vector<Made> all;
    while (all.size() < count)
    {
        all.push_back(readByAll(generator.next()));
    }
    return all;
}

const std::vector<Made>& longDocuments()
{
    static const std::vector<Made> all = makeAndRead<test::LongDocumentGenerator>(300);
    return all;
}

const std::vector<Made>& recoveryDocuments()
{
    static const std::vector<Made> all = makeAndRead<test::RecoveryDocumentGenerator>(5000);
    return all;
}

using Predicate = std::function<bool(const Made&)>;

// How many of a hundred.
double share(const std::vector<Made>& all, const Predicate& holds)
{
    const auto count = std::count_if(all.begin(), all.end(), holds);
    return 100.0 * static_cast<double>(count) / static_cast<double>(all.size());
}

struct Kind
{
    const char* name;
    Predicate holds;
};

void expectKinds(const std::vector<Made>& all, const std::vector<Kind>& kinds, double least)
{
    for (const Kind& kind : kinds)
    {
        EXPECT_GE(share(all, kind.holds), least) << kind.name;
    }
}

const std::vector<Kind> errorKinds = {
    {"errors of the lexer alone",
     [](const Made& one) { return one.lexerErrors > 0 && one.parserErrors == 0; }},
    {"errors of the parser alone",
     [](const Made& one) { return one.lexerErrors == 0 && one.parserErrors > 0; }},
    {"errors of both", [](const Made& one) { return one.lexerErrors > 0 && one.parserErrors > 0; }},
    {"a walk that fails", [](const Made& one) { return !one.isWalked; }},
    {"a walk that fails without an error before it",
     [](const Made& one) { return !one.isWalked && one.errors() == 0; }},
    {"errors and a walk to the end", [](const Made& one) { return one.isWalked && !one.accepted; }},
    {"a walk with an error", [](const Made& one) { return one.treeErrors > 0; }},
    {"a walk without an error after errors of the parser",
     [](const Made& one) { return one.isWalked && one.parserErrors > 0 && one.treeErrors == 0; }},
    {"a walk with several errors", [](const Made& one) { return one.treeErrors > 1; }},
    {"a walk to the end over several lines, with errors before it",
     [](const Made& one) { return one.isWalked && one.calls > 30 && one.parserErrors > 1; }},
    {"a walk that fails after several lines",
     [](const Made& one) { return !one.isWalked && one.calls > 30; }},
    {"a walk over none of the lines",
     [](const Made& one) { return one.parserErrors > 0 && one.calls == 2; }},
    {"several errors of the parser", [](const Made& one) { return one.parserErrors > 3; }},
    {"many errors", [](const Made& one) { return one.errors() > 9; }},
    {"the first error at the start", [](const Made& one) { return one.firstError < 0.1; }},
    {"the first error in the middle",
     [](const Made& one) { return one.firstError > 0.4 && one.firstError < 0.6; }},
    {"the first error at the end",
     [](const Made& one) { return one.firstError > 0.9 && one.firstError < 2; }},
    {"accepted", [](const Made& one) { return one.accepted; }},
};

const std::vector<Kind> textKinds = {
    {"CRLF", [](const Made& one) { return one.has("\r\n"); }},
    {"a carriage return elsewhere",
     [](const Made& one)
     {
         static const std::regex pattern("\r[^\n]");
         return std::regex_search(one.document, pattern);
     }},
    {"a byte order mark", [](const Made& one) { return one.startsWith("\xEF\xBB\xBF"); }},
    {"a NUL byte", [](const Made& one) { return one.has(std::string(1, '\0')); }},
    {"characters beyond ASCII", [](const Made& one) { return one.has("caf\xC3\xA9"); }},
    {"no line break at the end",
     [](const Made& one) { return one.document.empty() || one.document.back() != '\n'; }},
    {"bytes that the scanner does not know",
     [](const Made& one) { return !test::isPlainText(one.document); }},
};

Kind formOf(const char* name, const char* pattern)
{
    return {name, [pattern = std::regex(pattern)](const Made& one)
            { return !one.accepted && std::regex_search(one.document, pattern); }};
}

} // namespace

TEST(LongDocuments, areValidBeforeTheyAreChanged)
{
    test::keepMemory();
    test::LongDocumentGenerator generator(2);
    for (int count = 50; count > 0; --count)
    {
        const std::string document = generator.valid();
        const test::Comparison comparison = test::compareQuickly(document);
        ASSERT_TRUE(comparison.reference.accepted)
            << test::escaped(document) << comparison.reference.standardError;
    }
}

TEST(LongDocuments, areOfAllSizes)
{
    const auto isBetween = [](std::size_t least, std::size_t limit)
    {
        return [=](const Made& one)
        { return one.document.size() >= least && one.document.size() < limit; };
    };
    EXPECT_GT(share(longDocuments(), isBetween(2'000, 20'000)), 40);
    EXPECT_GT(share(longDocuments(), isBetween(20'000, 100'000)), 20);
    EXPECT_GT(share(longDocuments(), isBetween(100'000, 210'000)), 10);
    EXPECT_EQ(share(longDocuments(), isBetween(300'000, 1'000'000'000)), 0);
}

TEST(LongDocuments, areMostlyRejected)
{
    EXPECT_LT(share(longDocuments(), [](const Made& one) { return one.accepted; }), 30);
}

TEST(LongDocuments, haveErrorsOfAllKinds)
{
    expectKinds(longDocuments(), errorKinds, 1.5);
}

TEST(LongDocuments, haveTextsOfAllKinds)
{
    expectKinds(longDocuments(), textKinds, 1.5);
}

TEST(RecoveryDocuments, areMostlyRejected)
{
    EXPECT_LT(share(recoveryDocuments(), [](const Made& one) { return one.accepted; }), 30);
}

TEST(RecoveryDocuments, haveErrorsOfAllKinds)
{
    expectKinds(recoveryDocuments(), errorKinds, 1.5);
}

TEST(RecoveryDocuments, haveTextsOfAllKinds)
{
    expectKinds(recoveryDocuments(), textKinds, 1.5);
}

TEST(RecoveryDocuments, haveBytesThatTheScannerLeavesToTheLexer)
{
    const auto areValid = [](const Made& one)
    { return one.accepted && !test::isPlainText(one.document); };
    EXPECT_GT(share(recoveryDocuments(), areValid), 1);
}

TEST(RecoveryDocuments, haveAllFormsOfMistakes)
{
    expectKinds(
        recoveryDocuments(),
        {
            formOf("a pair after an open array", R"(= \[1\nc = 3\n)"),
            formOf("a header after an open array", R"(= \[1,?\n\[t)"),
            formOf("open arrays within each other", R"(\[\[1, \[2\n)"),
            formOf("an open inline table", R"(= \{c = 1\n)"),
            formOf("one within an array", R"(\[1, \{c = 2\n)"),
            formOf("an end of what is not open", R"((^|\n)\]\n)"),
            formOf("pairs between brackets", R"(= \[\nc = 3\n[^\]]*\n\]\n)"),
            formOf("an open header", R"(\n\[t\n)"),
            formOf("a header and a pair", R"(\[t\] b = 1)"),
            formOf("LF and CR in a row", "\n\r\n\r"),
            formOf("CR in a row", "\r\r"),
            formOf("a comment after a mistake", "(a =|\\[1|'x) # c\r?\n"),
            formOf("a comment on the next line", "(a =|\\[1|'x)\n# c\n"),
            formOf("a mistake on the first line", R"(^(a|= 1|@|\]|a =|b = \[)\r?\n)"),
            formOf("one without a break at the end", R"(\n(a|= 1|@|\]|a =|b = \[)$)"),
            formOf("one after blank lines", R"(\n\n\n(a|= 1|@|\]|a =|b = \[))"),
            formOf("two in a row", R"(\n(a|= 1|@|\]|a =|a 1)\n(a|= 1|@|\]|a =|a 1)\n)"),
            formOf("a valid line between two",
                   R"((@|\]|= 1|a =|1 2|= b)\n(c = 3|\[t\]|# note|d = .*)\n(.*= b|a 1|@|\]))"),
            formOf("a line break of two bytes", "= 3\xC0\x8A\\[t\\]\n"),
            formOf("an open string", "= ['\"]x\n"),
            formOf("an open string of several lines", "= ('''|\"\"\")x\n"),
        },
        0.02); // one of 5,000
}
