#include "event_printer.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace
{

using tool::EventPrinter;

std::string printed(const std::function<void(EventPrinter&)>& calls)
{
    char* bytes = nullptr;
    std::size_t size = 0;
    std::FILE* const output = open_memstream(&bytes, &size);
    EventPrinter printer(output);
    calls(printer);
    std::fclose(output);
    std::string text(bytes, size);
    std::free(bytes);
    return text;
}

TEST(EventPrinter, PrintsTheNamesOfOperationsWithoutText)
{
    struct Case
    {
        void (EventPrinter::*operation)();
        std::string line;
    };
    const std::vector<Case> cases = {
        {&EventPrinter::beginDocument, "beginDocument\n"},
        {&EventPrinter::endDocument, "endDocument\n"},
        {&EventPrinter::beginKeyValue, "beginKeyValue\n"},
        {&EventPrinter::endKeyValue, "endKeyValue\n"},
        {&EventPrinter::beginTable, "beginTable\n"},
        {&EventPrinter::endTable, "endTable\n"},
        {&EventPrinter::beginArrayTable, "beginArrayTable\n"},
        {&EventPrinter::endArrayTable, "endArrayTable\n"},
        {&EventPrinter::beginDottedKey, "beginDottedKey\n"},
        {&EventPrinter::endDottedKey, "endDottedKey\n"},
        {&EventPrinter::beginArray, "beginArray\n"},
        {&EventPrinter::endArray, "endArray\n"},
        {&EventPrinter::beginInlineTable, "beginInlineTable\n"},
        {&EventPrinter::endInlineTable, "endInlineTable\n"},
    };
    for (const Case& c : cases)
    {
        EXPECT_EQ(printed([&](EventPrinter& printer) { (printer.*c.operation)(); }), c.line);
    }
}

TEST(EventPrinter, PrintsTheNameAndTheTextOfOperationsWithText)
{
    struct Case
    {
        void (EventPrinter::*operation)(const char*);
        std::string line;
    };
    const std::vector<Case> cases = {
        {&EventPrinter::visitBareKey, "visitBareKey a b\n"},
        {&EventPrinter::visitQuotedKey, "visitQuotedKey a b\n"},
        {&EventPrinter::visitBasicString, "visitBasicString a b\n"},
        {&EventPrinter::visitMultilineBasicString, "visitMultilineBasicString a b\n"},
        {&EventPrinter::visitLiteralString, "visitLiteralString a b\n"},
        {&EventPrinter::visitMultilineLiteralString, "visitMultilineLiteralString a b\n"},
        {&EventPrinter::visitInteger, "visitInteger a b\n"},
        {&EventPrinter::visitFloat, "visitFloat a b\n"},
        {&EventPrinter::visitBoolean, "visitBoolean a b\n"},
        {&EventPrinter::visitOffsetDateTime, "visitOffsetDateTime a b\n"},
        {&EventPrinter::visitLocalDateTime, "visitLocalDateTime a b\n"},
        {&EventPrinter::visitLocalDate, "visitLocalDate a b\n"},
        {&EventPrinter::visitLocalTime, "visitLocalTime a b\n"},
    };
    for (const Case& c : cases)
    {
        EXPECT_EQ(printed([&](EventPrinter& printer) { (printer.*c.operation)("a b"); }), c.line);
    }
}

// What stands for a byte in a line.
std::string inLine(int byte)
{
    switch (byte)
    {
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    case '\\':
        return "\\\\";
    default:
        break;
    }
    if (byte >= ' ' && byte <= '~')
    {
        return {static_cast<char>(byte)};
    }
    const std::string digits = "0123456789ABCDEF";
    return std::string("\\x") + digits.at(static_cast<std::size_t>(byte / 16)) +
           digits.at(static_cast<std::size_t>(byte % 16));
}

TEST(EventPrinter, EscapesWhatIsNotPrintableAscii)
{
    for (int byte = 1; byte <= 255; ++byte)
    {
        const std::array<char, 2> text = {static_cast<char>(byte), '\0'};
        EXPECT_EQ(printed([&](EventPrinter& printer) { printer.visitBasicString(text.data()); }),
                  "visitBasicString " + inLine(byte) + '\n')
            << "byte " << byte;
    }
}

TEST(EventPrinter, EndsALineWithoutText)
{
    EXPECT_EQ(printed([](EventPrinter& printer) { printer.visitBareKey(""); }), "visitBareKey \n");
}

} // namespace
