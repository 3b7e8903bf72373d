#include "whole_token.h"

#include "input_position.h"
#include "matching.h"
#include "scan/scanner.h"
#include "scan/utf8.h"

namespace vorn::parsers::toml
{
namespace
{

// The runtime's own operations of UTF-8 streams over memory.
struct StreamOperations
{
    decltype(ANTLR3_INT_STREAM::_LA) lookAhead;
    decltype(ANTLR3_INT_STREAM::consume) consume;
};

// The runtime does not export them, but sets them up in any stream that it is given.
StreamOperations findOperations()
{
    ANTLR3_INT_STREAM stream = {};
    ANTLR3_INPUT_STREAM input = {};
    input.istream = &stream;
    input.encoding = ANTLR3_ENC_UTF8;
    antlr3UTF8SetupStream(&input);
    if (input.strFactory != nullptr)
    {
        input.strFactory->close(input.strFactory);
    }
    return {stream._LA, stream.consume};
}

// Whether the stream's characters are just the bytes from nextChar on.  Streams of other
// encodings, and those whose lookahead was replaced (upper case), are not.
bool hasBytes(const ANTLR3_INPUT_STREAM& input)
{
    static const StreamOperations operations = findOperations();
    return input.istream->_LA == operations.lookAhead &&
           input.istream->consume == operations.consume && input.newlineChar == '\n';
}

// A character that is not ASCII may go on with the token, as a malformed form of one that is.
bool mayGoOn(const char* at, const char* end)
{
    return at != end && !isAscii(*at);
}

} // namespace

bool takeWholeToken(pANTLR3_LEXER lexer)
{
    ANTLR3_INPUT_STREAM& input = *lexer->input;
    const auto* const begin = static_cast<const char*>(input.nextChar);
    const char* const end = static_cast<const char*>(input.data) + input.sizeBuf;
    if (!hasBytes(input) || begin >= end)
    {
        return false;
    }
    const Token token = scanToken(begin, end);
    if (token.type == TokenType::none || mayGoOn(token.end, end))
    {
        return false;
    }
    advance(input, token.end);
    if (token.type == TokenType::blanks || token.type == TokenType::comment)
    {
        return storeSkipped(lexer, token.type);
    }
    return store(lexer, token.type);
}

} // namespace vorn::parsers::toml
