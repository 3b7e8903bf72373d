// What the documents made at random reach, and how a difference is made small.
#include "comparison.h"
#include "document_generator.h"
#include "plain_text.h"
#include "shrinking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>

namespace
{

using test::Reading;

struct Made
{
    std::string document;
    Reading reading;
};

constexpr std::size_t count = 20000;

// Documents with what the reference shows for them, those aside that are very long.
const std::vector<Made>& made()
{
    static const std::vector<Made> documents = []
    {
        test::DocumentGenerator generator(1);
        std::vector<Made> all;
        while (all.size() < count)
        {
            const std::string document = generator.next();
            if (document.size() < 2000)
            {
                all.push_back({document, test::compare(document).reference});
            }
        }
        return all;
    }();
    return documents;
}

struct Form
{
    std::string name;
    std::string pattern;
};

// Expects that for each form there is a document with it, accepted or not.
void expectForms(const std::vector<Form>& forms, bool accepted)
{
    for (const Form& form : forms)
    {
        const std::regex pattern(form.pattern);
        const bool found = std::any_of(made().begin(), made().end(),
                                       [&](const Made& one) {
                                           return one.reading.accepted == accepted &&
                                                  std::regex_search(one.document, pattern);
                                       });
        EXPECT_TRUE(found) << form.name;
    }
}

} // namespace

TEST(GeneratedDocuments, areRightAboutEverySecondTime)
{
    std::size_t accepted = 0;
    for (const Made& one : made())
    {
        accepted += one.reading.accepted ? 1 : 0;
    }
    EXPECT_GT(accepted, 9 * count / 20);
    EXPECT_LT(accepted, 11 * count / 20);
}

TEST(GeneratedDocuments, reachAllCalls)
{
    std::set<std::string> operations;
    for (const Made& one : made())
    {
        for (const std::string& event : one.reading.events)
        {
            operations.insert(event.substr(0, event.find(' ')));
        }
    }
    EXPECT_EQ(operations.size(), 27U) << testing::PrintToString(operations);
}

TEST(GeneratedDocuments, reachAllErrorsOfTheRuntime)
{
    for (const std::string display :
         {// The lexer's.
          "lexer error 1 ", "lexer error 3 ", "lexer error 4 ", "lexer error 5 ", "near char(",
          "(end of input)",
          // The parser's and the tree parser's.
          "Unexpected token", "MissingTokenException", "UnwantedTokenException",
          "cannot match to any predicted input", "syntax error...",
          "Extraneous input - expected ','", "Extraneous input - expected '='",
          "Extraneous input - expected ']'", "Extraneous input - expected '}'",
          "Extraneous input - expected <EOF>", "Extraneous input - expected <UP>", "Missing ','",
          "Missing '='", "Missing ']'", "Missing '}'"})
    {
        const auto shows = [&](const Made& one)
        { return one.reading.standardError.find(display) != std::string::npos; };
        EXPECT_TRUE(std::any_of(made().begin(), made().end(), shows)) << display;
    }
}

TEST(GeneratedDocuments, reachAllLogLines)
{
    std::set<std::string> formats;
    for (const Made& one : made())
    {
        for (const test::LogLine& line : one.reading.lines)
        {
            formats.insert(line.format);
        }
    }
    const std::set<std::string> expected = {
        "Failed to visit toml tree", "Failed: input TOML has %d syntax errors",
        "Invalid TOML: lexer failure at: %s", "Invalid TOML: parser failure at: %s",
        "Invalid TOML: tree parser failure"};
    EXPECT_EQ(formats, expected);
}

