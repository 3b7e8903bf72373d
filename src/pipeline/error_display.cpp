#include "error_display.h"

#include <cstring>

#include "runtime_text.h"

namespace vorn::parsers::toml
{
namespace
{

pANTLR3_STRING toStringTree(pANTLR3_BASE_TREE tree)
{
    const pANTLR3_STRING_FACTORY factory = tree->getToken(tree)->strFactory;
    const pANTLR3_STRING string = factory->newRaw(factory);
    OwnedText text = textOf(tree);
    if (text == nullptr)
    {
        return string;
    }
    string->len = static_cast<ANTLR3_UINT32>(std::strlen(text.get()));
    string->size = string->len + 1;
    string->chars = reinterpret_cast<pANTLR3_UINT8>(text.release());
    return string;
}

} // namespace

TemporaryStrings::~TemporaryStrings()
{
    while (factory_->index > kept_)
    {
        const pANTLR3_VECTOR strings = factory_->strings;
        factory_->destroy(factory_,
                          static_cast<pANTLR3_STRING>(strings->get(strings, factory_->index - 1)));
    }
}

void forgetEarlierErrors(pANTLR3_BASE_RECOGNIZER recogniser) noexcept
{
    const pANTLR3_EXCEPTION last = recogniser->state->exception;
    if (last->nextException != nullptr)
    {
        last->nextException->freeEx(last->nextException);
        last->nextException = nullptr;
    }
}

pANTLR3_STRING_FACTORY prepareDisplay(pANTLR3_PARSER parser) noexcept
{
    auto* const token = static_cast<pANTLR3_COMMON_TOKEN>(parser->rec->state->exception->token);
    if (!isLexed(*token))
    {
        token->getText(token);
    }
    return parser->tstream->tokenSource->strFactory;
}

pANTLR3_STRING_FACTORY prepareDisplay(pANTLR3_TREE_PARSER parser) noexcept
{
    auto* const tree = static_cast<pANTLR3_BASE_TREE>(parser->rec->state->exception->token);
    tree->toStringTree = toStringTree;
    return parser->ctnstream->stringFactory;
}

} // namespace vorn::parsers::toml
