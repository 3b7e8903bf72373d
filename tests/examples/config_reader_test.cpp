// config_reader: what it takes, and what it complains of.
#include "examples/example_run.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

struct Case
{
    std::string text;
    std::string complaints; // a line each, without the name of the file
};

void expectComplaints(const std::vector<Case>& cases)
{
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.text);
        const test::ProgramRun run = test::runOnText(CONFIG_READER, c.text);
        std::string complaints;
        for (const char letter : c.complaints)
        {
            const bool lineBegins = complaints.empty() || complaints.back() == '\n';
            complaints += (lineBegins ? "document.toml: " : "") + std::string(1, letter);
        }
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.standardOutput, "");
        EXPECT_EQ(run.standardError, complaints);
    }
}

std::string printedFor(const std::string& text)
{
    const test::ProgramRun run = test::runOnText(CONFIG_READER, text);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.standardError, "");
    return run.standardOutput;
}

const char* const emptyNetwork = "\n"
                                 "host: , mtu 0\n"
                                 "dns: \n"
                                 "  search: \n"
                                 "  timeout: 1 s\n"
                                 "  cache: off, 0 entries\n";

TEST(ConfigReader, TakesTheSameInEveryForm)
{
    const std::string same = std::string(emptyNetwork) +
                             "interface a: up\n  address: ::1/128\n  route: x via y, metric 1\n"
                             "interface b: down\n";
    const std::vector<std::string> texts = {
        "[[interface]]\nname = 'a'\nup = true\n[interface.address]\nip = '::1'\nprefix = 128\n"
        "[[interface.routes]]\nto = 'x'\nvia = 'y'\nmetric = 1\n[[interface]]\nname = 'b'\n",
        "[[interface]]\nname = 'a'\nup = true\naddress.ip = '::1'\naddress.prefix = 128\n"
        "routes = [ { to = 'x', via = 'y', metric = 1 } ]\n[[interface]]\nname = 'b'\n",
        "interface = [ { name = 'a', up = true, address = { ip = '::1', prefix = 128 },"
        " routes = [ { to = 'x', via = 'y', metric = 1 } ] }, { name = 'b' } ]\n",
        "[[\"interface\"]]\n'name' = \"\\u0061\"\n\"u\\u0070\" = true\n"
        "[interface.'address']\nprefix = 0x80\nip = '''::1'''\n"
        "[[interface.routes]]\nvia = \"\"\"\ny\"\"\"\nmetric = 0b1\nto = 'x'\n"
        "[[interface]]\nname = 'b'\n",
    };
    for (const std::string& text : texts)
    {
        SCOPED_TRACE(text);
        EXPECT_EQ(printedFor(text), same);
    }
}

TEST(ConfigReader, TakesTheLimitsOfItsFields)
{
    EXPECT_EQ(printedFor(""), emptyNetwork);
    struct Limit
    {
        std::string text;
        std::string line;
        std::string instead; // of this line of the empty one
    };
    const std::vector<Limit> limits = {
        {"mtu = 65535\n", "host: , mtu 65535\n", "host: , mtu 0\n"},
        {"[dns]\ncache.entries = 0xFFFF_FFFF\n", "  cache: off, 4294967295 entries\n",
         "  cache: off, 0 entries\n"},
        {"[dns]\ntimeout = +inf\n", "  timeout: inf s\n", "  timeout: 1 s\n"},
        {"[dns]\ntimeout = -1e3\n", "  timeout: -1000 s\n", "  timeout: 1 s\n"},
        {"[[interface]]\nwifi.tx-power = -128\n",
         "  cache: off, 0 entries\ninterface : down\n  wifi: , passphrase \n"
         "    bands: , country , -128 dBm\n    channels: \n"
         "    retry: after 1 s, then 1 times longer up to 60 s; limit 0\n",
         "  cache: off, 0 entries\n"},
    };
    for (const Limit& limit : limits)
    {
        SCOPED_TRACE(limit.text);
        std::string printed = emptyNetwork;
        printed.replace(printed.find(limit.instead), limit.instead.size(), limit.line);
        EXPECT_EQ(printedFor(limit.text), printed);
    }
}

