#include "runtime_text.h"

#include <algorithm>
#include <cstring>

#include "grammar/runtime_string.h"

namespace vorn::parsers::toml
{
namespace
{

// The bytes of the input from one address to another, both included, up to a NUL byte.
std::string_view inputText(ANTLR3_MARKER start, ANTLR3_MARKER stop) noexcept
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the runtime's positions are addresses.
    const char* const text = reinterpret_cast<const char*>(start);
    // Addresses in the upper half of 32 bits are negative markers.
    const std::size_t size = static_cast<std::size_t>(stop) - static_cast<std::size_t>(start) + 1;
    return {text, strnlen(text, size)};
}

std::string_view nodeText(pANTLR3_BASE_TREE node) noexcept
{
    const pANTLR3_COMMON_TOKEN token = node->getToken(node);
    if (token == nullptr)
    {
        return "nil";
    }
    switch (token->textState)
    {
    case ANTLR3_TEXT_STRING:
        return characters(token->tokText.text);
    case ANTLR3_TEXT_CHARP:
        return reinterpret_cast<const char*>(token->tokText.chars);
    default:
        return isLexed(*token) ? lexeme(*token) : "<EOF>";
    }
}

// Hands the parts of a tree's text to `take`, one after the other.
template <typename Take>
// NOLINTNEXTLINE(misc-no-recursion): not as deep as the parser's rules, which made the tree.
void forEachPart(pANTLR3_BASE_TREE tree, Take& take)
{
    const ANTLR3_UINT32 count = tree->getChildCount(tree);
    if (count == 0)
    {
        take(nodeText(tree));
        return;
    }
    const bool isList = tree->isNilNode(tree) == ANTLR3_TRUE;
    if (!isList)
    {
        take("(");
        take(nodeText(tree));
        take(" ");
    }
    for (ANTLR3_UINT32 index = 0; index < count; ++index)
    {
        if (index > 0)
        {
            take(" ");
        }
        forEachPart(static_cast<pANTLR3_BASE_TREE>(tree->getChild(tree, index)), take);
    }
    if (!isList)
    {
        take(")");
    }
}

} // namespace

pANTLR3_STRING newString(pANTLR3_STRING_FACTORY factory, OwnedText text) noexcept
{
    const pANTLR3_STRING string = factory->newRaw(factory);
    if (text != nullptr)
    {
        string->len = static_cast<ANTLR3_UINT32>(std::strlen(text.get()));
        string->size = string->len + 1;
        string->chars = reinterpret_cast<pANTLR3_UINT8>(text.release());
    }
    return string;
}

std::string_view lexeme(const ANTLR3_COMMON_TOKEN& token) noexcept
{
    return inputText(token.start, token.stop);
}

bool isLexed(const ANTLR3_COMMON_TOKEN& token) noexcept
{
    return token.textState == ANTLR3_TEXT_NONE && token.type != ANTLR3_TOKEN_EOF;
}

OwnedText matchedText(pANTLR3_LEXER lexer) noexcept
{
    // The last character is the one that the lexer is at.
    const std::string_view matched =
        inputText(lexer->rec->state->tokenStartCharIndex, lexer->getCharIndex(lexer));
    OwnedText text(static_cast<char*>(std::malloc(matched.size() + 1)));
    if (text != nullptr)
    {
        *std::copy(matched.begin(), matched.end(), text.get()) = '\0';
    }
    return text;
}

OwnedText textOf(pANTLR3_BASE_TREE tree) noexcept
{
    std::size_t length = 0;
    const auto measure = [&length](std::string_view part) { length += part.size(); };
    forEachPart(tree, measure);
    OwnedText text(static_cast<char*>(std::malloc(length + 1)));
    if (text == nullptr)
    {
        return text;
    }
    char* end = text.get();
    const auto append = [&end](std::string_view part)
    { end = std::copy(part.begin(), part.end(), end); };
    forEachPart(tree, append);
    *end = '\0';
    return text;
}

} // namespace vorn::parsers::toml
