#pragma once

#include <optional>

#include "pipeline/held_exception.h"
#include "recognition.h"

#include "pipeline/recognisers.h"

namespace tool
{

// What the recognisers' displays of errors add to.
struct Collection
{
    Recognition& found;
    const ANTLR3_INPUT_STREAM& input;
    vorn::parsers::toml::HeldException thrown;
    std::optional<std::size_t> lostAt; // the token at which the parser gave up

    std::size_t offset(ANTLR3_MARKER position) const
    {
        // The runtime's positions are addresses of the text.
        return static_cast<std::size_t>(position - reinterpret_cast<ANTLR3_MARKER>(input.data));
    }
};

// The errors of the lexer go to the collection.
void collectLexicalErrors(pANTLR3_BASE_RECOGNIZER lexer, Collection& collection);

// The errors of the parser go to the collection.  Where the rule of documents itself does not
// go on the parser would pass over all the rest: it stays, and the collection has the place.
void collectSyntaxErrors(pANTLR3_BASE_RECOGNIZER parser, Collection& collection);

} // namespace tool
