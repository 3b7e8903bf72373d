#include "runtime_text.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace vorn::parsers::toml
{
namespace
{

// What the runtime adds for a token when it joins texts: the lexeme as a C string,
// so that a NUL byte ends it early.
std::string_view lexeme(pANTLR3_TOKEN_STREAM tokens, ANTLR3_UINT32 index)
{
    const pANTLR3_COMMON_TOKEN token = tokens->get(tokens, index);
    // Boundaries are addresses of the input: the lexeme's first and last byte.
    const ANTLR3_MARKER start = token->getStartIndex(token);
    const ANTLR3_MARKER stop = token->getStopIndex(token);
    const char* const text = reinterpret_cast<const char*>(start);
    return {text, strnlen(text, static_cast<std::size_t>(stop - start + 1))};
}

} // namespace

std::unique_ptr<char, FreeText> textOf(pANTLR3_TOKEN_STREAM tokens) noexcept
{
    const ANTLR3_UINT32 count = tokens->istream->size(tokens->istream);
    std::size_t length = 0;
    for (ANTLR3_UINT32 index = 0; index < count; ++index)
    {
        length += lexeme(tokens, index).size();
    }
    std::unique_ptr<char, FreeText> text(static_cast<char*>(std::malloc(length + 1)));
    if (text == nullptr)
    {
        return text;
    }
    char* end = text.get();
    for (ANTLR3_UINT32 index = 0; index < count; ++index)
    {
        const std::string_view part = lexeme(tokens, index);
        end = std::copy(part.begin(), part.end(), end);
    }
    *end = '\0';
    return text;
}

} // namespace vorn::parsers::toml
