#include "statement_nodes.h"

#include "error_display.h"

#include "recognisers.h"

namespace vorn::parsers::toml
{

StatementNodes::StatementNodes(pANTLR3_COMMON_TREE_NODE_STREAM nodes, const Source& source,
                               bool hasFailed)
    : NodeTexts(nodes), nodes_(nodes), source_(source), follows_(source.parser->pParser->rec),
      runtimeTypeAhead_(nodes->tnstream->istream->_LA), ofError_(nodes->stringFactory)
{
    const pANTLR3_INT_STREAM stream = nodes->tnstream->istream;
    stream->_LA = typeAhead;
    stream->index = index;
    stream->seek = seek;
    if (hasFailed)
    {
        const pANTLR3_BASE_TREE_ADAPTOR adaptor = source.parser->adaptor;
        nodes->root = static_cast<pANTLR3_BASE_TREE>(
            adaptor->errorNode(adaptor, nullptr, nullptr, nullptr, nullptr));
        isLast_ = true;
    }
    else
    {
        // There is no node yet, and that has been looked for.
        nodes->p = 0;
    }
}

StatementNodes& StatementNodes::of(pANTLR3_INT_STREAM stream) noexcept
{
    const auto* const nodes = static_cast<pANTLR3_TREE_NODE_STREAM>(stream->super);
    return static_cast<StatementNodes&>(*static_cast<NodeTexts*>(nodes->ctns->super));
}

// The walk asks for the type of each node before it does anything with it.
ANTLR3_UINT32 StatementNodes::typeAhead(pANTLR3_INT_STREAM stream, ANTLR3_INT32 place)
{
    StatementNodes& nodes = of(stream);
    if (place == 1 && nodes.areTaken() && !nodes.isLast_)
    {
        nodes.next();
    }
    return nodes.runtimeTypeAhead_(stream, place);
}

ANTLR3_MARKER StatementNodes::index(pANTLR3_INT_STREAM stream)
{
    const StatementNodes& nodes = of(stream);
    return nodes.before_ + nodes.nodes_->p;
}

void StatementNodes::seek(pANTLR3_INT_STREAM stream, ANTLR3_MARKER index)
{
    const StatementNodes& nodes = of(stream);
    nodes.nodes_->p = static_cast<Position>(index) - nodes.before_;
}

bool StatementNodes::areTaken() const noexcept
{
    return nodes_->p == static_cast<Position>(nodes_->nodes->count);
}

void StatementNodes::next()
{
    renewTrees();
    // A recovery passes over nodes without a call.
    if (walker_->state->errorRecovery == ANTLR3_TRUE)
    {
        source_.tokens.forget();
    }
    else if (!source_.tokens.enterLine().empty())
    {
        source_.lines.handTo(source_.visitor, source_.buffer);
    }
    makeStatement();
}

// Of the nodes that have been taken, and of their texts, nothing is needed any more.
void StatementNodes::renewTrees()
{
    ofError_.replaceIn(walker_);
    before_ += static_cast<Position>(nodes_->nodes->count);
    nodes_->nodes->clear(nodes_->nodes);
    const pANTLR3_BASE_TREE_ADAPTOR adaptor = source_.parser->adaptor;
    const auto& trees = *static_cast<pANTLR3_COMMON_TREE_ADAPTOR>(adaptor->super)->arboretum;
    if (trees.thisPool > 0 || trees.vFactory->thisPool > 0)
    {
        adaptor->free(adaptor);
        source_.parser->adaptor = ANTLR3_TREE_ADAPTORNew(nodes_->stringFactory);
    }
}

// As the parser's rule for documents does it.
void StatementNodes::makeStatement()
{
    const pANTLR3_PARSER parser = source_.parser->pParser;
    const pANTLR3_STACK follows = parser->rec->state->following;
    const pANTLR3_INT_STREAM tokens = parser->tstream->istream;
    const pANTLR3_BASE_TREE_ADAPTOR adaptor = source_.parser->adaptor;

    forgetConjured(parser->rec);
    auto* const root = static_cast<pANTLR3_BASE_TREE>(adaptor->nilNode(adaptor));
    follows->push(follows, source_.followOfLine, nullptr);
    adaptor->addChild(adaptor, root, source_.parser->expression(source_.parser).tree);
    follows->pop(follows);

    isLast_ = tokens->_LA(tokens, 1) != NL;
    const pANTLR3_COMMON_TOKEN end =
        isLast_ ? &parser->tstream->tokenSource->eofToken
                : static_cast<pANTLR3_COMMON_TOKEN>(parser->rec->match(parser->rec, NL, nullptr));
    adaptor->addChild(adaptor, root, adaptor->create(adaptor, end));

    nodes_->root = root;
    nodes_->p = -1;
}

} // namespace vorn::parsers::toml
