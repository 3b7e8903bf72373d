#include "readers.h"

#include <vorn/parsers/toml.h>

#include <stdexcept>

namespace bench
{

// The direct reader of the objects that this is linked with is switched off.
__attribute__((visibility("default"))) Reading pipelineReading(const std::string& text)
{
    return [&text]
    {
        vorn::parsers::toml::TomlTreeVisitor visitor;
        if (!vorn::parsers::toml::visitTomlTree(text, visitor))
        {
            throw std::runtime_error("the pipeline rejects the document");
        }
    };
}

} // namespace bench
