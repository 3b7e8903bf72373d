#include "token_window.h"

#include "error_display.h"
#include "grammar/runtime_string.h"
#include "runtime_text.h"
#include "valid_tokens.h"

namespace vorn::parsers::toml
{

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): what has no value yet is not looked at.
TokenWindow::TokenWindow(pANTLR3_COMMON_TOKEN_STREAM tokens, DocumentLines& lines) noexcept
    : tokens_(tokens), lines_(lines), keptStrings_(tokens->tstream->tokenSource->strFactory->index)
{
    tokens->super = this;
    tokens->p = 0;
    tokens->tstream->_LT = lookAhead;
    tokens->tstream->istream->consume = consume;
    tokens->tstream->istream->size = size;
}

void TokenWindow::restart() noexcept
{
    tokens_->p = 0;
    end_ = 0;
    statement_ = 0;
    uncounted_ = {};
    passedTokens_ = 0;
    parser_ = nullptr;
    lines_.restart();
    factory()->reset(factory());
}

std::string_view TokenWindow::enterLine()
{
    const Index index = tokens_->p;
    longestStatement_ = longestStatement();
    statement_ = index;
    if (index != 0 && !isNewline(at(index - 1).token->type))
    {
        return {};
    }
    forget();
    const std::string_view passed = lines_.passValid();
    if (!passed.empty())
    {
        countPassed();
        uncounted_ = passed;
    }
    return passed;
}

void TokenWindow::forget() noexcept
{
    end_ = tokens_->p;
    if (end_ == 0)
    {
        lines_.restart();
    }
    else
    {
        Lexed& last = at(end_ - 1);
        last.after.goBack();
        last_ = *last.token;
        last.token = &last_;
    }
    recycle();
    forgetStrings(tokens_->tstream->tokenSource->strFactory, keptStrings_);
}

void TokenWindow::recycle() noexcept
{
    if (parser_ != nullptr)
    {
        keepTokenOfError();
    }
    factory()->reset(factory());
}

void TokenWindow::keepTokenOfError() noexcept
{
    const pANTLR3_EXCEPTION error = parser_->state->exception;
    if (error == nullptr)
    {
        return;
    }
    auto* const token = static_cast<pANTLR3_COMMON_TOKEN>(error->token);
    if (token->type == ANTLR3_TOKEN_EOF)
    {
        return;
    }
    if (!isKept(*token))
    {
        ofError_ = *token;
        ofError_.index = static_cast<ANTLR3_MARKER>(indexOf(*token));
        error->token = &ofError_;
    }
    // The text of a token that was missing is a string, which is about to be freed.
    if (ofError_.textState == ANTLR3_TEXT_STRING)
    {
        const std::string_view text = characters(ofError_.tokText.text);
        textOfError_[text.copy(textOfError_.data(), textOfError_.size() - 1)] = '\0';
        ofError_.textState = ANTLR3_TEXT_CHARP;
        ofError_.tokText.chars = reinterpret_cast<pANTLR3_UCHAR>(textOfError_.data());
    }
}

std::size_t TokenWindow::indexOf(const ANTLR3_COMMON_TOKEN& token) noexcept
{
    const auto index = static_cast<std::size_t>(token.index);
    if (!isLexed(token) || isKept(token))
    {
        return index;
    }
    countPassed();
    return index + passedTokens_;
}

void TokenWindow::countPassed() noexcept
{
    if (!uncounted_.empty())
    {
        passedTokens_ += countTokens(uncounted_);
        uncounted_ = {};
    }
}

void TokenWindow::setIndexOf(const ANTLR3_COMMON_TOKEN& token, std::size_t index) noexcept
{
    // The index of a kept one says nothing of what was passed.
    if (!isKept(token))
    {
        passedTokens_ = index - static_cast<std::size_t>(token.index);
        uncounted_ = {};
    }
}

TokenWindow& TokenWindow::of(pANTLR3_TOKEN_STREAM stream) noexcept
{
    return *static_cast<TokenWindow*>(
        static_cast<pANTLR3_COMMON_TOKEN_STREAM>(stream->super)->super);
}

pANTLR3_COMMON_TOKEN TokenWindow::lookAhead(pANTLR3_TOKEN_STREAM stream, ANTLR3_INT32 place)
{
    TokenWindow& window = of(stream);
    const Index index = window.tokens_->p;
    if (place < 0)
    {
        // Where the parsing has been ended, that is before the end of what was lexed.
        const Index before = std::min(index, window.end_) + place;
        return before < 0 ? nullptr : window.at(before).token;
    }
    return window.reach(index + place - 1) ? window.at(index + place - 1).token
                                           : window.endOfInput();
}

void TokenWindow::consume(pANTLR3_INT_STREAM stream)
{
    TokenWindow& window = of(static_cast<pANTLR3_TOKEN_STREAM>(stream->super));
    if (window.reach(window.tokens_->p))
    {
        ++window.tokens_->p;
    }
}

ANTLR3_UINT32 TokenWindow::size(pANTLR3_INT_STREAM)
{
    return static_cast<ANTLR3_UINT32>(afterAll);
}

bool TokenWindow::reach(Index index)
{
    if (index >= afterAll)
    {
        return false;
    }
    while (end_ <= index)
    {
        if (parser_ != nullptr && factory()->nextToken == ANTLR3_FACTORY_POOL_SIZE)
        {
            recycle();
        }
        const pANTLR3_TOKEN_SOURCE source = tokens_->tstream->tokenSource;
        const pANTLR3_COMMON_TOKEN token = source->nextToken(source);
        if (token->type == ANTLR3_TOKEN_EOF)
        {
            return false;
        }
        token->index = end_;
        at(end_) = {token, InputPosition(lines_.lexer()->input)};
        ++end_;
    }
    return true;
}

} // namespace vorn::parsers::toml
