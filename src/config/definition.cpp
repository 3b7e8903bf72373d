#include "definition.h"

namespace vorn::parsers::toml::config
{

bool Definition::add(How how)
{
    constexpr auto bit = [](How one) { return static_cast<unsigned>(one); };
    const unsigned before = ways_;
    ways_ = static_cast<unsigned char>(before | bit(how));
    switch (how)
    {
    case How::value:
        break;
    case How::dottedKey:
        return (before & ~bit(How::dottedKey)) != 0;
    case How::header:
        return (before & ~bit(How::headerOfMore)) != 0;
    case How::headerOfMore:
        return (before & bit(How::value)) != 0;
    case How::arrayHeader: // one after the other adds elements
        return before != 0 && (before & bit(How::arrayHeader)) == 0;
    }
    return before != 0;
}

} // namespace vorn::parsers::toml::config
