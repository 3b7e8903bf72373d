// Bytes that are not UTF-8, or cut off, or NUL.  The runtime decodes them by arithmetic: what
// comes out may be a character that passes, one that passes nowhere, the end of the input or
// a character of the language.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "differential/comparison.h"
#include "differential/escaped.h"
#include "support/driver_log.h"
#include "support/event_lists.h"

using namespace std::string_literals;
using namespace test;

namespace
{

// The reading of a document, which the reference shows as well.
Reading read(const std::string& document)
{
    const Comparison comparison = compare(document);
    EXPECT_TRUE(comparison.isWell()) << describe(comparison);
    return comparison.library;
}

void expectAccepted(const std::string& text, const Events& events)
{
    SCOPED_TRACE(escaped(text));
    const Reading reading = read(text);
    EXPECT_TRUE(reading.accepted);
    EXPECT_EQ(reading.events, events);
    EXPECT_TRUE(reading.lines.empty());
}

void expectRefused(const std::string& text, const Events& events, const Messages& messages)
{
    SCOPED_TRACE(escaped(text));
    const Reading reading = read(text);
    EXPECT_FALSE(reading.accepted);
    EXPECT_EQ(reading.events, events);
    Messages logged;
    for (const LogLine& line : reading.lines)
    {
        logged.push_back(line.message);
    }
    EXPECT_EQ(logged, messages);
}

Events pairA(const Events& value)
{
    return pair(bare("a"), value);
}

const Events pairB = pair(bare("b"), integer("1"));

// The calls for `a = ` where no value can be made out.
const Events withoutValue = brokenOff({{"beginKeyValue", "visitBareKey a"}});

// Bytes that are read as characters up to U+FFFF, so many of them.
struct Passing
{
    std::string bytes;
    int characters;
};

const std::vector<Passing> passing = {
    {"\x80", 1},                     // a continuation alone
    {"\xbf", 1},                     // the last one
    {"\x80\xbf", 2},                 // two
    {"\xc0\x80", 1},                 // overlong
    {"\xc0\xaf", 1},                 // overlong
    {"\xc1\xbf", 1},                 // overlong
    {"\xe0\x80\xaf", 1},             // overlong
    {"\xe0\x9f\xbf", 1},             // overlong
    {"\xf0\x80\x80\xaf", 1},         // overlong
    {"\xf0\x8f\xbf\xbf", 1},         // overlong
    {"\xed\xa0\x80", 1},             // the first surrogate
    {"\xed\xbf\xbf", 1},             // the last one
    {"\xed\xa0\xbd\xed\xb8\x80", 2}, // a pair of them
    {"\xef\xbf\xbe", 1},             // no character
    {"\xef\xbf\xbf", 1},             // no character
    {"\xc3x", 1},                    // the second of two is none
    {"\xe2\x82x", 1},                // the third of three is none
};

// Bytes that are read as one character above U+FFFF, which passes nowhere.
const std::vector<std::string> above = {
    "\xf0\x90\x80\x80",         // the first
    "\xf0\x9f\x98\x80",         // well-formed
    "\xf4\x8f\xbf\xbf",         // the last of Unicode
    "\xf4\x90\x80\x80",         // one more
    "\xf7\xbf\xbf\xbf",         // the last of four bytes
    "\xf8\x88\x80\x80\x80",     // five bytes
    "\xfc\x84\x80\x80\x80\x80", // six bytes
    "\xf0\x9f\x98x",            // the fourth of four is none
    "\xc0?",                    // below zero
    "\xe0??",
    "\xe1??",
    "\xf0???",
};

// Bytes that are read as minus one, which stands for the end of the input.
const std::vector<std::string> ends = {
    "\xc1?", "\xc0\x7f", "\xe0\x81?", "\xe1"s + "A?", "\xe2\x01?", "\xf0\x80\x81?",
};

// The beginnings of characters.
const std::vector<std::string> beginnings = {
    "\xc3",     "\xe2",         "\xe2\x82", "\xf0",     "\xf0\x9f",         "\xf0\x9f\x98",
    "\xf8",     "\xfb\xbf\xbf", "\xfc",     "\xfd\xbf", "\xfd\xbf\xbf\xbf", "\xfe",
    "\xfe\xbf", "\xff",
};

} // namespace

