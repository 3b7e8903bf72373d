#pragma once

#include <antlr3.h>

#include "token_window.h"

struct TomlParser_Ctx_struct;

namespace vorn::parsers::toml
{

// What a parser finds in a document whose errors it has reported.
struct Syntax
{
    bool hasFailed;                   // the document's rule, so that nothing of it can be walked
    std::size_t levelsWithoutRoom;    // as FollowStack has them
    pANTLR3_BITSET_LIST followOfLine; // what may follow a line, for StatementNodes
};

// Has the parser report the errors of a whole document, without trees.
Syntax checkSyntax(TomlParser_Ctx_struct& parser, TokenWindow& tokens);

// Sets the parser back, to make trees; it does not report the errors again.
void startOver(TomlParser_Ctx_struct& parser, TokenWindow& tokens);

} // namespace vorn::parsers::toml
