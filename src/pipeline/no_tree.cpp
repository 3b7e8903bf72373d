#include "no_tree.h"

namespace vorn::parsers::toml
{
namespace
{

using Adaptor = pANTLR3_BASE_TREE_ADAPTOR;

// What the runtime asks a node for, apart from the adaptor's operations.
ANTLR3_BASE_TREE makeNode()
{
    ANTLR3_BASE_TREE node = {};
    node.isNilNode = [](pANTLR3_BASE_TREE) -> ANTLR3_BOOLEAN { return ANTLR3_FALSE; };
    return node;
}

// Nothing changes them.
ANTLR3_BASE_TREE anyNode = makeNode();
ANTLR3_BASE_TREE errorNode = makeNode();

} // namespace

NoTree::NoTree(Adaptor adaptor) noexcept : adaptor_(adaptor), operations_(*adaptor)
{
    adaptor->nilNode = [](Adaptor) -> void* { return &anyNode; };
    adaptor->create = [](Adaptor, pANTLR3_COMMON_TOKEN) -> void* { return &anyNode; };
    adaptor->createTypeText = [](Adaptor, ANTLR3_UINT32, pANTLR3_UINT8) -> void*
    { return &anyNode; };
    adaptor->becomeRoot = [](Adaptor, void*, void*) -> void* { return &anyNode; };
    adaptor->rulePostProcessing = [](Adaptor, void*) -> void* { return &anyNode; };
    adaptor->errorNode = [](Adaptor, pANTLR3_TOKEN_STREAM, pANTLR3_COMMON_TOKEN,
                            pANTLR3_COMMON_TOKEN, pANTLR3_EXCEPTION) -> void*
    { return &errorNode; };
    adaptor->addChild = [](Adaptor, void*, void*) {};
    adaptor->setTokenBoundaries = [](Adaptor, void*, pANTLR3_COMMON_TOKEN, pANTLR3_COMMON_TOKEN) {};
}

bool NoTree::isOfFailure(pANTLR3_BASE_TREE tree) noexcept
{
    return tree == &errorNode;
}

} // namespace vorn::parsers::toml
