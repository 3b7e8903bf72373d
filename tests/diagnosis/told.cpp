#include "told.h"

#include <vorn/parsers/toml_diagnosis.h>

#include "support/reading.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace toml = vorn::parsers::toml;

namespace test
{
namespace
{

std::string place(std::size_t line, std::size_t column)
{
    return std::to_string(line) + ':' + std::to_string(column);
}

Told toldOf(const toml::Finding& finding)
{
    Told told = {place(finding.line, finding.column) + '-' +
                     place(finding.endLine, finding.endColumn),
                 finding.code, finding.message, finding.hint};
    for (const toml::RelatedPlace& other : finding.related)
    {
        told.related.push_back(place(other.line, other.column) + ' ' + other.message);
    }
    return told;
}

std::string shown(const std::vector<Told>& told)
{
    std::string text;
    for (const Told& one : told)
    {
        text += one.place + " [" + one.code + "] " + one.message + "\n  " + one.hint + '\n';
        for (const std::string& related : one.related)
        {
            text += "  " + related + '\n';
        }
    }
    return text;
}

// As in "Strings need quotes: "a"."; empty if there is none.
std::string correctionIn(const std::string& hint)
{
    const std::size_t colon = hint.find(": ");
    if (colon == std::string::npos)
    {
        return {};
    }
    const std::size_t begin = colon + 2;
    return hint.substr(begin, std::min(hint.find(". ", begin), hint.size() - 1) - begin);
}

void expectCorrect(const std::string& document, const toml::Finding& finding)
{
    const std::set<std::string> ofValues = {"unquoted-string", "invalid-number",
                                            "invalid-date-time", "invalid-boolean"};
    const std::string correction = correctionIn(finding.hint);
    if (ofValues.count(finding.code) == 0 || correction.empty())
    {
        return;
    }
    std::string corrected = document;
    corrected.replace(finding.begin, finding.end - finding.begin, correction);
    for (const toml::Finding& left : toml::diagnose(corrected))
    {
        EXPECT_GE(left.begin, finding.begin + correction.size())
            << left.message << " in " << corrected;
    }
}

// "Write '=' between a key and its value: a = 1." holds a valid document.
void expectValidPair(const toml::Finding& finding)
{
    const std::string pair = correctionIn(finding.hint);
    const bool isOfKey = finding.code == "missing-equals" || finding.code == "unquoted-key";
    if (isOfKey && pair.find(" = ") != std::string::npos && pair != "key = value")
    {
        EXPECT_TRUE(toml::diagnose(pair + '\n').empty()) << pair;
    }
}

} // namespace

void expectTold(const std::vector<Mistaken>& documents)
{
    for (const Mistaken& mistaken : documents)
    {
        SCOPED_TRACE(testing::PrintToString(mistaken.document));
        std::vector<Told> told;
        for (const toml::Finding& finding : toml::diagnose(mistaken.document))
        {
            told.push_back(toldOf(finding));
            expectCorrect(mistaken.document, finding);
            expectValidPair(finding);
        }
        EXPECT_EQ(shown(told), shown(mistaken.told));
        EXPECT_FALSE(read(mistaken.document).accepted);
    }
}

} // namespace test
