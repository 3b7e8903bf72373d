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

// Whether there is the memory that a document needs.  Where there is not enough for any of its
// size, that takes to lex and to parse it, without a word about errors.
bool hasMemory(TomlParser_Ctx_struct& parser, DocumentLines& lines, TokenWindow& tokens);

// Sets the parser back, to make trees; it does not report the errors again.
void startOver(const TomlParser_Ctx_struct& parser, TokenWindow& tokens);

} // namespace vorn::parsers::toml
