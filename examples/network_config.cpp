#include "network_config.h"

#include <set>

namespace example
{
namespace
{

using vorn::parsers::toml::oneOf;
using vorn::parsers::toml::range;
using vorn::parsers::toml::Schema;

constexpr auto inSeconds = vorn::parsers::toml::unit<std::chrono::seconds>();

std::string wrongWithNames(const std::vector<Interface>& interfaces)
{
    std::set<std::string> names;
    for (const Interface& interface : interfaces)
    {
        if (!names.insert(interface.name).second)
        {
            return "two are named " + interface.name;
        }
    }
    return "";
}

std::string wrongWithPort(const Rule& rule)
{
    return rule.port && rule.protocol == Protocol::any ? "a port needs the protocol tcp or udp"
                                                       : "";
}

Schema<Dns> dnsSchema()
{
    return Schema<Dns>()
        .optional("servers", &Dns::servers)
        .optional("search", &Dns::search)
        .optional("timeout", &Dns::timeout, inSeconds, range(0.1, 60.0))
        .optional("cache.enabled", &Dns::cached)
        .optional("cache.entries", &Dns::cacheEntries);
}

Schema<Address> addressSchema()
{
    return Schema<Address>()
        .required("ip", &Address::ip)
        .required("prefix", &Address::prefix, range(0, 128));
}

Schema<Route> routeSchema()
{
    return Schema<Route>()
        .required("to", &Route::to, "The network.")
        .required("via", &Route::via, "The router.")
        .optional("metric", &Route::metric);
}

Schema<Wifi> wifiSchema()
{
    return Schema<Wifi>()
        .required("ssid", &Wifi::ssid)
        .optional("passphrase", &Wifi::passphrase)
        .optional("bands", &Wifi::bands, oneOf({{"2.4GHz", Band::band24}, {"5GHz", Band::band5}}))
        .optional("country", &Wifi::country)
        .optional("tx-power", &Wifi::txPower, "In dBm.")
        .optional("5ghz.channels", &Wifi::channels)
        .optional("retry.first", &Wifi::firstRetry, inSeconds)
        .optional("retry.factor", &Wifi::retryFactor, range(1.0, 10.0))
        .optional("retry.limits.count", &Wifi::retries, "0: no limit.")
        .optional("retry.limits.delay", &Wifi::longestRetry, inSeconds);
}

Schema<Interface> interfaceSchema()
{
    return Schema<Interface>()
        .required("name", &Interface::name)
        .optional("mac", &Interface::mac)
        .optional("dhcp", &Interface::dhcp)
        .optional("up", &Interface::up)
        .table("address", &Interface::address, addressSchema())
        .tables("routes", &Interface::routes, routeSchema())
        .optional("\"link settings\".speed", &Interface::speed, "In bits a second.")
        .optional("\"link settings\".auto-negotiation", &Interface::autoNegotiation)
        .table("wifi", &Interface::wifi, wifiSchema());
}

Schema<Rule> ruleSchema()
{
    return Schema<Rule>()
        .optional("match.proto", &Rule::protocol,
                  oneOf({{"any", Protocol::any}, {"tcp", Protocol::tcp}, {"udp", Protocol::udp}}))
        .optional("match.port", &Rule::port, range(1, 65535))
        .optional("match.from", &Rule::from, "Interfaces: true from it, false not from it.")
        .required("action", &Rule::action,
                  oneOf({{"accept", Action::accept}, {"drop", Action::drop}}))
        .optional("log", &Rule::log)
        .check(wrongWithPort, {"match.port", "match.proto"});
}

Schema<Vpn> vpnSchema()
{
    return Schema<Vpn>()
        .required("endpoint", &Vpn::endpoint)
        .required("allowed", &Vpn::allowed, "Networks, a list for each peer.")
        .optional("keepalive", &Vpn::keepalive, inSeconds, range(0, 65535))
        .optional("fwmark", &Vpn::mark)
        .optional("not-before", &Vpn::notBefore)
        .optional("renewed", &Vpn::renewed);
}

} // namespace

const Schema<NetworkConfig>& networkSchema()
{
    using Config = NetworkConfig;
    static const Schema<Config> schema =
        Schema<Config>()
            .optional("title", &Config::title)
            .optional("hostname", &Config::hostname)
            .optional("mtu", &Config::mtu, range(68, 65535))
            .table("dns", &Config::dns, dnsSchema())
            .tables("interface", &Config::interfaces, interfaceSchema(), wrongWithNames)
            .tables("firewall.rule", &Config::rules, ruleSchema())
            .table("vpn", &Config::vpn, vpnSchema());
    return schema;
}

} // namespace example
