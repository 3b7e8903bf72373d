// Include this header last, for the same reason as grammar/recognisers.h.
#pragma once

#include <string>

#include "direct/direct_lines.h"
#include "pipeline/document_lines.h"
#include "pipeline/token_window.h"

#include "support/parser_pipeline.h"

namespace test
{

// A parser that lexes on demand, as the driver has it, over a text that must outlive it.
class WindowPipeline
{
public:
    explicit WindowPipeline(const std::string& text)
        : pipeline_(text), direct_(text), lines_(pipeline_.lexer().get()->pLexer, direct_),
          window_(pipeline_.tokens(), lines_)
    {
    }

    const Lexer& lexer() const { return pipeline_.lexer(); }
    pTomlParser parser() const { return pipeline_.parser(); }
    pANTLR3_BASE_RECOGNIZER recogniser() const { return pipeline_.recogniser(); }
    vorn::parsers::toml::DocumentLines& lines() { return lines_; }
    vorn::parsers::toml::TokenWindow& window() { return window_; }

private:
    ParserPipeline pipeline_;
    vorn::parsers::toml::DirectLines direct_;
    vorn::parsers::toml::DocumentLines lines_;
    vorn::parsers::toml::TokenWindow window_;
};

} // namespace test
