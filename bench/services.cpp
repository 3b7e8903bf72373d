#include "services.h"

#include <tuple>

namespace bench
{
namespace
{

namespace toml = vorn::parsers::toml;

constexpr std::size_t firstPort = 1000;
constexpr std::size_t bytesEach = 200; // at most

auto allOf(const Service& service)
{
    return std::tie(service.name, service.command, service.port, service.enabled, service.timeout,
                    service.args, service.memory, service.files);
}

const toml::Schema<Service>& serviceSchema()
{
    static const toml::Schema<Service> schema = toml::Schema<Service>()
                                                    .required("name", &Service::name)
                                                    .required("command", &Service::command)
                                                    .optional("port", &Service::port)
                                                    .optional("enabled", &Service::enabled)
                                                    .optional("timeout", &Service::timeout)
                                                    .optional("args", &Service::args)
                                                    .optional("limits.memory", &Service::memory)
                                                    .optional("limits.files", &Service::files);
    return schema;
}

} // namespace

bool operator==(const Service& one, const Service& other)
{
    return allOf(one) == allOf(other);
}

std::string servicesDocument(std::size_t count)
{
    std::string text;
    text.reserve(count * bytesEach);
    for (std::size_t index = 0; index < count; ++index)
    {
        text += "[[service]]\n"
                "name = \"service-" +
                std::to_string(index) +
                "\"\n"
                "command = \"/usr/bin/daemon --id " +
                std::to_string(index) +
                "\"\n"
                "port = " +
                std::to_string(firstPort + index) +
                "\n"
                "enabled = true\n"
                "timeout = 2.5\n"
                "args = [\"a\", \"bc\", \"def\"]\n"
                "\n"
                "[service.limits]\n"
                "memory = 1_000_000\n"
                "files = 1024\n"
                "\n";
    }
    return text;
}

Services servicesByHand(std::size_t count)
{
    Services filled;
    for (std::size_t index = 0; index < count; ++index)
    {
        Service& service = filled.services.emplace_back();
        service.name = "service-" + std::to_string(index);
        service.command = "/usr/bin/daemon --id " + std::to_string(index);
        service.port = static_cast<std::uint16_t>(firstPort + index);
        service.enabled = true;
        service.timeout = 2.5;
        for (const char* arg : {"a", "bc", "def"})
        {
            service.args.emplace_back(arg);
        }
        service.memory = 1'000'000;
        service.files = 1024;
    }
    return filled;
}

const toml::Schema<Services>& servicesSchema()
{
    static const toml::Schema<Services> schema =
        toml::Schema<Services>().tables("service", &Services::services, serviceSchema());
    return schema;
}

} // namespace bench
