// daemon_config: what it takes, and what it says of mistakes.
#include "examples/example_run.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

TEST(DaemonConfig, FillsItsStruct)
{
    struct Accepted
    {
        std::string text;
        std::string printed;
    };
    const std::vector<Accepted> documents = {
        {"server.port = 80\n",
         "serving on 127.0.0.1:80, log in /var/log/daemon.log, timeout 2500 ms\n"},
        {"[server]\naddress = '::1'\nport = 65535\n[log]\nverbose = true\nfile = '/tmp/log'\n"
         "[client]\ntimeout = 1.5\n",
         "serving on ::1:65535, log in /tmp/log (verbose), timeout 1500 ms\n"},
        {"client = {timeout = 60}\nserver = {port = 0x1F90}\n",
         "serving on 127.0.0.1:8080, log in /var/log/daemon.log, timeout 60000 ms\n"},
    };
    for (const Accepted& document : documents)
    {
        SCOPED_TRACE(document.text);
        const test::ProgramRun run = test::runOnText(DAEMON_CONFIG, document.text);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.standardOutput, document.printed);
        EXPECT_EQ(run.standardError, "");
    }
}

TEST(DaemonConfig, TellsMistakes)
{
    test::expectProblems(
        DAEMON_CONFIG,
        {
            {"", "1:1: server.port: is missing\n"},
            {"[server]\naddress = '::1'\n", "1:2: server.port: is missing\n"},
            {"[server]\nport = 80800\n", "2:8: server.port: 80800 is not in 1 to 65535\n"},
            {"[server]\nport = '80'\n", "2:8: server.port: should be an integer, is a string\n"},
            {"server.port = 80\n[log]\nverbos = true\n",
             "3:1: log.verbos: unknown key (did you mean verbose?)\n"},
            {"server.port = 80\nclient.timeout = 0.5\n",
             "2:18: client.timeout: 0.5 is not in 1 to 60\n"},
            {"server.port = 80\nclient.timeout = 1.0005\n",
             "2:18: client.timeout: 1.0005 seconds cannot be held exactly\n"},
            {"server.port = 80\nserver.port = 81\n",
             "2:8: the key 'port' is defined twice (it is defined at 1:8 first)\n"},
            {"[server]\nport = 80\naddress = ::1\n",
             "3:11: '::1' is not a value (Strings need quotes: \"::1\".)\n"},
        });
}

TEST(DaemonConfig, TellsThatThereIsNoFile)
{
    const test::ProgramRun run = test::runProgram({DAEMON_CONFIG, "/no/such.toml"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.standardError, "/no/such.toml: cannot be read: No such file or directory\n");
}

} // namespace
