#include "no_tree.h"

namespace vorn::parsers::toml
{
namespace
{

using Adaptor = pANTLR3_BASE_TREE_ADAPTOR;

// What the runtime asks a node for, apart from the adaptor's operations.
constexpr ANTLR3_BASE_TREE makeNode()
{
    ANTLR3_BASE_TREE node = {};
    node.isNilNode = [](pANTLR3_BASE_TREE) -> ANTLR3_BOOLEAN { return ANTLR3_FALSE; };
    return node;
}

constexpr ANTLR3_BASE_TREE anyNode = makeNode();
constexpr ANTLR3_BASE_TREE errorNode = makeNode();

// Nothing changes them.
void* any() noexcept
{
    return const_cast<ANTLR3_BASE_TREE*>(&anyNode);
}

} // namespace

NoTree::NoTree(Adaptor adaptor) noexcept : adaptor_(adaptor), operations_(*adaptor)
{
    adaptor->nilNode = [](Adaptor) -> void* { return any(); };
    adaptor->create = [](Adaptor, pANTLR3_COMMON_TOKEN) -> void* { return any(); };
    adaptor->createTypeText = [](Adaptor, ANTLR3_UINT32, pANTLR3_UINT8) -> void*
    { return any(); };
    adaptor->becomeRoot = [](Adaptor, void*, void*) -> void* { return any(); };
    adaptor->rulePostProcessing = [](Adaptor, void*) -> void* { return any(); };
    adaptor->errorNode = [](Adaptor, pANTLR3_TOKEN_STREAM, pANTLR3_COMMON_TOKEN,
                            pANTLR3_COMMON_TOKEN, pANTLR3_EXCEPTION) -> void*
    { return const_cast<ANTLR3_BASE_TREE*>(&errorNode); };
    adaptor->addChild = [](Adaptor, void*, void*) {};
    adaptor->setTokenBoundaries = [](Adaptor, void*, pANTLR3_COMMON_TOKEN, pANTLR3_COMMON_TOKEN) {};
}

bool NoTree::isOfFailure(pANTLR3_BASE_TREE tree) noexcept
{
    return tree == &errorNode;
}

} // namespace vorn::parsers::toml
