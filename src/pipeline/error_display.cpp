#include "error_display.h"

#include <cstring>

#include "runtime_text.h"

namespace vorn::parsers::toml
{
namespace
{

pANTLR3_STRING toStringTree(pANTLR3_BASE_TREE tree)
{
    return newString(tree->getToken(tree)->strFactory, textOf(tree));
}

} // namespace

void forgetStrings(pANTLR3_STRING_FACTORY factory, ANTLR3_UINT32 kept)
{
    while (factory->index > kept)
    {
        const pANTLR3_VECTOR strings = factory->strings;
        factory->destroy(factory,
                         static_cast<pANTLR3_STRING>(strings->get(strings, factory->index - 1)));
    }
}

int countSyntaxErrors(std::initializer_list<pANTLR3_BASE_RECOGNIZER> recognisers)
{
    ANTLR3_UINT32 count = 0;
    for (const pANTLR3_BASE_RECOGNIZER recogniser : recognisers)
    {
        count += recogniser->getNumberOfSyntaxErrors(recogniser);
    }
    return static_cast<int>(count);
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

void forgetConjured(pANTLR3_BASE_RECOGNIZER parser) noexcept
{
    const pANTLR3_TOKEN_FACTORY factory = parser->state->tokFactory;
    if (factory == nullptr)
    {
        return;
    }
    // One that has been reset would free its first pool only.
    if (factory->maxPool > 0)
    {
        factory->close(factory);
        parser->state->tokFactory = nullptr;
        return;
    }
    // Otherwise the next token in the same place gets its text into the string of this one.
    for (ANTLR3_UINT32 index = 0; index < factory->nextToken; ++index)
    {
        factory->pools[0][index].textState = ANTLR3_TEXT_NONE;
    }
    factory->reset(factory);
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
    // (A node that is kept has a text of its own.)
    if (tree->getToken != nullptr)
    {
        tree->toStringTree = toStringTree;
    }
    return parser->ctnstream->stringFactory;
}

} // namespace vorn::parsers::toml
