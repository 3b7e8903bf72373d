// Include this header last, for the same reason as grammar/recognisers.h.
#pragma once

#include <memory>
#include <string>

#include "pipeline/recognisers.h"

namespace test
{

struct CloseInput
{
    void operator()(pANTLR3_INPUT_STREAM input) const { input->close(input); }
};

// The recognisers' and the runtime's streams' own operation.
struct FreeRecogniser
{
    template <typename Recogniser>
    void operator()(Recogniser* recogniser) const
    {
        recogniser->free(recogniser);
    }
};

using InputStream = std::unique_ptr<ANTLR3_INPUT_STREAM, CloseInput>;

// A stream over the bytes of a text, which must outlive it.
InputStream openInput(const std::string& text);

// A lexer over a text, which must outlive it.
class Lexer
{
public:
    explicit Lexer(const std::string& text);

    pTomlLexer get() const { return lexer_.get(); }
    pANTLR3_INPUT_STREAM input() const { return input_.get(); }
    pANTLR3_BASE_RECOGNIZER recogniser() const { return lexer_->pLexer->rec; }
    pANTLR3_RECOGNIZER_SHARED_STATE state() const { return recogniser()->state; }

    pANTLR3_COMMON_TOKEN next() const;

    // How many bytes of the text come before the next character, or before a position
    // of the runtime's.
    std::size_t offset() const;
    std::size_t offsetOf(ANTLR3_MARKER position) const;

private:
    InputStream input_;
    std::unique_ptr<TomlLexer, FreeRecogniser> lexer_;
};

} // namespace test
