// The schema of a service that listens: some keys of most kinds.
#pragma once

#include <vorn/parsers/toml_config.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace listening
{

enum class Level
{
    debug,
    info,
    error
};

struct Listener
{
    std::string address = "0.0.0.0";
    std::uint16_t port = 0;
    std::optional<std::string> certificate;
};

struct Config
{
    std::string name;
    double timeout = 2.5;
    Level level = Level::info;
    std::vector<std::string> search;
    std::map<std::string, std::int64_t> limits;
    std::vector<Listener> listeners;
};

inline const vorn::parsers::toml::Schema<Listener>& listenerSchema()
{
    using namespace vorn::parsers::toml;
    static const Schema<Listener> schema =
        Schema<Listener>()
            .optional("address", &Listener::address)
            .required("port", &Listener::port, range(1, 65535), "The port that it listens on.")
            .optional("certificate", &Listener::certificate);
    return schema;
}

inline const vorn::parsers::toml::Schema<Config>& configSchema()
{
    using namespace vorn::parsers::toml;
    static const Schema<Config> schema =
        Schema<Config>()
            .required("name", &Config::name)
            .optional("dns.timeout", &Config::timeout, range(0.1, 60.0))
            .optional(
                "log.level", &Config::level,
                oneOf({{"debug", Level::debug}, {"info", Level::info}, {"error", Level::error}}))
            .optional("dns.search", &Config::search)
            .optional("limits", &Config::limits)
            .tables("listener", &Config::listeners, listenerSchema(),
                    "Who is listened to.\nIn order.");
    return schema;
}

} // namespace listening
