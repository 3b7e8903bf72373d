#include "matching.h"

#include <cstddef>

namespace vorn::parsers::toml
{
namespace
{

// The runtime takes what it only reads as mutable.
void* text(const char* characters)
{
    return const_cast<char*>(characters);
}

bool raise(pANTLR3_LEXER lexer, ANTLR3_UINT32 type, const char* name)
{
    lexer->rec->exConstruct(lexer->rec);
    lexer->rec->state->exception->type = type;
    lexer->rec->state->exception->name = text(name);
    return false;
}

} // namespace

ANTLR3_UCHAR peek(pANTLR3_LEXER lexer, ANTLR3_INT32 place)
{
    return lexer->input->istream->_LA(lexer->input->istream, place);
}

void consume(pANTLR3_LEXER lexer)
{
    lexer->input->istream->consume(lexer->input->istream);
}

bool isWell(pANTLR3_LEXER lexer)
{
    return lexer->rec->state->error != ANTLR3_TRUE;
}

bool match(pANTLR3_LEXER lexer, char c)
{
    lexer->matchc(lexer, static_cast<ANTLR3_UCHAR>(c));
    return isWell(lexer);
}

bool match(pANTLR3_LEXER lexer, const char* text)
{
    ANTLR3_UCHAR characters[] = {0, 0, 0, 0, 0, ANTLR3_STRING_TERMINATOR}; // "false" fits
    std::size_t length = 0;
    for (; text[length] != '\0'; ++length)
    {
        characters[length] = static_cast<unsigned char>(text[length]);
    }
    characters[length] = ANTLR3_STRING_TERMINATOR;
    lexer->matchs(lexer, characters);
    return isWell(lexer);
}

bool match(pANTLR3_LEXER lexer, CharacterClass kind, int count)
{
    for (; count > 0; --count)
    {
        if (!matchSet(lexer, is(peek(lexer), kind)))
        {
            return false;
        }
    }
    return true;
}

bool matchSet(pANTLR3_LEXER lexer, bool belongs)
{
    if (!belongs)
    {
        raise(lexer, ANTLR3_MISMATCHED_SET_EXCEPTION, ANTLR3_MISMATCHED_SET_NAME);
        lexer->recover(lexer);
        return false;
    }
    consume(lexer);
    return isWell(lexer);
}

bool skip(pANTLR3_LEXER lexer, CharacterClass kind)
{
    bool any = false;
    for (; is(peek(lexer), kind); any = true)
    {
        consume(lexer);
    }
    return any;
}

bool failEarly(pANTLR3_LEXER lexer)
{
    return raise(lexer, ANTLR3_EARLY_EXIT_EXCEPTION, ANTLR3_EARLY_EXIT_NAME);
}

bool failChoice(pANTLR3_LEXER lexer, Decision decision, DecisionState state,
                const char* description)
{
    raise(lexer, ANTLR3_NO_VIABLE_ALT_EXCEPTION, ANTLR3_RECOGNITION_EX_NAME);
    ANTLR3_EXCEPTION& exception = *lexer->rec->state->exception;
    exception.message = text(description);
    exception.decisionNum = static_cast<ANTLR3_UINT32>(decision);
    exception.state = state;
    return false;
}

bool store(pANTLR3_LEXER lexer, TokenType type)
{
    lexer->rec->state->type = static_cast<ANTLR3_UINT32>(type);
    return true;
}

bool storeSkipped(pANTLR3_LEXER lexer, TokenType type)
{
    lexer->rec->state->token = &lexer->rec->state->tokSource->skipToken;
    return store(lexer, type);
}

} // namespace vorn::parsers::toml
