// Reads the configuration of a network into structs and prints it: config_reader FILE
//
// Unknown and duplicate keys and values that do not fit are reported on standard error.
//
// Exit status: 0 done, 1 the configuration is wrong, 2 wrong usage.
#include <cstdio>
#include <string>
#include <vector>

#include "field_reader.h"
#include "network_config.h"
#include "path_visitor.h"

namespace
{

template <typename Element, typename Shown>
std::string joined(const std::vector<Element>& elements, Shown shown)
{
    std::string line;
    for (const Element& element : elements)
    {
        line += (line.empty() ? "" : ", ") + shown(element);
    }
    return line;
}

std::string joined(const std::vector<std::string>& words)
{
    return joined(words, [](const std::string& word) { return word; });
}

void print(const example::Dns& dns)
{
    std::printf("dns: %s\n", joined(dns.servers).c_str());
    std::printf("  search: %s\n", joined(dns.search).c_str());
    std::printf("  timeout: %g s\n", dns.timeout);
    std::printf("  cache: %s, %u entries\n", dns.cached ? "on" : "off", dns.cacheEntries);
}

void print(const example::Wifi& wifi)
{
    std::printf("  wifi: %s, passphrase %s\n", wifi.ssid.c_str(), wifi.passphrase.c_str());
    std::printf("    bands: %s, country %s, %d dBm\n", joined(wifi.bands).c_str(),
                wifi.country.c_str(), wifi.txPower);
    std::printf(
        "    channels: %s\n",
        joined(wifi.channels, [](unsigned channel) { return std::to_string(channel); }).c_str());
    std::printf("    retry: after %g s, then %g times longer up to %g s; limit %u\n",
                wifi.firstRetry, wifi.retryFactor, wifi.longestRetry, wifi.retries);
}

void print(const example::Interface& interface)
{
    std::printf("interface %s: %s%s\n", interface.name.c_str(), interface.up ? "up" : "down",
                interface.dhcp ? ", dhcp" : "");
    if (!interface.mac.empty())
    {
        std::printf("  mac: %s\n", interface.mac.c_str());
    }
    if (interface.address)
    {
        std::printf("  address: %s/%u\n", interface.address->ip.c_str(), interface.address->prefix);
    }
    for (const example::Route& route : interface.routes)
    {
        std::printf("  route: %s via %s, metric %u\n", route.to.c_str(), route.via.c_str(),
                    route.metric);
    }
    if (interface.speed != 0)
    {
        std::printf("  speed: %u bit/s%s\n", interface.speed,
                    interface.autoNegotiation ? "" : ", no negotiation");
    }
    if (interface.wifi)
    {
        print(*interface.wifi);
    }
}

void print(const example::Rule& rule)
{
    std::printf("rule: %s %s", rule.action.c_str(), rule.protocol.c_str());
    if (rule.port != 0)
    {
        std::printf(" port %u", rule.port);
    }
    for (const auto& [interface, taken] : rule.from)
    {
        std::printf(" %s %s", taken ? "from" : "not from", interface.c_str());
    }
    std::puts(rule.log ? ", logged" : "");
}

void print(const example::Vpn& vpn)
{
    std::printf("vpn: %s\n", vpn.endpoint.c_str());
    for (const std::vector<std::string>& networks : vpn.allowed)
    {
        std::printf("  allowed: %s\n", joined(networks).c_str());
    }
    std::printf("  keepalive: %u s, mark 0x%X\n", vpn.keepalive, vpn.mark);
    std::printf("  not before: %s, renewed: %s\n", vpn.notBefore.text.c_str(),
                vpn.renewed.text.c_str());
}

void print(const example::NetworkConfig& config)
{
    std::printf("%s\n", config.title.c_str());
    std::printf("host: %s, mtu %u\n", config.hostname.c_str(), config.mtu);
    print(config.dns);
    for (const example::Interface& interface : config.interfaces)
    {
        print(interface);
    }
    for (const example::Rule& rule : config.rules)
    {
        print(rule);
    }
    if (config.vpn)
    {
        print(*config.vpn);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::fputs("Usage: config_reader FILE\n", stderr);
        return 2;
    }
    example::FieldReader<example::NetworkConfig> reader(example::networkSchema());
    if (!example::readFile(argv[1], reader))
    {
        return 1;
    }
    print(reader.config());
    return 0;
}
