#include <gtest/gtest.h>

#include "pipeline/input_stream.h"
#include "pipeline/owned.h"

#include <string>

using namespace std::string_literals;
using namespace vorn::parsers::toml;

TEST(InputStream, hasTheTextsOwnBytes)
{
    const std::string text = "a\0\xc3\xa9\n"s;
    EXPECT_TRUE(isStreamable(text));
    const Owned<ANTLR3_INPUT_STREAM> input(openStream(text));
    ASSERT_NE(input, nullptr);
    EXPECT_EQ(input->data, text.data());
    EXPECT_EQ(input->sizeBuf, text.size());
    EXPECT_EQ(input->encoding, static_cast<ANTLR3_UINT32>(ANTLR3_ENC_UTF8));
    const pANTLR3_STRING name = input->istream->getSourceName(input->istream);
    EXPECT_STREQ(reinterpret_cast<const char*>(name->chars), "toml");
}

TEST(InputStream, mayBeEmpty)
{
    const std::string text;
    EXPECT_TRUE(isStreamable(text));
    const Owned<ANTLR3_INPUT_STREAM> input(openStream(text));
    ASSERT_NE(input, nullptr);
    EXPECT_EQ(input->istream->_LA(input->istream, 1), ANTLR3_CHARSTREAM_EOF);
}
