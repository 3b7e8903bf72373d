#include "no_tree.h"

namespace vorn::parsers::toml
{

NoTree::NoTree(Adaptor adaptor) noexcept
    : adaptor_(adaptor), operations_(*adaptor), any_(adaptor->nilNode(adaptor)),
      error_(adaptor->errorNode(adaptor, nullptr, nullptr, nullptr, nullptr))
{
    // Only adaptors for debugging have something there.
    adaptor->debugger = reinterpret_cast<pANTLR3_DEBUG_EVENT_LISTENER>(this);
    adaptor->nilNode = [](Adaptor self) { return anyNode(self); };
    adaptor->create = [](Adaptor self, pANTLR3_COMMON_TOKEN) { return anyNode(self); };
    adaptor->createTypeText = [](Adaptor self, ANTLR3_UINT32, pANTLR3_UINT8)
    { return anyNode(self); };
    adaptor->becomeRoot = [](Adaptor self, void*, void*) { return anyNode(self); };
    adaptor->rulePostProcessing = [](Adaptor self, void*) { return anyNode(self); };
    adaptor->errorNode = [](Adaptor self, pANTLR3_TOKEN_STREAM, pANTLR3_COMMON_TOKEN,
                            pANTLR3_COMMON_TOKEN, pANTLR3_EXCEPTION) { return of(self).error_; };
    adaptor->addChild = [](Adaptor, void*, void*) {};
    adaptor->setTokenBoundaries = [](Adaptor, void*, pANTLR3_COMMON_TOKEN, pANTLR3_COMMON_TOKEN) {};
}

const NoTree& NoTree::of(Adaptor adaptor) noexcept
{
    return *reinterpret_cast<const NoTree*>(adaptor->debugger);
}

} // namespace vorn::parsers::toml
