// The lexer beside the one that the antlr3 tool makes from the grammar.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "lexer_trace.h"

extern "C" pTomlLexer referenceTomlLexerNew(pANTLR3_INPUT_STREAM input);

namespace test
{

// Whether both lexers show the same; says so if they do not.
inline bool agree(const std::string& text, StreamKind kind = StreamKind::utf8)
{
    const std::string expected = traceTokens(referenceTomlLexerNew, text, kind);
    const std::string shown = traceTokens(TomlLexerNew, text, kind);
    EXPECT_EQ(shown, expected) << testing::PrintToString(text) << " in a stream of kind "
                               << static_cast<int>(kind);
    return shown == expected;
}

} // namespace test
