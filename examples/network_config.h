// The configuration that network.toml is an example of, as a service holds it.
#pragma once

#include <vorn/parsers/toml_config.h>

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace example
{

using Seconds = std::chrono::duration<double>;

struct Dns
{
    std::vector<std::string> servers;
    std::vector<std::string> search;
    Seconds timeout{1};
    bool cached = false;
    std::uint32_t cacheEntries = 0;
};

struct Address
{
    std::string ip;
    std::uint8_t prefix = 0;
};

struct Route
{
    std::string to;
    std::string via;
    std::uint32_t metric = 0;
};

enum class Band
{
    band24,
    band5,
};

struct Wifi
{
    std::string ssid;
    std::string passphrase;
    std::vector<Band> bands;
    std::string country;
    std::int8_t txPower = 0; // dBm
    std::vector<std::uint8_t> channels;
    Seconds firstRetry{1};
    double retryFactor = 1;
    std::uint32_t retries = 0; // 0: no limit
    Seconds longestRetry{60};
};

struct Interface
{
    std::string name;
    std::string mac;
    bool dhcp = false;
    bool up = false;
    std::optional<Address> address;
    std::vector<Route> routes;
    std::optional<std::uint32_t> speed; // bits a second; otherwise what the link has
    bool autoNegotiation = true;
    std::optional<Wifi> wifi;
};

enum class Protocol
{
    any,
    tcp,
    udp,
};

enum class Action
{
    accept,
    drop,
};

struct Rule
{
    Protocol protocol = Protocol::any;
    std::optional<std::uint16_t> port;
    std::map<std::string, bool> from; // by the name of the interface
    Action action = Action::drop;
    bool log = false;
};

struct Vpn
{
    std::string endpoint;
    std::vector<std::vector<std::string>> allowed; // networks, a list for each peer
    std::chrono::seconds keepalive{0};
    std::uint32_t mark = 0;
    vorn::parsers::toml::DateTime notBefore;
    vorn::parsers::toml::DateTime renewed;
};

struct NetworkConfig
{
    std::string title;
    std::string hostname;
    std::uint16_t mtu = 1500;
    Dns dns;
    std::vector<Interface> interfaces;
    std::vector<Rule> rules;
    std::optional<Vpn> vpn;
};

// Which keys there may be, and which members they fill.
const vorn::parsers::toml::Schema<NetworkConfig>& networkSchema();

} // namespace example