TEST(GeneratedDocuments, holdAllFormsOfTokens)
{
    expectForms(
        {
            {"signed decimal integer", R"(=\s*[+-]\d{2,}\s*\n)"},
            {"decimal integer with underscores", R"(=\s*\d+_\d+\s*\n)"},
            {"signed zero", R"(=\s*[+-]0\s*\n)"},
            {"hexadecimal integer", R"(=\s*0x[0-9a-fA-F]+_[0-9a-fA-F]+\s*\n)"},
            {"octal integer", R"(=\s*0o[0-7]+\s*\n)"},
            {"binary integer", R"(=\s*0b[01]+\s*\n)"},
            {"float with a fraction", R"(=\s*[+-]\d+\.\d+\s*\n)"},
            {"float with an exponent", R"(=\s*\d+[eE][+-]\d+\s*\n)"},
            {"float with both", R"(=\s*\d+\.\d+[eE]\d+\s*\n)"},
            {"float below one", R"(=\s*-?0\.\d+)"},
            {"infinity", R"(=\s*[+-]inf\s*\n)"},
            {"not a number", R"(=\s*[+-]nan\s*\n)"},
            {"date before a tab", R"(=\s*\d{4}-\d\d-\d\d\t+\n)"},
            {"date-time with a blank", R"(=\s*\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\s*\n)"},
            {"date-time with a fraction", R"(=\s*\d{4}-\d\d-\d\dt\d\d:\d\d:\d\d\.\d+\s*\n)"},
            {"date-time with Z", R"(\d\d:\d\d:\d\dZ)"},
            {"date-time with an offset", R"(\d\d:\d\d:\d\d-\d\d:\d\d)"},
            {"time", R"(=\s*\d\d:\d\d:\d\d\s*\n)"},
            {"basic string with escapes", R"(=\s*"[^"\n]*\\u[0-9a-fA-F]{4}[^"\n]*")"},
            {"basic string with an escaped quote", R"(=\s*"[^"\\\n]*\\"[^"\n]*")"},
            {"basic string with a carriage return", "=\\s*\"[^\"\\n]*\r[^\"\\n]*\""},
            {"empty basic string", "=\\s*\"\"\\s*\n"},
            {"empty literal string", "=\\s*''\\s*\n"},
            {"empty basic string on lines", "=\\s*\"{6}\\s*\n"},
            {"empty literal string on lines", "=\\s*'{6}\\s*\n"},
            {"four quotes at the end", R"([^"]"{4}\s*\n)"},
            {"seven quotes", R"(=\s*"{7}\s*\n)"},
            {"seven single quotes", R"(=\s*'{7}\s*\n)"},
            {"literal string ending in a backslash", R"(=\s*'[^'\n]*\\')"},
            {"escaped line break", "\"\"\"[^\"]*\\\\\r\n"},
            {"characters beyond ASCII", "=\\s*\"[^\"\n]*\xED\x9F\xBF"},
            {"last character that is taken", "=\\s*'[^'\n]*\xEF\xBF\xBF"},
            {"control character", "=\\s*'[^'\n]*\x01"},
            {"comment with characters beyond ASCII", "# \xC3\xA9\xE2\x82\xAC"},
            {"comment with a carriage return", "# \r\n"},
            {"byte order mark", "^\xEF\xBB\xBF"},
        },
        true);
}

TEST(GeneratedDocuments, holdAllFormsOfStructure)
{
    expectForms(
        {
            {"key like a value", R"(\n\s*(truefalse|1e|0x1G|1979-05-27T|01|nanx)\s*=)"},
            {"dotted key with blanks", R"(\w \. \w)"},
            {"quoted part of a key", R"(\."[^"\n]*"\s*=)"},
            {"table", R"(^\[[^\[\n]+\]\s*\n)"},
            {"array of tables with blanks", R"(\[ \[ \w+ \] \])"},
            {"line of blanks", R"(\n[ \t]+\n)"},
            {"breaks of both kinds", "\n\r\n\n"},
            {"break after an opening bracket", R"(=\s*\[\s*\n)"},
            {"break before a comma", R"(\d\s*\n\s*,)"},
            {"break after a comma", R"(,\s*\n)"},
            {"two breaks before a comma", R"(,\s*\d+\s*\n +\n\s*,)"},
            {"break before a closing bracket", R"(,\s*\d+\s*\n\s*\])"},
            {"comma before a closing bracket", R"(,\s*\])"},
            {"break before that comma", R"(,\s*\d+\s*\n\s*,\s*\])"},
            {"comment in an array", R"(\[\s*#[^\n]*\n)"},
            {"array in an array", R"(\[\s*\[[^\[\]]+\]\s*,)"},
            {"inline table in an array", R"(\[\s*\{)"},
            {"break in an array in an inline table", R"(\{[^{}\n]*=\s*\[\s*\n)"},
            {"deep nesting", R"((\[\s*|\[1, |\{a=|\{a.b = 1, c=){65})"},
        },
        true);
}

TEST(GeneratedDocuments, holdAllFormsOfMistakes)
{
    expectForms(
        {
            {"no break at the end", "=\\s*\\d+$"},
            {"value as a key", R"((^|\n)(true|\d+)\s*=)"},
            {"date before a blank", R"(\d{4}-\d\d-\d\d [^0-9])"},
            {"point without digits", R"(=\s*1\.\s)"},
            {"point without an integer", R"(=\s*\.5)"},
            {"exponent without digits", R"(=\s*\d+e\+\s)"},
            {"unknown escape", R"("[^"\n]*\\e)"},
            {"short escape", R"("[^"\n]*\\u12[^0-9a-fA-F])"},
            {"string without an end", "=\\s*\"[^\"\n]*\n"},
            {"string on lines without an end", "=\\s*\"\"\"[^\"]*$"},
            {"blank before an escaped break", "\\\\ \n"},
            {"too many quotes", "\"{8}"},
            {"carriage return alone", "\r[^\n]"},
            {"carriage return at the end", "\r$"},
            {"sign alone", R"(=\s*\+\s*\n)"},
            {"empty array", R"(=\s*\[\s*\])"},
            {"empty inline table", R"(=\s*\{\s*\})"},
            {"break after the only element", R"(=\s*\[\s*\d+\s*\n\s*\])"},
            {"break after the last comma", R"(,\s*\n\s*\])"},
            {"break in an inline table", R"(\{[^{}\[\]\n]*\n)"},
            {"deep nesting that does not end", R"((\[\s*|\[1, |\{a=|\{a.b = 1, c=){65})"},
            {"NUL byte", std::string("\\x00")},
            {"continuation alone", "[ a-z0-9]\x80"},
            {"sequence cut off at the end", "\xE2\x82$"},
            {"sequence that is too long", "\xE0\x80\x80"},
            {"quote of two bytes", "\xC0\xA2"},
            {"equals sign after a lead byte", "\xC2="},
            {"surrogate", "\xED\xA0\x80"},
            {"character beyond four digits", "\xF0\x9F\x98\x80"},
            {"sequence of five bytes", "\xFB\xBF\xBF\xBF\xBF"},
            {"byte that is never used", "\xFE"},
            {"byte order mark elsewhere", ".\xEF\xBB\xBF"},
        },
        false);
}

TEST(PlainText, isWellFormedUpToFourDigits)
{
    for (const char* const text :
         {"", "a\n", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
          "\xEF\xBF\xBF", "a\xC3\xA9z\xE2\x82\xAC"})
    {
        EXPECT_TRUE(test::isPlainText(text)) << testing::PrintToString(text);
    }
    for (const char* const text :
         {"\x80", "a\xBF", "\xC1\xBF", "\xC3", "\xC3z", "\xE2\x82", "\xE2z\x82", "\xE2\x82z",
          "\xE0\x9F\xBF", "\xED\xA0\x80", "\xED\xBF\xBF", "\xF0\x90\x80\x80", "\xFF", "a\xFE"})
    {
        EXPECT_FALSE(test::isPlainText(text)) << testing::PrintToString(text);
    }
}

TEST(Shrinking, leavesOutWhatCanGo)
{
    const auto holds = [](const std::string& text)
    {
        const std::size_t bracket = text.find('[');
        return bracket != std::string::npos && text.find('=', bracket) != std::string::npos;
    };
    EXPECT_EQ(test::shrunk("a = 1\n[b]\nc = [2]\n\n", holds), "[=");
    EXPECT_EQ(test::shrunk("[=", holds), "[=");
    EXPECT_EQ(test::shrunk(std::string(5000, 'a') + "[b=c" + std::string(5000, 'd'), holds), "[=");
}

TEST(Shrinking, leavesOutWhatMustGoTogether)
{
    const auto holds = [](const std::string& text)
    {
        return std::count(text.begin(), text.end(), '[') ==
                   std::count(text.begin(), text.end(), ']') &&
               text.find('=') != std::string::npos;
    };
    EXPECT_EQ(test::shrunk("a = [1, [2], 3]\n[b]\n", holds), "=");
    EXPECT_EQ(test::shrunk("[[=]]", holds), "=");
}