TEST(MalformedUtf8, readAsCharactersPassesInStringsAndComments)
{
    for (const auto& [bytes, characters] : passing)
    {
        expectAccepted("# " + bytes + "\nb = 1\n", document({pairB}));
        for (const auto& [quotes, operation] : {std::pair("'", "visitLiteralString"),
                                                {"\"", "visitBasicString"},
                                                {"'''", "visitMultilineLiteralString"},
                                                {"\"\"\"", "visitMultilineBasicString"}})
        {
            const std::string text = quotes + bytes + quotes;
            expectAccepted("a = " + text + "\n", document({pairA(scalar(operation, text))}));
        }
        expectAccepted("'" + bytes + "' = 1\n",
                       document({pair(quoted("'" + bytes + "'"), integer("1"))}));
    }
}

TEST(MalformedUtf8, readAsCharactersIsAnErrorElsewhere)
{
    for (const auto& [bytes, characters] : passing)
    {
        Messages messages = {lexerFailure(bytes.substr(0, 1))};
        if (characters == 2)
        {
            messages.push_back(lexerFailure(bytes.substr(bytes.size() / 2, 1)));
        }
        messages.push_back(syntaxErrors(characters));
        expectRefused(bytes + "\nb = 1\n", document({pairB}), messages);
        expectRefused("b = 1\n" + bytes, document({pairB}), messages);
        expectRefused("b = " + bytes + "1\n", document({pairB}), messages);
    }
}

TEST(MalformedUtf8, readAsACharacterAboveTheBasicPlanePassesNowhere)
{
    for (const std::string& bytes : above)
    {
        const std::string first = lexerFailure(bytes.substr(0, 1));
        for (const std::string& text :
             {"# " + bytes + "\nb = 1\n", bytes + "\nb = 1\n", "b = 1\n" + bytes})
        {
            expectRefused(text, document({pairB}), {first, syntaxErrors(1)});
        }
        for (const std::string quote : {"'", "\""})
        {
            const Messages messages = {lexerFailure(quote), first, lexerFailure(quote),
                                       parserFailure("a=\n"), walkFailure()};
            expectRefused("a = " + quote + bytes + quote + "\n", withoutValue, messages);
        }
    }
}

TEST(MalformedUtf8, readAsTheEndOfTheInputEndsTheDocument)
{
    for (const std::string& bytes : ends)
    {
        expectAccepted("b = 1\n" + bytes, document({pairB}));
        expectAccepted("b = 1\n" + bytes + "\n@ = 2\n", document({pairB}));
        expectAccepted("b = 1\n# " + bytes + "\n@ = 2\n", document({pairB}));
        expectAccepted(bytes, document({}));
        expectRefused("a = '" + bytes + "'\n", withoutValue,
                      {lexerFailure("'"), parserFailure("a="), walkFailure()});
        expectRefused("a = " + bytes + "1\n", withoutValue, {parserFailure("a="), walkFailure()});
    }
}

TEST(MalformedUtf8, readAsACharacterOfTheLanguageIsThatCharacter)
{
    // A, J, =, #, LF and ', each in two bytes.
    expectAccepted("\xc1\x81 = 1\n", document({pair(bare("\xc1\x81"), integer("1"))}));
    expectAccepted("\xc3\na = 1\n", document({pair(bare("\xc3\na"), integer("1"))}));
    expectAccepted("a \xc0\xbd 1\n", document({pairA(integer("1"))}));
    expectAccepted("\xc0\xa3 = 1\nb = 1\n", document({pairB}));
    expectAccepted("b = 1\xc0\x8a", document({pairB}));
    expectAccepted("a = \xc0\xa7x\xc0\xa7\n",
                   document({pairA(scalar("visitLiteralString", "\xc0\xa7x\xc0\xa7"))}));
    // In three and four bytes.
    expectAccepted("\xe0\x81\x81 = 1\n", document({pair(bare("\xe0\x81\x81"), integer("1"))}));
    expectAccepted("a \xf0\x80\x80\xbd 1\n", document({pairA(integer("1"))}));
    expectAccepted("a = \xc0\xb1\n", document({pairA(integer("\xc0\xb1"))}));
}

