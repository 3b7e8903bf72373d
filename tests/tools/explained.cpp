#include "explained.h"

#include "diagnosis.h"
#include "source_lines.h"

#include "support/reading.h"

#include <gtest/gtest.h>

namespace test
{
namespace
{

std::string message(const tool::Finding& finding, const tool::SourceLines& lines)
{
    const auto [line, column] = lines.placeOf(finding.begin);
    return std::to_string(line) + ':' + std::to_string(column) +
           (finding.severity == tool::Severity::error ? " error: " : " warning: ") +
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

} // namespace

void expectSaid(const std::vector<Explained>& documents)
{
    for (const Explained& document : documents)
    {
        SCOPED_TRACE(testing::PrintToString(document.text));
        const tool::Diagnosis diagnosis = tool::diagnose(document.text);
        const tool::SourceLines lines(document.text);
        std::vector<Said> said;
        for (const tool::Finding& finding : diagnosis.findings)
        {
            said.push_back({message(finding, lines), finding.hint});
        }
        EXPECT_EQ(shown(said), shown(document.said));
        EXPECT_EQ(diagnosis.errors == 0, document.accepted);
        EXPECT_EQ(read(document.text).accepted, document.accepted);
        if (document.accepted)
        {
            EXPECT_EQ(tool::warningsFor(document.text).size(), document.said.size());
        }
    }
}

} // namespace test
