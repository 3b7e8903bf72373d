// Long runs of bytes, which the scanner goes through a word at a time.
#include <gtest/gtest.h>

#include "scan/scanner.h"
#include "support/scanning.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

using namespace test;

namespace
{

constexpr std::size_t alignments = 16;
constexpr std::size_t longest = 40;

struct Form
{
    std::string opening;
    TokenType type;
    std::string closing;
};

const Form forms[] = {
    {"#", TokenType::comment, "\n"},
    {"\"", TokenType::basicString, "\""},
    {"'", TokenType::literalString, "'"},
    {"\"\"\"", TokenType::mlBasicString, "\"\"\""},
    {"'''", TokenType::mlLiteralString, "'''"},
};

// What the scanner finds at an address that is `alignment` bytes after a multiple of 16; the
// bytes before and after the text would make a difference if they were looked at.
FoundToken scanAt(std::size_t alignment, const std::string& text)
{
    alignas(alignments) char memory[256];
    std::fill(std::begin(memory), std::end(memory), '"');
    std::copy(text.begin(), text.end(), memory + alignment);
    const char* const begin = memory + alignment;
    const auto token = vorn::parsers::toml::scanToken(begin, begin + text.size());
    return {token.type, token.end != nullptr ? static_cast<std::size_t>(token.end - begin) : 0};
}

void expectAtEveryAlignment(const std::string& text, const FoundToken& expected)
{
    for (std::size_t alignment = 0; alignment < alignments; ++alignment)
    {
        ASSERT_EQ(scanAt(alignment, text), expected)
            << testing::PrintToString(text) << " at " << alignment;
    }
}

// Calls `check` for every content of `filler` in which `special` stands somewhere.
template <typename Check>
void forEveryPlace(const Form& form, char filler, const std::string& special, Check check)
{
    SCOPED_TRACE(form.opening + " with " + testing::PrintToString(special) + " among " +
                 testing::PrintToString(filler));
    for (std::size_t length = 0; length <= longest && !testing::Test::HasFailure(); ++length)
    {
        for (std::size_t place = 0; place <= length; ++place)
        {
            const std::string before(place, filler);
            const std::string after(length - place, filler);
            check(form.opening + before + special, after);
        }
    }
}

bool isComment(const Form& form)
{
    return form.type == TokenType::comment;
}

bool isOneLine(const Form& form)
{
    return form.type == TokenType::basicString || form.type == TokenType::literalString;
}

bool hasEscapes(const Form& form)
{
    return form.opening[0] == '"';
}

} // namespace

TEST(ScannerRun, endsAtTheClosingDelimiterWhereverItStands)
{
    for (const Form& form : forms)
    {
        for (const char filler : {'a', '\x7f', '\x01', '!', ' ', '\0'})
        {
            forEveryPlace(form, filler, form.closing,
                          [&form](const std::string& token, const std::string& after)
                          {
                              const std::size_t length = token.size() - (isComment(form) ? 1 : 0);
                              expectAtEveryAlignment(token + after, {form.type, length});
                          });
        }
    }
}

TEST(ScannerRun, goesOverBytesThatAreNextToTheDelimiters)
{
    for (const Form& form : forms)
    {
        // Neighbours of the delimiters, and a borrow's way through a word.
        std::vector<std::string> contents = {"!",        "#",
                                             "%",        "&",
                                             "(",        "[",
                                             "]",        "\t",
                                             "\x0b",     "\x0c",
                                             "\r",       std::string(1, '\0'),
                                             "\xc3\xa9", "\xe2\x82\xac",
                                             "\xc2\x8a", "\xc2\xa2",
                                             "\xc2\xa7"};
        contents.push_back(hasEscapes(form) ? "'" : "\"");
        contents.push_back(hasEscapes(form) ? "\\\"" : "\\");
        if (!isOneLine(form) && !isComment(form))
        {
            contents.push_back("\n");
            contents.push_back(form.opening.substr(0, 1) + "b");
            contents.push_back(form.opening.substr(0, 2) + "b");
        }
        for (const std::string& content : contents)
        {
            forEveryPlace(form, 'a', content,
                          [&form](const std::string& token, const std::string& after)
                          {
                              const std::string text = token + after + form.closing;
                              const std::size_t length = text.size() - (isComment(form) ? 1 : 0);
                              expectAtEveryAlignment(text + "a", {form.type, length});
                          });
        }
    }
}

TEST(ScannerRun, findsWhatDoesNotBelongWhereverItStands)
{
    for (const Form& form : forms)
    {
        std::vector<std::string> wrong = {"\x80", "\xff", "\xc3", "\xe2\x82", "\xf0\x9f\x98\x80"};
        if (isOneLine(form))
        {
            wrong.push_back("\n");
        }
        if (hasEscapes(form))
        {
            wrong.push_back("\\q");
            wrong.push_back("\\u12\n4");
        }
        for (const std::string& bytes : wrong)
        {
            forEveryPlace(form, 'a', bytes,
                          [&form](const std::string& token, const std::string& after)
                          { expectAtEveryAlignment(token + after + form.closing, FoundToken()); });
        }
    }
}

TEST(ScannerRun, doesNotGoOnBehindTheEnd)
{
    for (const Form& form : forms)
    {
        for (std::size_t length = 0; length <= longest; ++length)
        {
            const std::string text = form.opening + std::string(length, 'a');
            // The delimiters after the text would close the basic strings.
            expectAtEveryAlignment(text, isComment(form) ? FoundToken{form.type, text.size()}
                                                         : FoundToken());
            EXPECT_EQ(scan(text), scanAt(0, text)) << text;
        }
    }
}
