// The configuration of a daemon: daemon_config [FILE]
//
// Exit status: 0 it serves, 1 the configuration is wrong, which standard error explains.
#include <vorn/parsers/toml_config.h>

#include <chrono>
#include <cstdint>
#include <iostream>
#include <string>
#include <vector>

using namespace vorn::parsers::toml;

struct Config
{
    std::string address = "127.0.0.1";
    std::uint16_t port = 0;
    bool verbose = false;
    std::string logFile = "/var/log/daemon.log";
    std::chrono::milliseconds timeout{2500};
};

namespace
{

// Stands for what the daemon does.
int serve(const Config& config)
{
    std::cout << "serving on " << config.address << ':' << config.port << ", log in "
              << config.logFile << (config.verbose ? " (verbose)" : "") << ", timeout "
              << config.timeout.count() << " ms\n";
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    Schema<Config> schema;
    schema.optional("server.address", &Config::address)
        .required("server.port", &Config::port, range(1, 65535))
        .optional("log.verbose", &Config::verbose)
        .optional("log.file", &Config::logFile)
        .optional("client.timeout", &Config::timeout, unit<std::chrono::seconds>(), range(1, 60));
    Config config;
    const FilePath file(argc > 1 ? argv[1] : "/etc/daemon.toml");
    const std::vector<Problem> problems = readConfig(file, schema, config);
    for (const Problem& problem : problems)
    {
        std::cerr << problem << '\n';
    }
    return problems.empty() ? serve(config) : 1;
}
