#pragma once

#include <antlr3.h>

#include <cstddef>

namespace vorn::parsers::toml::diagnosis
{

// What the lexer makes of a document: the tokens that it hands to the parser, and those of
// them that open an array or an inline table.
struct DocumentSurvey
{
    std::size_t tokens = 0;
    std::size_t brackets = 0;
};

// Runs the lexer over its input, without a word about errors and without keeping anything,
// and sets it back to where it was.
DocumentSurvey survey(pANTLR3_LEXER lexer);

} // namespace vorn::parsers::toml::diagnosis
