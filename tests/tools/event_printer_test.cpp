#include "event_printer.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "support/operations.h"

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

TEST(EventPrinter, PrintsTheNameOfEachOperationAndItsText)
{
    for (const test::Operation& operation : test::operations)
    {
        EXPECT_EQ(printed([&](EventPrinter& printer) { operation.call(printer, "a b"); }),
                  operation.name + (operation.takesText() ? " a b\n" : "\n"));
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
