#include "document_text.h"

#include <algorithm>

#include "valid_tokens.h"

namespace vorn::parsers::toml
{

std::size_t DocumentText::indexOf(const ANTLR3_COMMON_TOKEN& token) noexcept
{
    if (text_ == nullptr)
    {
        make(token);
    }
    return tokens_.indexOf(token);
}

// Since all tokens are gone over, the one of the first report is counted.
void DocumentText::make(const ANTLR3_COMMON_TOKEN& reported) noexcept
{
    const pANTLR3_INPUT_STREAM input = lines_.lexer()->input;
    text_.reset(static_cast<char*>(std::malloc(std::size_t{input->sizeBuf} + 1)));
    if (text_ == nullptr)
    {
        return;
    }
    const InputPosition position(input);
    lines_.restart();
    std::size_t count = 0;
    char* end = text_.get();
    lines_.forEach([&](std::string_view valid) { end = appendTokens(valid, end, count); },
                   [&](const ANTLR3_COMMON_TOKEN& token)
                   {
                       if (token.start == reported.start)
                       {
                           tokens_.setIndexOf(reported, count);
                       }
                       ++count;
                       const std::string_view found = lexeme(token);
                       end = std::copy(found.begin(), found.end(), end);
                   });
    *end = '\0';
    position.goBack();
}

} // namespace vorn::parsers::toml
