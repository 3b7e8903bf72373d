// A service's configuration: what is told of its mistakes, and where.
#include "listener_client.h"
#include "told_problems.h"

#include "support/run_program.h"
#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

struct Told
{
    std::string text;
    std::string problems; // as they are printed
};

void expectTold(const std::vector<Told>& documents)
{
    for (const Told& document : documents)
    {
        listener::Config config;
        config.name = "as it was";
        const auto problems =
            vorn::parsers::toml::readConfig(document.text, listener::configSchema(), config);
        EXPECT_EQ(test::told(problems), document.problems) << document.text;
        EXPECT_EQ(config.name == "as it was", !problems.empty()) << document.text;
    }
}

} // namespace

TEST(ListenerConfig, isFilled)
{
    expectTold({
        {"name = \"a\"\n", ""},
        {"name = 'a'\ndns.timeout = 1\n", ""},
        {"name = 'a'\n[dns]\ntimeout = 0.1\nsearch = ['x', \"y\"]\n", ""},
        {"name = 'a'\ndns = {timeout = 60.0, search = ['x']}\n", ""},
        {"name = 'a'\n[log]\nlevel = 'debug'\n", ""},
        {"name = 'a'\n[limits]\nfiles = 0x400\n\"open files\" = -1\n", ""},
        {"name = 'a'\nlimits = {files = 1}\n", ""},
        {"name = 'a'\nlimits.files = 1\nlimits.memory = 2\n", ""},
        {"name = 'a'\n[[listener]]\nport = 1\n[[listener]]\nport = 65535\n", ""},
        {"name = 'a'\nlistener = [{port = 1}, {port = 2, address = '::1'}]\n", ""},
        {"\"name\" = '''\na'''\n", ""},
        {"\xef\xbb\xbfname = 'a' # end\r\n", ""},
    });
}

TEST(ListenerConfig, tellsMistakesOfTheDocument)
{
    expectTold({
        {"name = \"a\"",
         "1:11: the line break at the end of the file is missing (Every pair and every header ends "
         "with a line break, including the last one.)\n"},
        {"name = a\nport\n",
         "1:8: 'a' is not a value (Strings need quotes: \"a\".)\n"
         "2:5: expected '=' after the key, found the end of the line (A line contains a pair, "
         "key = value, or a header, [key].)\n"},
        {"name = 'a'\ndns.search = []\n",
         "2:15: the array is empty (An array needs at least one element. Leave the key out "
         "instead.)\n"},
        {"name = 'a\n",
         "1:8: the string is not closed on its line (Close the string with ' on the same line. Put "
         "double quotes around a string with an apostrophe in it.)\n"},
        {"name = 5\nx = 1\ny = [1\n", // nothing but that
         "4:1: the array opened on line 3 is not closed before the end of the file (Close it with "
         "']' after its last element.)\n"},
    });
}

TEST(ListenerConfig, tellsWhatIsMissing)
{
    expectTold({
        {"", "1:1: name: is missing\n"},
        {"[dns]\ntimeout = 1\n", "1:1: name: is missing\n"},
        {"name = 'a'\n[[listener]]\n", "2:3: listener[0].port: is missing\n"},
        {"[[listener]]\nport = 1\n\n[[listener]]\naddress = 'x'\n",
         "1:1: name: is missing\n4:3: listener[1].port: is missing\n"},
        {"listener = [{address = 'x'},\n  {port = 1}]\n",
         "1:1: name: is missing\n1:13: listener[0].port: is missing\n"},
        {"nam = 'a'\n", "1:1: nam: unknown key (did you mean name?)\n1:1: name: is missing\n"},
    });
}

TEST(ListenerConfig, tellsUnknownKeys)
{
    expectTold({
        {"name = 'a'\ncolour = 'red'\n", "2:1: colour: unknown key\n"},
        {"name = 'a'\n[dns]\ntimout = 1\n",
         "3:1: dns.timout: unknown key (did you mean timeout?)\n"},
        {"name = 'a'\n[Dns]\ntimeout = 1\n", "2:2: Dns: unknown key (did you mean dns?)\n"},
        {"name = 'a'\ndns.cache.size = 1\n", "2:5: dns.cache: unknown key\n"},
        {"name = 'a'\n[[listener]]\nport = 1\n[listener.tls]\nkey = 1\n",
         "4:11: listener[0].tls: unknown key\n"},
        {"name = 'a'\nlistener = [{port = 1, prt = 2}]\n",
         "2:24: listener[0].prt: unknown key (did you mean port?)\n"},
        {"name = 'a'\n\"a b\" = {x = [1, {y = 2}]}\n", "2:1: \"a b\": unknown key\n"},
        {"name = 'a'\n[[extra]]\nx = 1\n[[extra]]\n[extra.more]\n", "2:3: extra: unknown key\n"},
        {"name = 'a'\n[extra]\n[other]\n[extra.more]\n",
         "2:2: extra: unknown key\n3:2: other: unknown key\n4:2: extra: unknown key\n"},
    });
}

