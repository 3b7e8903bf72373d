#include "readers.h"

// The header lacks this one.
#include <limits>

#include <cpptoml.h>

#include <sstream>

namespace bench
{

// It reads streams only, so that a text takes one.
Reading cpptomlReading(const std::string& text)
{
    return [&text]
    {
        std::istringstream stream(text);
        [[maybe_unused]] const auto model = cpptoml::parser(stream).parse();
    };
}

} // namespace bench
