#pragma once

#include <vorn/parsers/toml.h>

#include <antlr3.h>

#include "follow_stack.h"
#include "kept_node.h"
#include "node_texts.h"
#include "token_window.h"

struct TomlParser_Ctx_struct;

namespace vorn::parsers::toml
{

// Where the tree parser gets the nodes of a document from: statement by statement.  The parser,
// which has found all errors before, makes the trees of one statement when the walk has gone over
// the last one.  Valid lines have no trees: the visitor gets them from the direct reader.
class StatementNodes : private NodeTexts
{
public:
    // What it takes to make the trees, and whom valid lines go to.
    struct Source
    {
        TomlParser_Ctx_struct* parser;
        TokenWindow& tokens;
        pANTLR3_BITSET_LIST followOfLine; // what may follow a line, as the parser has it
        DocumentLines& lines;
        ITomlTreeVisitor& visitor;
        char* buffer; // for texts of valid lines
    };

    // Replaces what the stream does, which has not been used; the source lives as long as this.  If
    // the document as a whole has failed there is but one node.
    StatementNodes(pANTLR3_COMMON_TREE_NODE_STREAM nodes, const Source& source, bool hasFailed);
    StatementNodes(const StatementNodes&) = delete;
    StatementNodes& operator=(const StatementNodes&) = delete;
    ~StatementNodes() = default;

    // The tree parser that takes the nodes.
    void setWalker(pANTLR3_BASE_RECOGNIZER walker) noexcept { walker_ = walker; }

private:
    using Position = decltype(ANTLR3_COMMON_TREE_NODE_STREAM::p);

    static StatementNodes& of(pANTLR3_INT_STREAM stream) noexcept;
    static ANTLR3_UINT32 typeAhead(pANTLR3_INT_STREAM stream, ANTLR3_INT32 place);
    static ANTLR3_MARKER index(pANTLR3_INT_STREAM stream);
    static void seek(pANTLR3_INT_STREAM stream, ANTLR3_MARKER index);

    bool areTaken() const noexcept;
    void next();
    void renewTrees();
    void makeStatement();

    pANTLR3_COMMON_TREE_NODE_STREAM nodes_;
    const Source& source_;
    const FollowStack follows_; // the parser's
    decltype(ANTLR3_INT_STREAM::_LA) runtimeTypeAhead_;
    pANTLR3_BASE_RECOGNIZER walker_ = nullptr;
    KeptNode ofError_;
    Position before_ = 0; // how many nodes there were of earlier statements
    bool isLast_ = false; // after these nodes there are none
};

} // namespace vorn::parsers::toml
