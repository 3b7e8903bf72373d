// Configurations made by chance: of keys that the schema has and of others, of right and wrong
// values, in all the ways to write tables, and with mistakes.
#include "every_member.h"
#include "listener_client.h"
#include "told_problems.h"

#include "differential/crash_report.h"
#include "differential/escaped.h"
#include "support/reading.h"
#include "support/text_generator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace
{

namespace toml = vorn::parsers::toml;
using test::EveryMember;

constexpr std::size_t count = 40000 / VORN_TEST_STEP;

class Generator
{
public:
    std::string next()
    {
        std::string document;
        for (std::size_t lines = texts_.below(12); lines > 0; --lines)
        {
            document += line();
        }
        if (texts_.below(4) == 0)
        {
            damage(document);
        }
        return document;
    }

private:
    std::string key()
    {
        static const std::vector<std::string> keys{
            "on",     "tiny",   "number",  "text",        "time",   "pause",    "color",   "limit",
            "names",  "flags",  "rows",    "triple",      "colors", "features", "palette", "point",
            "window", "corner", "named",   "x",           "y",      "begin",    "end",     "origin",
            "a",      "b",      "'5 GHz'", "\"\\u0061\"", "other"};
        std::string path = texts_.oneOf(keys);
        for (std::size_t parts = texts_.below(3); parts > 0 && texts_.chance(); --parts)
        {
            path += '.' + texts_.oneOf(keys);
        }
        return path;
    }

    std::string value(std::size_t depth = 0)
    {
        static const std::vector<std::string> scalars{
            "1",        "0",           "-5",         "300",        "99999999999999999999",
            "1.5",      "nan",         "'x'",        "'red'",      "\"a\"",
            "true",     "false",       "1979-05-27", "1979-02-30", "'''\nx'''",
            "07:32:00", "\"\\uD800\"", "'green'",    "1e400"};
        const std::size_t choice = depth > 2 ? 9 : texts_.below(12);
        if (choice < 2)
        {
            std::string list = "[" + value(depth + 1);
            for (std::size_t others = texts_.below(4); others > 0; --others)
            {
                list += ", " + value(depth + 1);
            }
            return list + "]";
        }
        if (choice < 4)
        {
            std::string table = "{" + pair(depth + 1);
            for (std::size_t others = texts_.below(3); others > 0; --others)
            {
                table += ", " + pair(depth + 1);
            }
            return table + "}";
        }
        return texts_.oneOf(scalars);
    }

    std::string pair(std::size_t depth) { return key() + " = " + value(depth); }

    std::string line()
    {
        switch (texts_.below(6))
        {
        case 0:
            return "[" + key() + "]\n";
        case 1:
            return "[[" + key() + "]]\n";
        case 2:
            return "# \xc3\xa9\r\n";
        default:
            return pair(0) + "\n";
        }
    }

    void damage(std::string& document)
    {
        if (!document.empty())
        {
            document[texts_.below(document.size())] = static_cast<char>(texts_.below(256));
        }
    }

    test::TextGenerator texts_;
};

// The keys and tables that are defined twice, as the diagnosis has them.
std::vector<std::string> twiceIn(const std::string& document)
{
    static const std::array<std::string_view, 9> codes{"duplicate-key",
                                                       "duplicate-table",
                                                       "table-over-value",
                                                       "value-over-table",
                                                       "table-over-array-of-tables",
                                                       "array-of-tables-over-table",
                                                       "inline-table-extended",
                                                       "array-extended",
                                                       "dotted-key-over-table"};
    toml::DiagnosisOptions strict;
    strict.strict = true;
    strict.maxFindings = 0;
    std::vector<std::string> found;
    for (const toml::Finding& finding : toml::diagnose(document, strict))
    {
        if (std::find(codes.begin(), codes.end(), finding.code) != codes.end())
        {
            found.push_back(std::to_string(finding.begin) + ' ' + finding.message);
        }
    }
    return found;
}

struct Tally
{
    std::size_t filled = 0;
    std::size_t rejected = 0;
    std::size_t twice = 0;
};

void expectRead(const std::string& document, Tally& tally)
{
    EveryMember config;
    config.number = -7;
    config.text = "as it was";
    const test::LogRecorder log;
    const std::vector<toml::Problem> problems =
        toml::readConfig(document, test::everySchema(), config);
    EXPECT_TRUE(log.lines().empty());
    if (!problems.empty())
    {
        EXPECT_EQ(config.number, -7);
        EXPECT_EQ(config.text, "as it was");
    }
    tally.filled += problems.empty() ? 1 : 0;
    // The mistakes of a document, in the words of the diagnosis, come without a path.
    std::vector<std::string> twice;
    std::size_t mistakes = 0;
    const std::vector<std::string> wanted = twiceIn(document);
    for (const toml::Problem& problem : problems)
    {
        const std::string said = std::to_string(problem.place.offset) + ' ' + problem.message;
        const bool isTwice =
            problem.path.empty() && std::find(wanted.begin(), wanted.end(), said) != wanted.end();
        const bool isError = problem.severity == toml::Severity::error;
        mistakes += problem.path.empty() && isError && !isTwice ? 1 : 0;
        if (isTwice)
        {
            twice.push_back(said);
        }
    }
    const bool isAccepted = test::read(document).accepted;
    EXPECT_EQ(mistakes == 0, isAccepted);
    EXPECT_EQ(twice, wanted);
    tally.rejected += isAccepted ? 0 : 1;
    tally.twice += wanted.empty() ? 0 : 1;
}

} // namespace

TEST(GeneratedConfigurations, areReadOrTellWhyNot)
{
    Generator generator;
    Tally tally;
    std::string document;
    test::reportCrashesOn(document);
    for (std::size_t number = 0; number < count && !HasFailure(); ++number)
    {
        document = generator.next();
        SCOPED_TRACE(test::escaped(document));
        expectRead(document, tally);
    }
    EXPECT_GT(tally.filled, count / 50);
    EXPECT_GT(tally.rejected, count / 20);
    EXPECT_GT(tally.twice, count / 20);
}
