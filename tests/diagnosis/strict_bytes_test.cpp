// Bytes that are allowed nowhere.
#include "diagnosis/strict_bytes.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "strict_mistakes_of.h"
#include "support/guarded_memory.h"
#include "support/utf8.h"

using namespace vorn::parsers::toml::diagnosis;
using namespace std::string_literals;

namespace
{

std::string found(const std::string& text, std::size_t max = 0)
{
    return test::shown(text, findForbiddenBytes(text, max));
}

std::vector<std::string> messages(const std::string& text)
{
    std::vector<std::string> messages;
    for (const Mistake& mistake : findForbiddenBytes(text, 0))
    {
        messages.push_back(mistake.message);
    }
    return messages;
}

using Messages = std::vector<std::string>;

// What is found in each of the 256 bytes, between others.
std::string expectedFor(unsigned byte)
{
    const std::string text(1, static_cast<char>(byte));
    if (byte == 0)
    {
        return "nul at 9 " + text + '\n';
    }
    if (byte == '\r')
    {
        return "lone-carriage-return at 9 \r\n";
    }
    if (byte == '\t' || byte == '\n')
    {
        return "";
    }
    if (byte < 0x20 || byte == 0x7F)
    {
        return "control-character at 9 " + text + '\n';
    }
    return byte < 0x80 ? "" : "not-utf8 at 9 " + text + '\n';
}

} // namespace

TEST(StrictBytes, eachByteAlone)
{
    for (unsigned byte = 0; byte < 256; ++byte)
    {
        SCOPED_TRACE(byte);
        const std::string text = "# comment" + std::string(1, static_cast<char>(byte));
        EXPECT_EQ(found(text), expectedFor(byte));
        EXPECT_EQ(found(text + " goes on\n"), expectedFor(byte));
    }
}

TEST(StrictBytes, eachPlaceInAWord)
{
    for (std::size_t at = 0; at < 40; ++at)
    {
        std::string text(40, 'a');
        text[at] = '\x1F';
        EXPECT_EQ(found(text), "control-character at " + std::to_string(at) + " \x1F\n");
    }
}

TEST(StrictBytes, allCharactersAreAllowed)
{
    for (std::uint32_t code = 0x80; code <= 0x10FFFF; ++code)
    {
        if (code < 0xD800 || code > 0xDFFF)
        {
            ASSERT_EQ(found(test::utf8(code) + "a"), "") << code;
        }
    }
}

TEST(StrictBytes, whatIsNoCharacterIsNotAllowed)
{
    for (const std::string bytes :
         {"\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
          "\xF0\x80\x80\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\x80",
          "\xFF\xFE", "\xC3", "\xE2\x82", "\xF0\x9F\x98"})
    {
        EXPECT_EQ(found("ab" + bytes), "not-utf8 at 2 " + bytes + '\n');
        EXPECT_EQ(found(bytes + 'c'), "not-utf8 at 0 " + bytes + '\n');
    }
}

TEST(StrictBytes, lineBreaks)
{
    EXPECT_EQ(found("a\r\nb\n\r\n\r\n"), "");
    EXPECT_EQ(found("a\r\r\nb\r"), "lone-carriage-return at 1 \r\nlone-carriage-return at 5 \r\n");
    EXPECT_EQ(found("\r\r\r"), "lone-carriage-return at 0 \r\r\r\n");
}

TEST(StrictBytes, nothingIsReadAfterTheEnd)
{
    test::GuardedMemory memory(64);
    for (const std::string text :
         {"", "\r", "a\r", "\r\n", "\xE2", "\xE2\x82", "abcdefgh\xF0", "abc"})
    {
        const std::string_view held(memory.hold(text), text.size());
        EXPECT_EQ(findForbiddenBytes(held, 0).size(), findForbiddenBytes(text, 0).size());
    }
}

TEST(StrictBytes, aByteOrderMarkIsACharacter)
{
    EXPECT_EQ(found("\xEF\xBB\xBF# \xEF\xBB\xBF\n"), "");
    EXPECT_EQ(found("\xEF\xBB"), "not-utf8 at 0 \xEF\xBB\n");
}

TEST(StrictBytes, adjacentOnesAreOneMistake)
{
    EXPECT_EQ(found("a\x01\x02\x7F\0\0\xFF\x80z\x01"s), "control-character at 1 \x01\x02\x7F\n"
                                                        "nul at 4 \0\0\n"
                                                        "not-utf8 at 6 \xFF\x80\n"
                                                        "control-character at 9 \x01\n"s);
    EXPECT_EQ(found(std::string(100000, '\0')), "nul at 0 " + std::string(100000, '\0') + '\n');
}

TEST(StrictBytes, theFirstOnesOnly)
{
    const std::string text = "\x01 \x02 \x03";
    EXPECT_EQ(found(text, 2), "control-character at 0 \x01\ncontrol-character at 2 \x02\n");
    EXPECT_EQ(findForbiddenBytes(text, 3).size(), 3U);
    EXPECT_EQ(findForbiddenBytes(text, 0).size(), 3U);
}

TEST(StrictBytes, words)
{
    EXPECT_EQ(
        messages("\x1B, \x02\x03, \0, \0\0, \xFF, \xE2\x82, \r"s),
        (Messages{"the control character U+001B is not allowed",
                  "the 2 control characters from U+0002 on are not allowed",
                  "the control character U+0000 is not allowed",
                  "the 2 control characters from U+0000 on are not allowed",
                  "the byte FF is not valid UTF-8", "the 2 bytes from E2 on are not valid UTF-8",
                  "a carriage return without a line feed after it"}));
    EXPECT_EQ(findForbiddenBytes("\x1B", 0)[0].hint,
              "In a string with double quotes, write \\u001B instead. Of control characters only "
              "tabs and line breaks are allowed.");
    EXPECT_EQ(findForbiddenBytes("\0"s, 0)[0].hint,
              "In a string with double quotes, write \\u0000 instead. Perhaps this is not a text "
              "file.");
    EXPECT_EQ(findForbiddenBytes("\xFF", 0)[0].hint,
              "Such bytes may be misread, together with those after them. Save the file as UTF-8.");
}
