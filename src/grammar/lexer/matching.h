// What the lexer's rules do with the runtime: look ahead, match, fail.
//
// What matches returns whether it did.  If it did not, an exception is pending and the rule
// must end.
#pragma once

#include <antlr3.h>

#include "decisions.h"
#include "scan/character_class.h"
#include "scan/token_type.h"

namespace vorn::parsers::toml
{

// The last character that a set of the grammar can have.
constexpr ANTLR3_UCHAR lastCharacter = 0xFFFF;

constexpr bool is(ANTLR3_UCHAR c, CharacterClass kind)
{
    return c < 0x80 && is(static_cast<char>(c), kind);
}

constexpr bool isSign(ANTLR3_UCHAR c)
{
    return c == '+' || c == '-';
}
constexpr bool isExponentMark(ANTLR3_UCHAR c)
{
    return c == 'e' || c == 'E';
}

// Whether tokens of this type open an array or an inline table.
constexpr bool opensLevel(ANTLR3_UINT32 type)
{
    return type == static_cast<ANTLR3_UINT32>(TokenType::openBracket) ||
           type == static_cast<ANTLR3_UINT32>(TokenType::openBrace);
}

// Whether tokens of this type separate elements, pairs, or parts of a key.
constexpr bool separates(ANTLR3_UINT32 type)
{
    return type == static_cast<ANTLR3_UINT32>(TokenType::comma) ||
           type == static_cast<ANTLR3_UINT32>(TokenType::dot);
}

// Whether tokens of this type are line breaks.
constexpr bool isNewline(ANTLR3_UINT32 type)
{
    return type == static_cast<ANTLR3_UINT32>(TokenType::newline);
}

// The character in the given place; place 1 is the input's position.
ANTLR3_UCHAR peek(pANTLR3_LEXER lexer, ANTLR3_INT32 place = 1);

void consume(pANTLR3_LEXER lexer);

// Whether no exception is pending.
bool isWell(pANTLR3_LEXER lexer);

bool match(pANTLR3_LEXER lexer, char c);
bool match(pANTLR3_LEXER lexer, const char* text);
bool match(pANTLR3_LEXER lexer, CharacterClass kind, int count = 1);

// Matches one character of a set; the caller tells whether the next one belongs to it.
bool matchSet(pANTLR3_LEXER lexer, bool belongs);

// Consumes all characters of a class that come next; returns whether there were any.
bool skip(pANTLR3_LEXER lexer, CharacterClass kind);

// Always returns false: a loop found nothing where it needs at least one character.
bool failEarly(pANTLR3_LEXER lexer);

// Always returns false: no alternative of a choice fits.  Where a choice looks at one
// character only, the state is its start.
bool failChoice(pANTLR3_LEXER lexer, Decision decision, DecisionState state = states::start,
                const char* description = "");

// Always returns true: a token has been matched.
bool store(pANTLR3_LEXER lexer, TokenType type);

// The same for a token that the parser does not get.
bool storeSkipped(pANTLR3_LEXER lexer, TokenType type);

} // namespace vorn::parsers::toml
