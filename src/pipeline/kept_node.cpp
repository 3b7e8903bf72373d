#include "kept_node.h"

namespace vorn::parsers::toml
{

KeptNode::KeptNode(pANTLR3_STRING_FACTORY strings) noexcept : ANTLR3_BASE_TREE()
{
    strFactory = strings;
    toStringTree = [](pANTLR3_BASE_TREE node)
    {
        const pANTLR3_STRING_FACTORY factory = node->strFactory;
        return factory->newStr8(
            factory, reinterpret_cast<pANTLR3_UINT8>(const_cast<char*>(orEmpty(of(node).text_))));
    };
    getCharPositionInLine = [](pANTLR3_BASE_TREE node) { return of(node).column_; };
}

void KeptNode::replaceIn(pANTLR3_BASE_RECOGNIZER walker) noexcept
{
    const pANTLR3_EXCEPTION error = walker->state->exception;
    if (error == nullptr || error->token == this)
    {
        return;
    }
    auto* const node = static_cast<pANTLR3_BASE_TREE>(error->token);
    text_ = textOf(node);
    column_ = node->getCharPositionInLine(node);
    error->token = static_cast<pANTLR3_BASE_TREE>(this);
}

} // namespace vorn::parsers::toml
