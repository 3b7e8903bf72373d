#include "input_position.h"

#include <algorithm>

#include "scan/utf8.h"

namespace vorn::parsers::toml
{
namespace
{

ANTLR3_INT32 countCharacters(const char* begin, const char* end)
{
    return static_cast<ANTLR3_INT32>(
        std::count_if(begin, end, [](char c) { return !isContinuation(c); }));
}

} // namespace

void advance(ANTLR3_INPUT_STREAM& input, const char* end) noexcept
{
    const auto* begin = static_cast<const char*>(input.nextChar);
    const auto lines = std::count(begin, end, '\n');
    if (lines != 0)
    {
        begin = end;
        while (begin[-1] != '\n')
        {
            --begin;
        }
        input.line += static_cast<ANTLR3_UINT32>(lines);
        input.charPositionInLine = 0;
        input.currentLine = const_cast<char*>(begin);
    }
    input.charPositionInLine += countCharacters(begin, end);
    input.nextChar = const_cast<char*>(end);
}

} // namespace vorn::parsers::toml
