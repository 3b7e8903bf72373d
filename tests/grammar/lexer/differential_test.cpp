// The lexer against the one that the antlr3 tool makes from the grammar: on any text they
// show the same.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "support/lexer_texts.h"

#include "support/lexer_agreement.h"

using namespace test;

namespace
{

using MakeText = std::string (Texts::*)();

// Compares the lexers on every VORN_TEST_STEPth text of that length.
bool agreeOnAll(std::string_view alphabet, std::size_t length, const std::string& begin = "")
{
    static unsigned cases = 0;
    if (begin.size() == length)
    {
        return cases++ % VORN_TEST_STEP != 0 || agree(begin);
    }
    for (const char c : alphabet)
    {
        if (!agreeOnAll(alphabet, length, begin + c))
        {
            return false;
        }
    }
    return true;
}

std::string allBytes()
{
    std::string bytes;
    for (unsigned value = 0; value < 256; ++value)
    {
        bytes += static_cast<char>(value);
    }
    return bytes;
}

// Compares the lexers on that many texts.
void expectAgreement(MakeText make, unsigned seed, int count, StreamKind kind = StreamKind::utf8)
{
    Texts texts(seed);
    for (; count > 0; count -= VORN_TEST_STEP)
    {
        ASSERT_TRUE(agree((texts.*make)(), kind));
    }
}

} // namespace

TEST(LexerDifferential, ofNoByteAndOfOneAndOfTwo)
{
    ASSERT_TRUE(agree(""));
    ASSERT_TRUE(agreeOnAll(allBytes(), 1));
    ASSERT_TRUE(agreeOnAll(allBytes(), 2));
}

TEST(LexerDifferential, ofThreeTellingBytes)
{
    ASSERT_TRUE(agreeOnAll(tellingBytes, 3));
}

TEST(LexerDifferential, ofFragments)
{
    expectAgreement(&Texts::fragmentsInARow, 1, 100000);
}

TEST(LexerDifferential, ofDamagedFragments)
{
    expectAgreement(&Texts::damaged, 2, 100000);
}

TEST(LexerDifferential, ofRandomBytes)
{
    expectAgreement(&Texts::bytes, 3, 50000);
}

TEST(LexerDifferential, ofNearlyNumbers)
{
    expectAgreement(&Texts::nearlyANumber, 4, 50000);
}

TEST(LexerDifferential, inStreamsOfOtherKinds)
{
    for (const StreamKind kind : {StreamKind::eightBit, StreamKind::utf16, StreamKind::upperCase,
                                  StreamKind::otherLineEnds})
    {
        expectAgreement(&Texts::fragmentsInARow, 5, 5000, kind);
        expectAgreement(&Texts::damaged, 6, 5000, kind);
    }
}

TEST(LexerDifferential, ofEveryRuleOnItsOwn)
{
    Texts texts(7);
    for (int count = 0; count < 2000 / VORN_TEST_STEP; ++count)
    {
        const std::string text = count % 2 == 0 ? texts.damaged() : texts.nearlyANumber();
        for (std::size_t rule = firstRule; rule <= lastRule; ++rule)
        {
            ASSERT_EQ(traceRule(TomlLexerNew, rule, text),
                      traceRule(referenceTomlLexerNew, rule, text))
                << "rule " << rule << " on " << testing::PrintToString(text);
        }
    }
}
