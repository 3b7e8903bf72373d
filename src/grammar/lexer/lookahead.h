// What the choice of a token's rule looks at.
#pragma once

#include "input_position.h"
#include "matching.h"
#include "rules.h"

namespace vorn::parsers::toml
{

// The characters from the input's position on.  The input goes back there in the end; an
// exception tells where the choice failed.
class Lookahead
{
public:
    explicit Lookahead(pANTLR3_LEXER lexer) : lexer_(lexer), start_(lexer->input) {}
    Lookahead(const Lookahead&) = delete;
    Lookahead& operator=(const Lookahead&) = delete;
    ~Lookahead() { start_.goBack(); }

    ANTLR3_UCHAR next() const { return peek(lexer_); }
    void advance() { consume(lexer_); }
    bool take(char c) { return takeIf(next() == static_cast<ANTLR3_UCHAR>(c)); }
    bool take(CharacterClass kind) { return takeIf(is(next(), kind)); }
    void takeAll(CharacterClass kind) { skip(lexer_, kind); }

    rules::Rule chooseOrKey(rules::Rule rule) const
    {
        return is(next(), keyCharacter) ? rules::bareKey : rule;
    }

    // The states are those of the tool's table for this choice.
    rules::Rule fail(ANTLR3_UINT32 state) const
    {
        failChoice(lexer_, 36, state,
                   "1:1: Tokens : ( T__69 | T__70 | T__71 | T__72 | T__73 | T__74 | T__75 | WS | "
                   "NL | COMMENT | BOOLEAN | BASIC_STRING | ML_BASIC_STRING | LITERAL_STRING | "
                   "ML_LITERAL_STRING | FLOAT | INF | NAN | DEC_INT | HEX_INT | OCT_INT | BIN_INT "
                   "| OFFSET_DATE_TIME | LOCAL_DATE_TIME | LOCAL_DATE | LOCAL_TIME | BARE_KEY );");
        return nullptr;
    }

private:
    bool takeIf(bool taken)
    {
        if (taken)
        {
            advance();
        }
        return taken;
    }

    pANTLR3_LEXER lexer_;
    InputPosition start_;
};

} // namespace vorn::parsers::toml
