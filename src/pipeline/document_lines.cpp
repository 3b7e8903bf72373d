#include "document_lines.h"

namespace vorn::parsers::toml
{

// A factory frees the pools up to the one that it is using, which is an earlier one now that it has
// been set back.
DocumentLines::~DocumentLines()
{
    const pANTLR3_TOKEN_FACTORY factory = lexer_->rec->state->tokFactory;
    factory->thisPool = factory->maxPool;
    factory->nextToken = 0;
}

std::string_view DocumentLines::passValid()
{
    ANTLR3_INPUT_STREAM& input = *lexer_->input;
    const auto* const begin = static_cast<const char*>(input.nextChar);
    const char* const end = direct_.read(begin);
    if (end == begin)
    {
        return {};
    }
    // The lexer goes on at a line's start, as if it had read what comes before.
    const char* lineStart = end;
    while (lineStart[-1] != '\n')
    {
        --lineStart;
    }
    advance(input, lineStart);
    return {begin, static_cast<std::size_t>(end - begin)};
}

DocumentLines::Found DocumentLines::reportErrors()
{
    Found found;
    forEach([](std::string_view) {},
            [&](const ANTLR3_COMMON_TOKEN& token)
            {
                ++found.tokens;
                found.brackets += opensLevel(token.type) ? 1 : 0;
                found.listed += separates(token.type) ? 2 : isNewline(token.type) ? 1 : 0;
            });
    restart();
    return found;
}

pANTLR3_COMMON_TOKEN DocumentLines::nextToken()
{
    // The token takes the place of the one before it.
    const pANTLR3_TOKEN_FACTORY factory = lexer_->rec->state->tokFactory;
    const auto pool = factory->thisPool;
    const auto next = factory->nextToken;
    const pANTLR3_TOKEN_SOURCE source = lexer_->rec->state->tokSource;
    const pANTLR3_COMMON_TOKEN token = source->nextToken(source);
    factory->thisPool = pool;
    factory->nextToken = next;
    return token;
}

} // namespace vorn::parsers::toml
