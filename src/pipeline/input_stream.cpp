#include "input_stream.h"

#include <cstdint>
#include <limits>

namespace vorn::parsers::toml
{
namespace
{

// The runtime takes its input and names as mutable bytes, but only reads them.
pANTLR3_UINT8 runtimeBytes(const char* text)
{
    return reinterpret_cast<pANTLR3_UINT8>(const_cast<char*>(text));
}

} // namespace

bool isStreamable(std::string_view text) noexcept
{
    return std::uint64_t{text.size()} <= std::numeric_limits<ANTLR3_UINT32>::max();
}

pANTLR3_INPUT_STREAM openStream(std::string_view text)
{
    return antlr3StringStreamNew(runtimeBytes(text.data()), ANTLR3_ENC_UTF8,
                                 static_cast<ANTLR3_UINT32>(text.size()), runtimeBytes("toml"));
}

} // namespace vorn::parsers::toml
