// Reads the configuration of a network into structs and prints it: config_reader FILE
//
// What is wrong with it is told on standard error, with its place.  For editors,
// config_reader --json-schema prints what such a file may have.
//
// Exit status: 0 done, 1 the configuration is wrong, 2 wrong usage.
#include <vorn/parsers/toml_config.h>

#include <array>
#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

#include "network_config.h"

namespace
{

namespace toml = vorn::parsers::toml;

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
    std::printf("  timeout: %g s\n", dns.timeout.count());
    std::printf("  cache: %s, %u entries\n", dns.cached ? "on" : "off", dns.cacheEntries);
}

std::string nameOf(example::Band band)
{
    return band == example::Band::band5 ? "5GHz" : "2.4GHz";
}

void print(const example::Wifi& wifi)
{
    std::printf("  wifi: %s, passphrase %s\n", wifi.ssid.c_str(), wifi.passphrase.c_str());
    std::printf("    bands: %s, country %s, %d dBm\n", joined(wifi.bands, nameOf).c_str(),
                wifi.country.c_str(), wifi.txPower);
    std::printf(
        "    channels: %s\n",
        joined(wifi.channels, [](unsigned channel) { return std::to_string(channel); }).c_str());
    std::printf("    retry: after %g s, then %g times longer up to %g s; limit %u\n",
                wifi.firstRetry.count(), wifi.retryFactor, wifi.longestRetry.count(), wifi.retries);
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
    if (interface.speed)
    {
        std::printf("  speed: %u bit/s%s\n", *interface.speed,
                    interface.autoNegotiation ? "" : ", no negotiation");
    }
    if (interface.wifi)
    {
        print(*interface.wifi);
    }
}

const char* nameOf(example::Protocol protocol)
{
    switch (protocol)
    {
    case example::Protocol::tcp:
        return "tcp";
    case example::Protocol::udp:
        return "udp";
    case example::Protocol::any:
        break;
    }
    return "any";
}

void print(const example::Rule& rule)
{
    std::printf("rule: %s %s", rule.action == example::Action::accept ? "accept" : "drop",
                nameOf(rule.protocol));
    if (rule.port)
    {
        std::printf(" port %u", *rule.port);
    }
    for (const auto& [interface, taken] : rule.from)
    {
        std::printf(" %s %s", taken ? "from" : "not from", interface.c_str());
    }
    std::puts(rule.log ? ", logged" : "");
}

std::string shown(const char* format, int one, int two, int three)
{
    std::array<char, 16> text = {};
    std::snprintf(text.data(), text.size(), format, one, two, three);
    return text.data();
}

// As much of a date, a time and an offset as there is.
std::string shown(const toml::DateTime& dateTime)
{
    const auto& [date, time, offset] = dateTime;
    std::string text;
    if (date)
    {
        text += shown("%04d-%02d-%02d", date->year, date->month, date->day);
    }
    if (time)
    {
        text += (date ? "T" : "") + shown("%02d:%02d:%02d", time->hour, time->minute, time->second);
    }
    if (offset)
    {
        text += *offset == 0 ? "Z" : shown(" %+d min", *offset, 0, 0);
    }
    return text;
}

void print(const example::Vpn& vpn)
{
    std::printf("vpn: %s\n", vpn.endpoint.c_str());
    for (const std::vector<std::string>& networks : vpn.allowed)
    {
        std::printf("  allowed: %s\n", joined(networks).c_str());
    }
    std::printf("  keepalive: %lld s, mark 0x%X\n", static_cast<long long>(vpn.keepalive.count()),
                vpn.mark);
    std::printf("  not before: %s, renewed: %s\n", shown(vpn.notBefore).c_str(),
                shown(vpn.renewed).c_str());
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
        std::fputs("Usage: config_reader FILE | --json-schema\n", stderr);
        return 2;
    }
    if (argv[1] == std::string("--json-schema"))
    {
        std::cout << toml::describe(example::networkSchema(), toml::Format::jsonSchema);
        return 0;
    }
    example::NetworkConfig config;
    const std::vector<toml::Problem> problems =
        toml::readConfig(toml::FilePath(argv[1]), example::networkSchema(), config);
    for (const toml::Problem& problem : problems)
    {
        std::cerr << problem << '\n';
    }
    if (!problems.empty())
    {
        return 1;
    }
    print(config);
    return 0;
}
