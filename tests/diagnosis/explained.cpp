#include "explained.h"

#include <vorn/parsers/toml_diagnosis.h>

#include "support/reading.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace toml = vorn::parsers::toml;

namespace test
{
namespace
{

std::string message(const toml::Finding& finding)
{
    return std::to_string(finding.line) + ':' + std::to_string(finding.column) +
           (finding.severity == toml::Severity::error ? " error: " : " warning: ") +
           finding.message;
}

std::string shown(const std::vector<Said>& said)
{
    std::string text;
    for (const Said& one : said)
    {
        text += one.message + "\n  " + one.hint + '\n';
    }
    return text;
}

std::vector<Said> said(const std::string& text, bool strict)
{
    toml::DiagnosisOptions options;
    options.strict = strict;
    std::vector<Said> said;
    for (const toml::Finding& finding : toml::diagnose(text, options))
    {
        said.push_back({message(finding), finding.hint});
    }
    return said;
}

// As in "1:6 error: the array is empty".
bool isError(const Said& said)
{
    return said.message.find(" error: ") == said.message.find(' ');
}

} // namespace

const Said emptyArray = {"error: the array is empty",
                         "An array needs at least one element. Leave the key out instead."};
const Said emptyTable = {"error: the inline table is empty",
                         "An inline table needs at least one pair. Leave the key out, or use "
                         "a header, [key], with nothing below it."};
const Said noLastLineBreak = {
    "error: the line break at the end of the file is missing",
    "Every pair and every header ends with a line break, including the last one."};
const Said unclosed = {"error: the string is not closed on its line",
                       "Close the string with \" on the same line. A string of several lines "
                       "starts and ends with \"\"\"."};

Said at(const std::string& place, const Said& said)
{
    return {place + ' ' + said.message, said.hint};
}

void expectSaid(const std::vector<Explained>& documents)
{
    for (const Explained& document : documents)
    {
        SCOPED_TRACE(testing::PrintToString(document.text));
        EXPECT_EQ(shown(said(document.text, false)), shown(document.said));
        EXPECT_EQ(read(document.text).accepted,
                  std::none_of(document.said.begin(), document.said.end(), isError));
    }
}

void expectSaidStrictly(const std::vector<Explained>& documents)
{
    for (const Explained& document : documents)
    {
        SCOPED_TRACE(testing::PrintToString(document.text));
        EXPECT_EQ(shown(said(document.text, true)), shown(document.said));
        EXPECT_TRUE(read(document.text).accepted ||
                    std::any_of(document.said.begin(), document.said.end(), isError));
    }
}

} // namespace test
