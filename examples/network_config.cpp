#include "network_config.h"

#include <functional>
#include <variant>

namespace example
{
namespace
{

using Config = NetworkConfig;

// Where the members are: of a list, in its last element, which is the one being read.

Config& network(Config& config)
{
    return config;
}

Interface& interface(Config& config)
{
    return config.interfaces.back();
}

Address& address(Config& config)
{
    return *interface(config).address;
}

Route& route(Config& config)
{
    return interface(config).routes.back();
}

Wifi& wifi(Config& config)
{
    return *interface(config).wifi;
}

Rule& rule(Config& config)
{
    return config.rules.back();
}

// cppcheck-suppress constParameterCallback // what it gives is changed
Vpn& vpn(Config& config)
{
    return *config.vpn;
}

void assignFrom(Config& config, const Path& path, const Scalar& scalar)
{
    assign(rule(config).from[std::get<std::string>(path.steps().back())], scalar);
}

void assignAllowed(Config& config, const Path&, const Scalar& scalar)
{
    assign(vpn(config).allowed.back(), scalar);
}

// Assigns to a member of what `owner` returns: a function, or a member of the configuration.
template <typename Owner, typename Member>
Schema<Config>::Setter to(Owner owner, Member member)
{
    return [owner, member](Config& config, const Path&, const Scalar& scalar)
    { assign(std::invoke(member, std::invoke(owner, config)), scalar); };
}

Schema<Config> makeSchema()
{
    Schema<Config> schema;
    schema.makers = {
        {"interface[]", [](Config& config) { config.interfaces.emplace_back(); }},
        {"interface[].address", [](Config& config) { interface(config).address.emplace(); }},
        {"interface[].routes[]", [](Config& config) { interface(config).routes.emplace_back(); }},
        {"interface[].wifi", [](Config& config) { interface(config).wifi.emplace(); }},
        {"firewall.rule[]", [](Config& config) { config.rules.emplace_back(); }},
        {"vpn", [](Config& config) { config.vpn.emplace(); }},
        {"vpn.allowed[]", [](Config& config) { vpn(config).allowed.emplace_back(); }},
    };
    schema.fields = {
        {"title", to(network, &Config::title)},
        {"hostname", to(network, &Config::hostname)},
        {"mtu", to(network, &Config::mtu)},
        {"dns.servers[]", to(&Config::dns, &Dns::servers)},
        {"dns.search[]", to(&Config::dns, &Dns::search)},
        {"dns.timeout", to(&Config::dns, &Dns::timeout)},
        {"dns.cache.enabled", to(&Config::dns, &Dns::cached)},
        {"dns.cache.entries", to(&Config::dns, &Dns::cacheEntries)},
        {"interface[].name", to(interface, &Interface::name)},
        {"interface[].mac", to(interface, &Interface::mac)},
        {"interface[].dhcp", to(interface, &Interface::dhcp)},
        {"interface[].up", to(interface, &Interface::up)},
        {"interface[].address.ip", to(address, &Address::ip)},
        {"interface[].address.prefix", to(address, &Address::prefix)},
        {"interface[].routes[].to", to(route, &Route::to)},
        {"interface[].routes[].via", to(route, &Route::via)},
        {"interface[].routes[].metric", to(route, &Route::metric)},
        {"interface[].\"link settings\".speed", to(interface, &Interface::speed)},
        {"interface[].\"link settings\".auto-negotiation",
         to(interface, &Interface::autoNegotiation)},
        {"interface[].wifi.ssid", to(wifi, &Wifi::ssid)},
        {"interface[].wifi.passphrase", to(wifi, &Wifi::passphrase)},
        {"interface[].wifi.bands[]", to(wifi, &Wifi::bands)},
        {"interface[].wifi.country", to(wifi, &Wifi::country)},
        {"interface[].wifi.tx-power", to(wifi, &Wifi::txPower)},
        {"interface[].wifi.5ghz.channels[]", to(wifi, &Wifi::channels)},
        {"interface[].wifi.retry.first", to(wifi, &Wifi::firstRetry)},
        {"interface[].wifi.retry.factor", to(wifi, &Wifi::retryFactor)},
        {"interface[].wifi.retry.limits.count", to(wifi, &Wifi::retries)},
        {"interface[].wifi.retry.limits.delay", to(wifi, &Wifi::longestRetry)},
        {"firewall.rule[].match.proto", to(rule, &Rule::protocol)},
        {"firewall.rule[].match.port", to(rule, &Rule::port)},
        {"firewall.rule[].match.from.*", assignFrom},
        {"firewall.rule[].action", to(rule, &Rule::action)},
        {"firewall.rule[].log", to(rule, &Rule::log)},
        {"vpn.endpoint", to(vpn, &Vpn::endpoint)},
        {"vpn.allowed[][]", assignAllowed},
        {"vpn.keepalive", to(vpn, &Vpn::keepalive)},
        {"vpn.fwmark", to(vpn, &Vpn::mark)},
        {"vpn.not-before", to(vpn, &Vpn::notBefore)},
        {"vpn.renewed", to(vpn, &Vpn::renewed)},
    };
    return schema;
}

} // namespace

const Schema<NetworkConfig>& networkSchema()
{
    static const Schema<NetworkConfig> schema = makeSchema();
    return schema;
}

} // namespace example
