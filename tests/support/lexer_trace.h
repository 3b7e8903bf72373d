#pragma once

#include <cstddef>
#include <string>

#include "grammar/lexer/toml_lexer.h"

namespace test
{

using MakeLexer = pTomlLexer (*)(pANTLR3_INPUT_STREAM);

enum class StreamKind
{
    utf8,
    eightBit,
    utf16,         // a code unit for each byte of the text
    upperCase,     // UTF-8 with the runtime's lookahead for languages without case
    otherLineEnds, // UTF-8 whose lines end with a semicolon
    ownLookahead   // UTF-8 by another lookahead than the runtime's, which does the same
};

constexpr StreamKind allStreamKinds[] = {StreamKind::utf8,          StreamKind::eightBit,
                                         StreamKind::utf16,         StreamKind::upperCase,
                                         StreamKind::otherLineEnds, StreamKind::ownLookahead};

// All that a lexer shows while it reads a text to its end, a line for each thing: the
// tokens, the errors as a display sees them, the stream after each, the count of errors.
std::string traceTokens(MakeLexer make, const std::string& text,
                        StreamKind kind = StreamKind::utf8);

// All that one call of a rule shows.  Rules have the numbers of their members in the context.
std::string traceRule(MakeLexer make, std::size_t rule, const std::string& text);

constexpr std::size_t firstRule = 1;
constexpr std::size_t lastRule = offsetof(TomlLexer, mTokens) / sizeof(TomlLexerRule);

} // namespace test
