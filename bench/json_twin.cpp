#include "json_twin.h"

#include <vorn/parsers/toml.h>

#include <stdexcept>

#include "examples/toml_to_json.h"

namespace bench
{

std::string jsonTwin(const std::string& document)
{
    JsonBuilder builder;
    if (!vorn::parsers::toml::visitTomlTree(document, builder))
    {
        throw std::runtime_error("a rejected document has no twin");
    }
    return builder.document().dump();
}

} // namespace bench
