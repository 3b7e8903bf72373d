// A client as it stands in a service.
// clang-format off
#include <vorn/parsers/toml_config.h>
#include <iostream>
using namespace vorn::parsers::toml;

enum class Level { debug, info, error };
struct Listener { std::string address = "0.0.0.0"; std::uint16_t port = 0; std::optional<std::string> certificate; };
struct Config {
    std::string name;
    double timeout = 2.5;
    Level level = Level::info;
    std::vector<std::string> search;
    std::map<std::string, long> limits;
    std::vector<Listener> listeners;
};

const Schema<Listener>& listenerSchema() {
    static const Schema<Listener> schema = Schema<Listener>()
        .optional("address", &Listener::address)
        .required("port", &Listener::port, range(1, 65535))
        .optional("certificate", &Listener::certificate);
    return schema;
}
const Schema<Config>& configSchema() {
    static const Schema<Config> schema = Schema<Config>()
        .required("name", &Config::name)
        .optional("dns.timeout", &Config::timeout, range(0.1, 60.0))
        .optional("log.level", &Config::level, oneOf({{"debug", Level::debug}, {"info", Level::info}, {"error", Level::error}}))
        .optional("dns.search", &Config::search)
        .optional("limits", &Config::limits)
        .tables("listener", &Config::listeners, listenerSchema());
    return schema;
}
int main(int, char** argv) {
    Config config;
    const std::vector<Problem> problems = readConfig(FilePath(argv[1]), configSchema(), config);
    for (const Problem& problem : problems) std::cerr << problem << '\n';   // app.toml:13:8: listener[1].port: 80800 is not in 1 to 65535
    return problems.empty() ? 0 : 1;
}
