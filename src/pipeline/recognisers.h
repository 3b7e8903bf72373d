// The recognisers of Toml.g and TomlTree.g, and their token names.
//
// Include this header last: it defines a macro for every token type, and some of
// those names (EOF, NAN, ...) belong to the C library as well.
#pragma once

#include <antlr3.h>

// Before the recognisers, whose headers include it between C declarations.
#include "grammar/tree_actions.h"

#include "grammar/lexer/toml_lexer.h"
#include "grammar/type_count.h"

#include "TomlParser.h"
#include "TomlTree.h"

extern "C"
{
    // The names of the token and node types, indexed by type, for the runtime's
    // messages.  Both tables hold the same names.
    // NOLINTBEGIN(*-avoid-non-const-global-variables): the tool makes them like that.
    extern pANTLR3_UINT8 TomlParserTokenNames[vorn::parsers::toml::typeCount];
    extern pANTLR3_UINT8 TomlTreeTokenNames[vorn::parsers::toml::typeCount];
    // NOLINTEND(*-avoid-non-const-global-variables)
}

// The constructors, with those that take a recogniser state to share (SSD), are
// declared by the headers above:
//
//   pTomlLexer TomlLexerNew(pANTLR3_INPUT_STREAM)
//   pTomlParser TomlParserNew(pANTLR3_COMMON_TOKEN_STREAM)
//   pTomlTree TomlTreeNew(pANTLR3_COMMON_TREE_NODE_STREAM)
//
// Each returns null when memory runs out.  What it returns is released through
// its own `free` member, after everything that reads from it.
