#include "struct_readers.h"

#include <toml++/toml.h>

#include <stdexcept>
#include <string>

namespace bench
{
namespace
{

// What is not there, or of another type, throws.
template <typename Pointer>
auto& there(Pointer pointer)
{
    if (pointer == nullptr)
    {
        throw std::runtime_error("not there, or of another type");
    }
    return *pointer;
}

Service serviceOf(const toml::table& table)
{
    Service service;
    service.name = table["name"].value<std::string>().value();
    service.command = table["command"].value<std::string>().value();
    service.port = table["port"].value_or(service.port);
    service.enabled = table["enabled"].value_or(service.enabled);
    service.timeout = table["timeout"].value_or(service.timeout);
    for (const toml::node& arg : there(table["args"].as_array()))
    {
        service.args.push_back(arg.value<std::string>().value());
    }
    const toml::table& limits = there(table["limits"].as_table());
    service.memory = limits["memory"].value_or(service.memory);
    service.files = limits["files"].value_or(service.files);
    return service;
}

} // namespace

Services tomlPlusPlusServices(const std::string& text)
{
    const toml::table document = toml::parse(text);
    Services read;
    for (const toml::node& element : there(document["service"].as_array()))
    {
        read.services.push_back(serviceOf(there(element.as_table())));
    }
    return read;
}

} // namespace bench
