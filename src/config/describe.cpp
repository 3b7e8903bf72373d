#include <string>
#include <utility>

#include <vorn/parsers/toml_config.h>

#include "description.h"

namespace vorn::parsers::toml::config
{

std::string describeTable(const Table& table, Format format)
{
    Text text;
    const auto write = format == Format::toml         ? describeInToml
                       : format == Format::jsonSchema ? describeInJsonSchema
                                                      : describeInMarkdown;
    visitDefault(table,
                 [&](const void* object, const std::string*) { write(text, table, object); });
    return std::move(text.text);
}

} // namespace vorn::parsers::toml::config
