#include "node_texts.h"

#include <algorithm>
#include <cstddef>

namespace vorn::parsers::toml
{

NodeTexts::NodeTexts(pANTLR3_COMMON_TREE_NODE_STREAM nodes) noexcept
    : runtimeToString_(nodes->tnstream->toStringSS)
{
    nodes->super = this;
    nodes->tnstream->toStringSS = toString;
}

pANTLR3_STRING NodeTexts::toString(pANTLR3_TREE_NODE_STREAM nodes, pANTLR3_BASE_TREE first,
                                   pANTLR3_BASE_TREE last)
{
    auto& texts = *static_cast<NodeTexts*>(nodes->ctns->super);
    const pANTLR3_COMMON_TOKEN token = first->getToken(first);
    if (first == last && token != nullptr && isLexed(*token) && texts.set(lexeme(*token)))
    {
        return &texts.string_;
    }
    return texts.runtimeToString_(nodes, first, last);
}

bool NodeTexts::set(std::string_view text) noexcept
{
    if (text.size() >= string_.size)
    {
        const std::size_t size = std::max(text.size() + 1, std::size_t{2} * string_.size);
        characters_.reset(static_cast<char*>(std::malloc(size)));
        string_.size = characters_ != nullptr ? static_cast<ANTLR3_UINT32>(size) : 0;
        string_.chars = reinterpret_cast<pANTLR3_UINT8>(characters_.get());
    }
    if (characters_ == nullptr)
    {
        return false;
    }
    *std::copy(text.begin(), text.end(), characters_.get()) = '\0';
    string_.len = static_cast<ANTLR3_UINT32>(text.size());
    return true;
}

} // namespace vorn::parsers::toml
