// What strings of all four kinds have in common.
#include "token_table.h"

using namespace std::string_literals;

namespace test
{
namespace
{

struct Quotes
{
    const char* type;
    std::string mark;
    bool escapes;
    bool lines;
};

const Quotes kinds[] = {
    {"BASIC_STRING", "\"", true, false},
    {"LITERAL_STRING", "'", false, false},
    {"ML_BASIC_STRING", "\"\"\"", true, true},
    {"ML_LITERAL_STRING", "'''", false, true},
};

// The contents in every kind of string that takes them; in the other kinds they fail.
Rows inQuotes(bool Quotes::*takes, const std::vector<std::string>& contents)
{
    Rows rows;
    for (const Quotes& kind : kinds)
    {
        const bool taken = takes == nullptr || kind.*takes;
        for (const std::string& content : contents)
        {
            rows.push_back({{taken ? kind.type : "fails", kind.mark + content + kind.mark}});
        }
    }
    return rows;
}

Rows plainContents()
{
    return before(
        {"", "\n", "x"},
        inQuotes(nullptr, {// ASCII
                           "a", "a b", "#", "=[]{},.", "\t", "\r", "\r\r", "\x01\x1f\x7f", "a\0b"s,
                           "\0"s, std::string(1000, 'x'),
                           // Other characters, the first and the last of each length among them
                           "\xc2\x80", "\xc3\xa9", "\xdf\xbf", "\xe0\xa0\x80", "\xe2\x82\xac",
                           "\xed\x9f\xbf", "\xee\x80\x80", "\xef\xbb\xbf", "\xef\xbf\xbf",
                           "a\u00e9b\u20acc"}));
}

Rows emptyStrings()
{
    Rows rows = before({"'", "'\n", "'a", "' ", "'\x80"}, each("BASIC_STRING", {"\"\""})) +
                before({"\"", "\"\n", "\"a", "\" ", "\"\x80"}, each("LITERAL_STRING", {"''"}));
    for (const Quotes& kind : kinds)
    {
        rows =
            rows + before({"", "\n", "a", " ", "\x80"}, each(kind.type, {kind.mark + kind.mark}));
    }
    return rows;
}

Rows escapes()
{
    Rows rows;
    for (const std::string escape :
         {"\\\"", "\\'", "\\\\", "\\b", "\\f", "\\n", "\\r", "\\t", "\\u00e9", "\\uD800", "\\uFFFF",
          "\\U0001F600", "\\UFFFFFFFF", "\\uabcdef", "\\\\\\\"", "\\\\n", "\\n\\t\\\\"})
    {
        rows = rows + before({"", "\n"},
                             each("BASIC_STRING", {'"' + escape + '"', "\"a" + escape + "b\""}) +
                                 each("ML_BASIC_STRING", {"\"\"\"" + escape + "\"\"\"",
                                                          "\"\"\"a\n" + escape + "b\"\"\""}));
    }
    return rows;
}

Rows otherEscapes()
{
    std::vector<std::string> escapes = {"\\u00e",     "\\u00eg",     "\\u",        "\\u\"000",
                                        "\\U0001F60", "\\U0001F60g", "\\u 00e9",   "\\U",
                                        "\\u00",      "\\u-123",     "\\\xc3\xa9", "\\\r"};
    for (int value = 0; value < 0x80; ++value)
    {
        const char letter = static_cast<char>(value);
        if ("\"'\\bfnrtuU\r\n"s.find(letter) == std::string::npos)
        {
            escapes.push_back('\\' + std::string(1, letter));
        }
    }
    Rows rows =
        each("fails", {"\"\\\n\"", "\"\\\r\n\"", "\"\\", "\"\\\"", "\"\"\"\\", "\"\"\"\\\"\"\"",
                       "\"\"\"\\\r\r\n\"\"\"", "\"\"\"\\ \n\"\"\"", "\"\"\"\\\t\n\"\"\""});
    for (const std::string& escape : escapes)
    {
        rows = rows + each("fails", {'"' + escape + '"', "\"\"\"a" + escape + "\"\"\""});
    }
    return rows;
}

Rows backslashes()
{
    Rows rows = each("ML_LITERAL_STRING", {"'''\\\n'''", "'''\\ \n'''"});
    for (const std::string content : {"\\", "\\\\", "\\q", "\\u", "C:\\path\\", "\\\r", "\\\""})
    {
        rows = rows + before({"'"}, each("LITERAL_STRING", {'\'' + content + '\''})) +
               before({"\n"}, each("ML_LITERAL_STRING", {"'''" + content + "'''"}));
    }
    return rows;
}

// Fewer than three quotes are content, and so is the first of four.
Rows quotesAtTheEnd()
{
    Rows rows = each("ML_BASIC_STRING", {"\"\"\"\\\"\"\"\"", "\"\"\"\"\"\\\"\"\"\"",
                                         "\"\"\"\"\"\\\n\"\"\"", "\"\"\"a\\\n\n b\"\"\""}) +
                before({"\""}, each("ML_BASIC_STRING", {"\"\"\"a\"\\\"\"\\\"\"\"\"\""}));
    for (const auto& [type, mark] :
         {std::pair{"ML_BASIC_STRING", '"'}, {"ML_LITERAL_STRING", '\''}})
    {
        const auto marks = [sign = mark](std::size_t count) { return std::string(count, sign); };
        rows = rows +
               each(type, {marks(6), marks(4) + 'a' + marks(3), marks(5) + 'a' + marks(3),
                           marks(5) + '\n' + marks(4),
                           marks(3) + 'a' + marks(1) + 'b' + marks(2) + 'c' + marks(3),
                           marks(3) + 'a' + marks(2) + '\n' + marks(2) + '\n' + marks(3)}) +
               before({"", marks(1), marks(2), marks(30)}, each(type, {marks(7)})) +
               before({"b"}, each(type, {marks(3) + 'a' + marks(3)})) +
               before({"b", marks(1), marks(1) + 'b' + marks(3)},
                      each(type, {marks(3) + 'a' + marks(4)}));
    }
    return rows;
}

Rows unclosed()
{
    Rows rows;
    for (const char mark : {'"', '\''})
    {
        const auto marks = [mark](std::size_t count) { return std::string(count, mark); };
        rows = rows + each("fails", {marks(1), marks(1) + '\n', marks(1) + "a",
                                     marks(1) + "a\n" + marks(1)});
        for (std::size_t count = 0; count < 3; ++count)
        {
            const std::string opening = marks(3 + count);
            const std::string closing = marks(3) + 'a' + marks(count);
            rows = rows + each("fails", {opening, opening + 'a', opening + '\n', closing,
                                         closing + '\n', closing + 'b' + marks(2)});
        }
    }
    return rows;
}

} // namespace

TokenTables quotedTables()
{
    return {
        {"Strings_takePlainContent", plainContents()},
        {"Strings_mayBeEmpty", emptyStrings()},
        {"Strings_takeLineBreaksBetweenThreeQuotesOnly",
         before({"", "\n"}, inQuotes(&Quotes::lines,
                                     {"\n", "\r\n", "\n\n", "a\nb\r\nc\n", "\n a", "\r\n\r\r\n"}))},
        {"Strings_takeEscapesInBasicOnesOnly", escapes()},
        {"Strings_failAtOtherEscapes", otherEscapes()},
        {"Strings_takeABackslashInLiteralOnesAsItIs", backslashes()},
        {"Strings_takeOneQuoteBeforeTheirEnd", quotesAtTheEnd()},
        {"Strings_needTheirClosingQuotes", unclosed()},
    };
}

} // namespace test
