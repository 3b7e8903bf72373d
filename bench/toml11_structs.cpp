#include "struct_readers.h"

#include <toml.hpp>

#include <sstream>

namespace bench
{
namespace
{

Service serviceOf(const toml::value& table)
{
    Service service;
    service.name = toml::find<std::string>(table, "name");
    service.command = toml::find<std::string>(table, "command");
    service.port = toml::find_or(table, "port", service.port);
    service.enabled = toml::find_or(table, "enabled", service.enabled);
    service.timeout = toml::find_or(table, "timeout", service.timeout);
    service.args = toml::find<std::vector<std::string>>(table, "args");
    const toml::value& limits = toml::find(table, "limits");
    service.memory = toml::find_or(limits, "memory", service.memory);
    service.files = toml::find_or(limits, "files", service.files);
    return service;
}

} // namespace

// It reads streams only, so that a text takes one.
Services toml11Services(const std::string& text)
{
    std::istringstream stream(text);
    const toml::value document = toml::parse(stream);
    Services read;
    for (const toml::value& table : toml::find(document, "service").as_array())
    {
        read.services.push_back(serviceOf(table));
    }
    return read;
}

} // namespace bench
