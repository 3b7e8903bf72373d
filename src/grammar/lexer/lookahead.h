// What the choice of a token's rule sees.
#pragma once

#include "input_position.h"
#include "matching.h"
#include "rules.h"

namespace vorn::parsers::toml
{

// The characters from the input's position on, to which the input goes back in the end.
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

    rules::Rule fail(DecisionState state) const
    {
        failChoice(lexer_, Decision::tokens, state, tokensDescription);
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
