// config_reader: what it takes, and what it says of mistakes.
#include "examples/example_run.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

std::string printedFor(const std::string& text)
{
    const test::ProgramRun run = test::runOnText(CONFIG_READER, text);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.standardError, "");
    return run.standardOutput;
}

void expectProblems(const std::vector<test::Mistaken>& documents)
{
    test::expectProblems(CONFIG_READER, documents);
}

const char* const emptyNetwork = "\n"
                                 "host: , mtu 1500\n"
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

TEST(ConfigReader, TakesTheLimitsOfItsMembers)
{
    EXPECT_EQ(printedFor(""), emptyNetwork);
    struct Limit
    {
        std::string text;
        std::string line;
        std::string instead; // of this line of the empty one
    };
    const std::vector<Limit> limits = {
        {"mtu = 65535\n", "host: , mtu 65535\n", "host: , mtu 1500\n"},
        {"mtu = 68\n", "host: , mtu 68\n", "host: , mtu 1500\n"},
        {"[dns]\ncache.entries = 0xFFFF_FFFF\n", "  cache: off, 4294967295 entries\n",
         "  cache: off, 0 entries\n"},
        {"[dns]\ntimeout = 60\n", "  timeout: 60 s\n", "  timeout: 1 s\n"},
        {"[dns]\ntimeout = 1e-1\n", "  timeout: 0.1 s\n", "  timeout: 1 s\n"},
        {"[[interface]]\nname = 'w'\nwifi = {ssid = 's', tx-power = -128}\n",
         "  cache: off, 0 entries\ninterface w: down\n  wifi: s, passphrase \n"
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

TEST(ConfigReader, PrintsDatesAndTimes)
{
    const std::string vpn = "[vpn]\nendpoint = 'e'\nallowed = [['a']]\n";
    const std::string printed = emptyNetwork + std::string("vpn: e\n  allowed: a\n"
                                                           "  keepalive: 0 s, mark 0x0\n");
    EXPECT_EQ(printedFor(vpn), printed + "  not before: , renewed: \n");
    EXPECT_EQ(printedFor(vpn + "not-before = 2024-03-01T12:00:00-01:30\nrenewed = 07:32:00\n"),
              printed + "  not before: 2024-03-01T12:00:00 -90 min, renewed: 07:32:00\n");
}

TEST(ConfigReader, TellsUnknownAndMissingKeys)
{
    expectProblems({
        {"hostnam = 'a'\n", "1:1: hostnam: unknown key (did you mean hostname?)\n"},
        {"\"na m\" = 1\n", "1:1: \"na m\": unknown key\n"},
        {"[dns]\nserver = ['a']\nserve.r = 'a'\n",
         "2:1: dns.server: unknown key (did you mean servers?)\n"
         "3:1: dns.serve: unknown key (did you mean servers?)\n"},
        {"[[interface]]\nname = 'a'\n[interface.adress]\nip = 'a'\n",
         "3:12: interface[0].adress: unknown key (did you mean address?)\n"},
        {"[[interface]]\nname = 'a'\nroutes = [ { to = 'a', via = 'b' }, { to = 'b', vi = 'c' } "
         "]\n",
         "3:49: interface[0].routes[1].vi: unknown key (did you mean via?)\n"
         "3:37: interface[0].routes[1].via: is missing\n"},
        {"'vpn.endpoint' = 'a'\n", "1:1: \"vpn.endpoint\": unknown key\n"},
        {"[[interface]]\nmac = 'a'\n[[firewall.rule]]\nlog = true\n",
         "1:3: interface[0].name: is missing\n3:12: firewall.rule[0].action: is missing\n"},
        {"[vpn]\n", "1:2: vpn.endpoint: is missing\n1:2: vpn.allowed: is missing\n"},
    });
}

TEST(ConfigReader, TellsWhatIsDefinedTwice)
{
    expectProblems({
        {"title = 'a'\n'title' = 'b'\n",
         "2:1: the key 'title' is defined twice (it is defined at 1:1 first)\n"},
        {"[dns]\ntimeout = 1.0\n[dns]\nsearch = ['a']\n",
         "3:2: the table 'dns' is defined twice (it is defined at 1:2 first)\n"},
        {"[[interface]]\nname = 'a'\naddress.ip = 'a'\n[interface.address]\nprefix = 1\n",
         "4:12: the table 'address' is defined twice (it is defined at 3:1 first)\n"},
    });
}

TEST(ConfigReader, TellsValuesThatDoNotFit)
{
    expectProblems({
        {"title = 1\n", "1:9: title: should be a string, is an integer\n"},
        {"title.a = 'b'\n", "1:1: title: should be a string, is a table\n"},
        {"mtu = 67\n", "1:7: mtu: 67 is not in 68 to 65535\n"},
        {"mtu = 9223372036854775808\n", "1:7: mtu: 9223372036854775808 is not in 68 to 65535\n"},
        {"mtu = 7e4\n", "1:7: mtu: should be an integer, is a float\n"},
        {"[dns]\ntimeout = inf\n", "2:11: dns.timeout: inf is not in 0.1 to 60\n"},
        {"[dns]\ntimeout = '1s'\n",
         "2:11: dns.timeout: should be a number of seconds, is a string\n"},
        {"[dns]\nservers = [ 'a', 1 ]\n",
         "2:18: dns.servers[1]: should be a string, is an integer\n"},
        {"[[dns]]\ntimeout = 1.0\n", "1:3: dns: should be a table, is an array of tables\n"},
        {"[interface]\nname = 'a'\n", "1:2: interface: should be an array of tables, is a table\n"},
        {"[[interface]]\nname = 'a'\nwifi = {ssid = 's', bands = ['5Ghz']}\n",
         "3:30: interface[0].wifi.bands[0]: '5Ghz' is not one of \"2.4GHz\", \"5GHz\" "
         "(did you mean 5GHz?)\n"},
        {"[vpn]\nendpoint = 'a'\nallowed = [ 'a', [ 1 ] ]\nrenewed = 'now'\n",
         "3:13: vpn.allowed[0]: should be an array of strings, is a string\n"
         "3:20: vpn.allowed[1][0]: should be a string, is an integer\n"
         "4:11: vpn.renewed: should be a date or time, is a string\n"},
        {"[[firewall.rule]]\naction = 'drop'\nmatch.from = { eth0 = 1 }\n",
         "3:23: firewall.rule[0].match.from.eth0: should be a boolean, is an integer\n"},
    });
}

TEST(ConfigReader, ChecksWhatNoKindTells)
{
    expectProblems({
        {"[[interface]]\nname = 'a'\n[[interface]]\nname = 'a'\n",
         "1:3: interface: two are named a\n"},
        {"[[firewall.rule]]\naction = 'drop'\nmatch.port = 22\n",
         "3:7: firewall.rule[0].match.port, firewall.rule[0].match.proto: "
         "a port needs the protocol tcp or udp\n"},
    });
}

} // namespace
