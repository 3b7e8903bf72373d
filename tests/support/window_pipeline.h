// Include this header last, for the same reason as grammar/recognisers.h.
#pragma once

#include <memory>
#include <string>

#include "direct/direct_lines.h"
#include "pipeline/document_lines.h"
#include "pipeline/token_window.h"

// A name of the C library, and of a token type.
#undef NAN
#include "support/parser_pipeline.h"

namespace test
{

// A lexer over a text, which must outlive it, beside the direct reader of its valid lines.
class LinesPipeline
{
public:
    explicit LinesPipeline(const std::string& text)
        : lexer_(text), direct_(text), lines_(lexer_.get()->pLexer, direct_)
    {
    }

    const Lexer& lexer() const { return lexer_; }
    vorn::parsers::toml::DocumentLines& lines() { return lines_; }

private:
    Lexer lexer_;
    vorn::parsers::toml::DirectLines direct_;
    vorn::parsers::toml::DocumentLines lines_;
};

// The same with a parser that gets its tokens through a window.
class WindowPipeline : public LinesPipeline
{
public:
    explicit WindowPipeline(const std::string& text)
        : LinesPipeline(text),
          tokens_(antlr3CommonTokenStreamSourceNew(1025, lexer().state()->tokSource)),
          parser_(TomlParserNew(tokens_.get())), window_(tokens_.get(), lines())
    {
    }

    pANTLR3_TOKEN_STREAM stream() const { return tokens_->tstream; }
    pTomlParser parser() const { return parser_.get(); }
    pANTLR3_BASE_RECOGNIZER recogniser() const { return parser_->pParser->rec; }
    vorn::parsers::toml::TokenWindow& window() { return window_; }

private:
    std::unique_ptr<ANTLR3_COMMON_TOKEN_STREAM, FreeRecogniser> tokens_;
    std::unique_ptr<TomlParser, FreeRecogniser> parser_;
    vorn::parsers::toml::TokenWindow window_;
};

// Has a lexer print nothing of its errors, which it counts.
inline void silence(const Lexer& lexer)
{
    lexer.recogniser()->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER, pANTLR3_UINT8*) {};
}

} // namespace test
