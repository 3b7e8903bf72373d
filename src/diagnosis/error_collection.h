#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "pipeline/held_exception.h"
#include "recognition.h"

#include "pipeline/recognisers.h"

namespace vorn::parsers::toml::diagnosis
{

// What a lexer's display of errors adds to.
struct LexicalErrors
{
    std::vector<LexicalError>& found;
    const ANTLR3_INPUT_STREAM& input;
    bool onlyIndependent = false; // whether what only follows from an earlier error is left out
    HeldException thrown;

    std::size_t offset(ANTLR3_MARKER position) const
    {
        // The runtime's positions are addresses of the text.
        return static_cast<std::size_t>(position - reinterpret_cast<ANTLR3_MARKER>(input.data));
    }
};

// What a parser's display of errors adds to.
struct SyntaxErrors
{
    std::vector<SyntaxError>& found;
    HeldException thrown;
    std::optional<std::size_t> lostAt; // the token at which the parser gave up
};

// The errors of the lexer go to the collection.
void collectErrors(pANTLR3_BASE_RECOGNIZER lexer, LexicalErrors& collection);

// The errors of the parser go to the collection.  Where the rule of documents itself does not
// go on the parser would pass over all the rest: it stays, and the collection has the place.
void collectErrors(pANTLR3_BASE_RECOGNIZER parser, SyntaxErrors& collection);

} // namespace vorn::parsers::toml::diagnosis
