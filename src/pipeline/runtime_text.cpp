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

// Appends a tree's text at `end`, or measures it if there is no room yet.
class TreeText
{
public:
    explicit TreeText(char* end) noexcept : end_(end) {}

    // NOLINTNEXTLINE(misc-no-recursion): not as deep as the parser's rules, which made the tree.
    void add(pANTLR3_BASE_TREE tree) noexcept
    {
        const ANTLR3_UINT32 count = tree->getChildCount(tree);
        const bool isList = count > 0 && tree->isNilNode(tree) == ANTLR3_TRUE;
        const bool isTree = count > 0 && !isList;
        if (isTree)
        {
            add('(');
        }
        if (!isList)
        {
            for (const char c : nodeText(tree))
            {
                add(c);
            }
        }
        for (ANTLR3_UINT32 index = 0; index < count; ++index)
        {
            if (isTree || index > 0)
            {
                add(' ');
            }
            add(static_cast<pANTLR3_BASE_TREE>(tree->getChild(tree, index)));
        }
        if (isTree)
        {
            add(')');
        }
    }

    void add(char c) noexcept
    {
        ++length_;
        if (end_ != nullptr)
        {
            *end_++ = c;
        }
    }

    std::size_t length() const noexcept { return length_; }

private:
    char* end_;
    std::size_t length_ = 0;
};

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
    TreeText measured(nullptr);
    measured.add(tree);
    OwnedText text(static_cast<char*>(std::malloc(measured.length() + 1)));
    if (text != nullptr)
    {
        TreeText(text.get()).add(tree);
        text.get()[measured.length()] = '\0';
    }
    return text;
}

} // namespace vorn::parsers::toml