TEST(ConfigReader, ReportsUnknownKeysOnce)
{
    expectComplaints({
        {"nam = 1\n", "nam: unknown key\n"},
        {"\"na m\" = 1\n", "\"na m\": unknown key\n"},
        {"\"\" = 1\n", "\"\": unknown key\n"},
        {R"('"\' = 1)"
         "\n",
         "\"\\\"\\\\\": unknown key\n"},
        {"\"a\\nb\\u007f\" = 1\n", "\"a\\u000Ab\\u007F\": unknown key\n"},
        {"[dns]\nserver = 'a'\nserve.r = 'a'\n",
         "dns.server: unknown key\ndns.serve: unknown key\n"},
        {"[[interface]]\n[[interface]]\nnam = 'a'\n", "interface[1].nam: unknown key\n"},
        {"[[interface]]\n[interface.adress]\nip = 'a'\n[interface.adress.more]\n",
         "interface[0].adress: unknown key\n"},
        {"[[interface]]\nroutes = [ { to = 'a' }, { to = 'b', vi = 'c' } ]\n",
         "interface[0].routes[1].vi: unknown key\n"},
        {"[[interfaces]]\nname = 'a'\n[interfaces.address]\nip = 1\n[[interfaces]]\n",
         "interfaces: unknown key\n"},
        {"x = [ { a = 1 }, [ 2 ] ]\ny = { b = { c = 1 } }\n", "x: unknown key\ny: unknown key\n"},
        {"'vpn.endpoint' = 'a'\n", "\"vpn.endpoint\": unknown key\n"},
        {"[firewall]\nrule = [ { match = { from.\"*\" = true, of.x = true } } ]\n",
         "firewall.rule[0].match.of: unknown key\n"},
    });
}

TEST(ConfigReader, ReportsDuplicateKeys)
{
    expectComplaints({
        {"title = 'a'\n'title' = 'b'\n", "title: defined twice\n"},
        {"mtu = 1\nmtu = 2\nmtu = 3\n", "mtu: defined twice\nmtu: defined twice\n"},
        {"[dns]\ntimeout = 1.0\n[dns]\ntimeout = 2.0\n", "dns: defined twice\n"},
        {"[[interface]]\nname = 'a'\n[[interface]]\nname = 'b'\nname = 'c'\n",
         "interface[1].name: defined twice\n"},
        {"[[interface]]\naddress = { ip = 'a', \"ip\" = 'b' }\n",
         "interface[0].address.ip: defined twice\n"},
        {"[[interface]]\naddress.ip = 'a'\n[interface.address]\nprefix = 1\n",
         "interface[0].address: defined twice\n"},
        {"nam = 1\nnam = 2\n", "nam: unknown key\nnam: defined twice\n"},
    });
}

TEST(ConfigReader, ReportsValuesThatDoNotFit)
{
    expectComplaints({
        {"title = 1\n", "title: should be a string\n"},
        {"title = [ 'a' ]\n", "title: should be a single value\n"},
        {"title.a = 'b'\n", "title: should be a single value\n"},
        {"mtu = '1'\n", "mtu: should be an integer\n"},
        {"mtu = 65536\n", "mtu: should be from 0 to 65535\n"},
        {"mtu = -1\n", "mtu: should be from 0 to 65535\n"},
        {"mtu = 9223372036854775808\n", "mtu: should be from 0 to 65535\n"},
        {"mtu = 0b1" + std::string(32, '0') + "\n", "mtu: should be from 0 to 65535\n"},
        {"[dns]\ntimeout = true\n", "dns.timeout: should be a float\n"},
        {"[dns]\ncache = true\n", "dns.cache: should be a table\n"},
        {"[dns]\nservers = 'a'\n", "dns.servers: should be an array\n"},
        {"[dns]\nservers = [ 'a', 1 ]\n", "dns.servers[1]: should be a string\n"},
        {"[dns]\nservers = [ [ 'a' ] ]\n", "dns.servers[0]: should be a single value\n"},
        {"[dns]\nservers = [ { a = 'b' } ]\n", "dns.servers[0]: should be a single value\n"},
        {"[[dns]]\ntimeout = 1.0\n", "dns: should be a table\n"},
        {"[interface]\nname = 'a'\n", "interface: should be an array\n"},
        {"interface = [ 'a' ]\n", "interface[0]: should be a table\n"},
        {"interface = [ { up = 'a' } ]\n", "interface[0].up: should be true or false\n"},
        {"[vpn]\nallowed = [ 'a', [ 1 ] ]\nrenewed = 'now'\n",
         "vpn.allowed[0]: should be an array\nvpn.allowed[1][0]: should be a string\n"
         "vpn.renewed: should be a date or a time\n"},
        {"[[firewall.rule]]\nmatch.from = { a = 1, b = [ true ] }\n",
         "firewall.rule[0].match.from.a: should be true or false\n"
         "firewall.rule[0].match.from.b: should be a single value\n"},
        {R"(title = "\uD800")"
         "\n",
         "title: U+D800 is not a character\n"},
    });
}

} // namespace
