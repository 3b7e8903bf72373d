#include "struct_readers.h"

// The header lacks this one.
#include <limits>

#include <cpptoml.h>

#include <memory>
#include <sstream>
#include <stdexcept>

namespace bench
{
namespace
{

// What is not there, or of another type, throws.
template <typename Value>
auto& there(Value&& value)
{
    if (!value)
    {
        throw std::runtime_error("not there, or of another type");
    }
    return *value;
}

Service serviceOf(const cpptoml::table& table)
{
    Service service;
    service.name = there(table.get_as<std::string>("name"));
    service.command = there(table.get_as<std::string>("command"));
    service.port = table.get_as<std::uint16_t>("port").value_or(service.port);
    service.enabled = table.get_as<bool>("enabled").value_or(service.enabled);
    service.timeout = table.get_as<double>("timeout").value_or(service.timeout);
    service.args = there(table.get_array_of<std::string>("args"));
    const std::shared_ptr<cpptoml::table> limits = table.get_table("limits");
    service.memory = there(limits).get_as<std::int64_t>("memory").value_or(service.memory);
    service.files = limits->get_as<std::int64_t>("files").value_or(service.files);
    return service;
}

} // namespace

// It reads streams only, so that a text takes one.
Services cpptomlServices(const std::string& text)
{
    std::istringstream stream(text);
    const std::shared_ptr<cpptoml::table> document = cpptoml::parser(stream).parse();
    const std::shared_ptr<cpptoml::table_array> tables = document->get_table_array("service");
    Services read;
    for (const std::shared_ptr<cpptoml::table>& table : there(tables))
    {
        read.services.push_back(serviceOf(*table));
    }
    return read;
}

} // namespace bench
