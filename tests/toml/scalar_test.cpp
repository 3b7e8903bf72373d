// Scalars: the operation that each one reaches, with its text as it is written.
#include <gtest/gtest.h>

#include "support/driver_log.h"
#include "support/event_lists.h"
#include "support/reading.h"

using namespace std::string_literals;
using namespace test;

namespace
{

// Reads `text` where a document can have a value, and expects one call for each.
void expectScalar(const std::string& operation, const std::string& text)
{
    SCOPED_TRACE(testing::PrintToString(text));
    const Events value = scalar(operation, text);
    const Reading reading = read("a = " + text + "\nb=" + text + "\t# c\r\nc = [" + text + "," +
                                 text + "]\nd = {e = " + text + "}\n");
    EXPECT_TRUE(reading.accepted);
    EXPECT_EQ(reading.events, document({pair(bare("a"), value), pair(bare("b"), value),
                                        pair(bare("c"), array({value, value})),
                                        pair(bare("d"), inlineTable({pair(bare("e"), value)}))}));
    expectDriverLog(reading.lines, {});
    EXPECT_EQ(reading.standardError, "");
}

void expectScalars(const std::string& operation, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        expectScalar(operation, text);
    }
}

} // namespace

TEST(TomlScalars, integers)
{
    expectScalars("visitInteger", {// Decimal.
                                   "0", "+0", "-0", "7", "+7", "-17", "42", "1_000", "5_349_221",
                                   "1979", "123456789012345678901234567890",
                                   // With a prefix.
                                   "0x0", "0x1F", "0xdead_beef", "0xDEADBEEF", "0x00ff", "0o0",
                                   "0o7", "0o755", "0o0_1", "0b0", "0b1", "0b1101_0101"});
}

TEST(TomlScalars, floats)
{
    expectScalars("visitFloat",
                  {"1.5",   "0.5",     "-0.0",  "+1.0", "3.1415",      "-3.14",     "1e5",
                   "+1e5",  "1E+05",   "1e05",  "1e-5", "0e0",         "6.626e-34", "1.5e3",
                   "1.0_1", "1_000.0", "1e1_0", "1.00", "1_000.000_1", "1.05E-7",   "1.05e+0_1"});
}

TEST(TomlScalars, infinityAndNotANumberAreFloats)
{
    expectScalars("visitFloat", {"inf", "+inf", "-inf", "nan", "+nan", "-nan"});
}

TEST(TomlScalars, booleans)
{
    expectScalars("visitBoolean", {"true", "false"});
}

TEST(TomlScalars, datesAndTimesOfAnyRange)
{
    expectScalars("visitOffsetDateTime",
                  {"1979-05-27T07:32:00Z", "1979-05-27 07:32:00Z", "1979-05-27T00:32:00-07:00",
                   "1979-05-27t00:32:00.999999+07:00", "1979-05-27 00:32:00.5-07:00",
                   "1979-13-45T25:61:61Z", "0000-00-00T00:00:00+99:99"});
    expectScalars("visitLocalDateTime",
                  {"1979-05-27T07:32:00", "1979-05-27t07:32:00", "1979-05-27 07:32:00",
                   "1979-05-27T00:32:00.999999", "9999-99-99T99:99:99"});
    expectScalars("visitLocalDate", {"1979-05-27", "0000-00-00", "9999-99-99"});
    expectScalars("visitLocalTime",
                  {"07:32:00", "00:32:00.999999", "99:99:99", "00:00:00.01234567890123456789"});
}

TEST(TomlScalars, basicStrings)
{
    expectScalars("visitBasicString",
                  {R"("")", R"("x")", R"("a b # c")", R"("a\"b")", R"("a\'b")", R"("\\")",
                   R"("\b\f\n\r\t")", R"("\u00e9\uD800\uFFFF")", R"("\U0001F600\UFFFFFFFF")",
                   R"("'")", R"("''")", R"("true")", "\"\t\"", "\"a\rb\"", "\"\r\"", "\"\x01\x7f\"",
                   "\"\xc3\xa9\xe2\x82\xac\xef\xbf\xbf\""});
}

TEST(TomlScalars, literalStrings)
{
    expectScalars("visitLiteralString",
                  {"''", "'x'", R"('C:\path\')", R"('\q')", R"('"')", R"('"""')", "'\t\r\x01\x7f'",
                   "'\r'", "'\xc3\xa9\xe2\x82\xac\xef\xbf\xbf'"});
}

TEST(TomlScalars, multilineBasicStrings)
{
    expectScalars("visitMultilineBasicString",
                  {R"("""""")", R"("""x""")", R"("""""x""")", R"(""""x""")", R"("""x"""")",
                   R"(""""""")", R"("""a"b""c""")", R"("""\""""")", R"("""\u00e9\\\t""")",
                   "\"\"\"\nx\n\"\"\"", "\"\"\"a\r\nb\rc\"\"\"",
                   "\"\"\"\xc3\xa9\n\xe2\x82\xac\"\"\"", "\"\"\"one\\\r\n   two\"\"\"",
                   "\"\"\"one\\\n\n two\"\"\""});
}

TEST(TomlScalars, multilineLiteralStrings)
{
    expectScalars("visitMultilineLiteralString",
                  {"''''''", "'''x'''", "'''''x'''", "''''x'''", "'''x''''", "'''''''",
                   "'''a'b''c'''", "'''\nx\n'''", "'''a\r\nb\rc'''", "'''\\\n\\q\\'''",
                   "'''\xc3\xa9\"\"\"'''"});
}

TEST(TomlScalars, aNulByteEndsTheTextOfAString)
{
    for (const auto& [text, arrived] : std::vector<std::pair<std::string, std::string>>{
             {"a = \"x\0y\"\n"s, "visitBasicString \"x"},
             {"a = \"\0\"\n"s, "visitBasicString \""},
             {"a = 'x\0'\n"s, "visitLiteralString 'x"},
             {"a = \"\"\"x\0\n\"\"\"\n"s, "visitMultilineBasicString \"\"\"x"},
             {"a = '''\0'''\n"s, "visitMultilineLiteralString '''"},
         })
    {
        SCOPED_TRACE(testing::PrintToString(text));
        const Reading reading = read(text);
        EXPECT_TRUE(reading.accepted);
        EXPECT_EQ(reading.events, document({pair(bare("a"), {arrived})}));
        expectDriverLog(reading.lines, {});
    }
    EXPECT_EQ(read("'k\0' = 1\n"s).events, document({pair(quoted("'k"), integer("1"))}));
}

TEST(TomlScalars, aLongTextArrivesWhole)
{
    std::string content;
    for (int index = 0; content.size() < 300'000; ++index)
    {
        content += std::to_string(index) + "\xc3\xa9\n";
    }
    const std::string text = "'''" + content + "'''";
    const Reading reading = read("a = " + text + "\n");
    EXPECT_TRUE(reading.accepted);
    EXPECT_TRUE(reading.events ==
                document({pair(bare("a"), scalar("visitMultilineLiteralString", text))}));
}

TEST(TomlScalars, keysAndValuesOfTheSameTextReachDifferentOperations)
{
    EXPECT_EQ(read("\"x\" = \"x\"\n'x' = 'x'\n"s).events,
              document({pair(quoted("\"x\""), {"visitBasicString \"x\""}), //
                        pair(quoted("'x'"), {"visitLiteralString 'x'"})}));
}