TEST(MalformedUtf8, cutOffByTheEndOfTheDocumentIsNotRead)
{
    for (const std::string& bytes : beginnings)
    {
        expectAccepted(bytes, document({}));
        expectAccepted("b = 1\n" + bytes, document({pairB}));
        expectAccepted("b = 1\n# c" + bytes, document({pairB}));
        expectRefused(
            "a = 1" + bytes,
            brokenOff({{"beginKeyValue", "visitBareKey a", "visitInteger 1", "endKeyValue"}}),
            {walkFailure()});
        expectRefused("a = '" + bytes, withoutValue,
                      {lexerFailure("'"), parserFailure("a="), walkFailure()});
    }
}

// Such bytes take those after them, whatever they are.
TEST(MalformedUtf8, takesTheBytesThatFollow)
{
    expectAccepted("a = 'x\xc3\n'\n", document({pairA(scalar("visitLiteralString", "'x\xc3\n'"))}));
    expectAccepted("a = \"\xc2'\"\n", document({pairA(scalar("visitBasicString", "\"\xc2'\""))}));
    expectAccepted("# \xc3\n@\nb = 1\n", document({pairB}));
    expectRefused("a = '\xc3'\n", withoutValue,
                  {lexerFailure("'\xc3'\n"), parserFailure("a="), walkFailure()});
    // Six bytes each, with these.
    expectRefused("\xfe"
                  "12345\nb = 1\n",
                  document({pairB}), {lexerFailure("\xfe"), syntaxErrors(1)});
    expectRefused("\xff"
                  "12345\nb = 1\n",
                  document({pairB}), {lexerFailure("\xff"), syntaxErrors(1)});
}

TEST(MalformedUtf8, isReadAsByTheReferenceInAnyPlace)
{
    std::vector<std::string> all = above;
    all.insert(all.end(), ends.begin(), ends.end());
    all.insert(all.end(), beginnings.begin(), beginnings.end());
    for (const Passing& one : passing)
    {
        all.push_back(one.bytes);
    }
    const std::string text = "[t]\na.'b' = [1, {c = \"d\"}] # e\nf = '''g'''\n";
    for (const std::string& bytes : all)
    {
        for (std::size_t place = 0; place <= text.size(); ++place)
        {
            std::string document = text;
            document.insert(place, bytes);
            SCOPED_TRACE(escaped(document));
            read(document);
        }
    }
}

TEST(NulBytes, passInStringsAndCommentsAndEndTheTextThatIsHandedOver)
{
    const std::string nul(1, '\0');
    expectAccepted("# " + nul + "\nb = 1\n", document({pairB}));
    expectAccepted("a = 'x" + nul + "y'\n", document({pairA(scalar("visitLiteralString", "'x"))}));
    expectAccepted("a = \"" + nul + "\"\n", document({pairA(scalar("visitBasicString", "\""))}));
    expectAccepted("a = \"\"\"" + nul + "\"\"\"\n",
                   document({pairA(scalar("visitMultilineBasicString", "\"\"\""))}));
    expectAccepted("'" + nul + "' = 1\n", document({pair(quoted("'"), integer("1"))}));
}

TEST(NulBytes, areErrorsElsewhere)
{
    const std::string nul(1, '\0');
    for (const std::string& text : {nul + "\nb = 1\n", "b = 1\n" + nul, "b = " + nul + "1\n"})
    {
        expectRefused(text, document({pairB}), {lexerFailure(""), syntaxErrors(1)});
    }
    expectRefused("a = '" + nul, withoutValue,
                  {lexerFailure("'"), parserFailure("a="), walkFailure()});
}
