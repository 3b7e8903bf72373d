// Include this header last, for the same reason as grammar/recognisers.h.
#pragma once

#include <memory>
#include <string>

#include "support/lexer.h"

#include "pipeline/recognisers.h"

namespace test
{

// A parser over the tokens of a text, which must outlive it.
class ParserPipeline
{
public:
    explicit ParserPipeline(const std::string& text)
        : lexer_(text), tokens_(antlr3CommonTokenStreamSourceNew(1025, lexer_.state()->tokSource)),
          parser_(TomlParserNew(tokens_.get()))
    {
    }

    const Lexer& lexer() const { return lexer_; }
    pANTLR3_COMMON_TOKEN_STREAM tokens() const { return tokens_.get(); }
    pTomlParser parser() const { return parser_.get(); }
    pANTLR3_BASE_RECOGNIZER recogniser() const { return parser_->pParser->rec; }

private:
    Lexer lexer_;
    std::unique_ptr<ANTLR3_COMMON_TOKEN_STREAM, FreeRecogniser> tokens_;
    std::unique_ptr<TomlParser, FreeRecogniser> parser_;
};

} // namespace test
