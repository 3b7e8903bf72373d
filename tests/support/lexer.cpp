#include "lexer.h"

namespace test
{
namespace
{

// The runtime takes what it only reads as mutable bytes.
pANTLR3_UINT8 bytes(const char* text)
{
    return reinterpret_cast<pANTLR3_UINT8>(const_cast<char*>(text));
}

} // namespace

InputStream openInput(const std::string& text)
{
    return InputStream(antlr3StringStreamNew(bytes(text.data()), ANTLR3_ENC_UTF8,
                                             static_cast<ANTLR3_UINT32>(text.size()),
                                             bytes("toml")));
}

Lexer::Lexer(const std::string& text) : input_(openInput(text)), lexer_(TomlLexerNew(input_.get()))
{
}

pANTLR3_COMMON_TOKEN Lexer::next() const
{
    const pANTLR3_TOKEN_SOURCE source = state()->tokSource;
    return source->nextToken(source);
}

std::size_t Lexer::offset() const
{
    return offsetOf(lexer_->pLexer->getCharIndex(lexer_->pLexer));
}

std::size_t Lexer::offsetOf(ANTLR3_MARKER position) const
{
    // The runtime's positions are addresses of the text.
    return static_cast<std::size_t>(position - reinterpret_cast<ANTLR3_MARKER>(input_->data));
}

} // namespace test
