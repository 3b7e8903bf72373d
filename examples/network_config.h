// The configuration that network.toml is an example of, as a service holds it.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "assign.h"
#include "field_reader.h"

namespace example
{

struct Dns
{
    std::vector<std::string> servers;
    std::vector<std::string> search;
    double timeout = 1; // seconds
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

struct Wifi
{
    std::string ssid;
    std::string passphrase;
    std::vector<std::string> bands;
    std::string country;
    std::int8_t txPower = 0; // dBm
    std::vector<std::uint8_t> channels;
    double firstRetry = 1; // seconds
    double retryFactor = 1;
    std::uint32_t retries = 0; // 0: no limit
    double longestRetry = 60;  // seconds
};

struct Interface
{
    std::string name;
    std::string mac;
    bool dhcp = false;
    bool up = false;
    std::optional<Address> address;
    std::vector<Route> routes;
    std::uint32_t speed = 0; // bits a second; 0: what the link has
    bool autoNegotiation = true;
    std::optional<Wifi> wifi;
};

struct Rule
{
    std::string protocol;
    std::uint16_t port = 0;           // 0: any
    std::map<std::string, bool> from; // by the name of the interface
    std::string action;
    bool log = false;
};

struct Vpn
{
    std::string endpoint;
    std::vector<std::vector<std::string>> allowed; // networks, a list for each peer
    std::uint16_t keepalive = 0;                   // seconds
    std::uint32_t mark = 0;
    DateTime notBefore;
    DateTime renewed;
};

struct NetworkConfig
{
    std::string title;
    std::string hostname;
    std::uint16_t mtu = 0;
    Dns dns;
    std::vector<Interface> interfaces;
    std::vector<Rule> rules;
    std::optional<Vpn> vpn;
};

// Which keys there may be, and where their values go.
const Schema<NetworkConfig>& networkSchema();

} // namespace example