TEST(ListenerConfig, tellsValuesOfTheWrongKind)
{
    expectTold({
        {"name = 5\n", "1:8: name: should be a string, is an integer\n"},
        {"name = ['a']\n", "1:8: name: should be a string, is an array\n"},
        {"name = {first = 'a'}\n", "1:8: name: should be a string, is a table\n"},
        {"[name]\nfirst = 'a'\n", "1:2: name: should be a string, is a table\n"},
        {"[[name]]\nfirst = 'a'\n", "1:3: name: should be a string, is an array of tables\n"},
        {"name.first = 'a'\n", "1:1: name: should be a string, is a table\n"},
        {"name = 'a'\ndns = 5\n", "2:7: dns: should be a table, is an integer\n"},
        {"name = 'a'\ndns = [1]\n", "2:7: dns: should be a table, is an array\n"},
        {"name = 'a'\n[[dns]]\ntimeout = 1\n",
         "2:3: dns: should be a table, is an array of tables\n"},
        {"name = 'a'\n[dns]\ntimeout = '1'\n",
         "3:11: dns.timeout: should be a number, is a string\n"},
        {"name = 'a'\n[dns]\nsearch = 'x'\n",
         "3:10: dns.search: should be an array of strings, is a string\n"},
        {"name = 'a'\n[dns]\nsearch = ['x', 1.5, true]\n",
         "3:16: dns.search[1]: should be a string, is a float\n"
         "3:21: dns.search[2]: should be a string, is a boolean\n"},
        {"name = 'a'\n[dns]\nsearch = [['x']]\n",
         "3:11: dns.search[0]: should be a string, is an array\n"},
        {"name = 'a'\nlimits = 1\n",
         "2:10: limits: should be a table of integers, is an integer\n"},
        {"name = 'a'\n[limits]\nfiles = '1'\n",
         "3:9: limits.files: should be an integer, is a string\n"},
        {"name = 'a'\n[limits.files]\nx = 1\n",
         "2:9: limits.files: should be an integer, is a table\n"},
        {"name = 'a'\n[listener]\nport = 1\n",
         "2:2: listener: should be an array of tables, is a table\n"},
        {"name = 'a'\nlistener = {port = 1}\n",
         "2:12: listener: should be an array of tables, is a table\n"},
        {"name = 'a'\nlistener = [1]\n", "2:13: listener[0]: should be a table, is an integer\n"},
        {"name = 'a'\n[[listener]]\nport = 1979-05-27\n",
         "3:8: listener[0].port: should be an integer, is a date\n"},
    });
}

TEST(ListenerConfig, tellsValuesThatAreOutOfRange)
{
    expectTold({
        {"name = 'a'\n[[listener]]\nport = 1\n[[listener]]\nport = 80800\n",
         "5:8: listener[1].port: 80800 is not in 1 to 65535\n"},
        {"name = 'a'\n[[listener]]\nport = -1\n[[listener]]\nport = 99999999999999999999\n",
         "3:8: listener[0].port: -1 is not in 1 to 65535\n"
         "5:8: listener[1].port: 99999999999999999999 is not in 1 to 65535\n"},
        {"name = 'a'\ndns.timeout = 0\n", "2:15: dns.timeout: 0 is not in 0.1 to 60\n"},
        {"name = 'a'\ndns.timeout = inf\n", "2:15: dns.timeout: inf is not in 0.1 to 60\n"},
        {"name = 'a'\ndns.timeout = nan\n", "2:15: dns.timeout: nan is not in 0.1 to 60\n"},
        {"name = 'a'\nlog.level = 'Debug'\n",
         "2:13: log.level: 'Debug' is not one of \"debug\", \"info\", \"error\""
         " (did you mean debug?)\n"},
        {"name = \"a\\uD800b\"\n",
         "1:10: name: the escape \\uD800 stands for no character (D800 to DFFF are halves of pairs "
         "in UTF-16. Write one \\U with the number of the whole character.)\n"},
    });
}

TEST(ListenerConfig, tellsWhatIsDefinedTwice)
{
    expectTold({
        {"name = 'a'\nname = 'b'\n",
         "2:1: the key 'name' is defined twice (it is defined at 1:1 first)\n"},
        {"name = 'a'\n[dns]\ntimeout = 1\n[dns]\n",
         "4:2: the table 'dns' is defined twice (it is defined at 2:2 first)\n"},
        {"name = 'a'\ndns = {timeout = 1}\n[dns]\n",
         "3:2: the inline table 'dns' cannot be extended (it is defined at 2:1 first)\n"},
        {"name = 'a'\nlistener = [{port = 1}]\n[[listener]]\nport = 2\n",
         "3:3: the array 'listener' cannot be extended (it is defined at 2:1 first)\n"},
        {"name = 'a'\n[other]\nx = 1\nx = 2\n",
         "2:2: other: unknown key\n"
         "4:1: the key 'x' is defined twice (it is defined at 3:1 first)\n"},
    });
}

// The program of its own: compiled without exceptions, linked to the shared library.
TEST(ListenerConfig, isAProgram)
{
    const test::TemporaryDirectory directory;
    const std::string file =
        directory.write("app.toml", "name = 'a'\n\n[dns]\ntimeout = 5.0\n\n[log]\nlevel = 'info'\n"
                                    "\n[[listener]]\nport = 80\n\n[[listener]]\nport = 80800\n");
    const test::ProgramRun bad = test::runProgram({VORN_LISTENER_CONFIG, file});
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.standardError, file + ":13:8: listener[1].port: 80800 is not in 1 to 65535\n");
    const test::ProgramRun good =
        test::runProgram({VORN_LISTENER_CONFIG, directory.write("good.toml", "name = 'a'\n")});
    EXPECT_EQ(good.status, 0);
    EXPECT_EQ(good.standardError, "");
}
