// A client without exceptions and without type information, of all three libraries.  It says what
// is not as it should be, and ends with status 1 then.
#include <vorn/parsers/toml_config.h>

#include <cstdint>
#include <cstdio>
#include <map>
#include <optional>
#include <string>
#include <vector>

#if defined(__cpp_exceptions) || defined(__cpp_rtti)
#error "this is to be compiled with -fno-exceptions -fno-rtti"
#endif

using namespace vorn::parsers::toml;

namespace
{

int failures = 0;

void expect(bool isTrue, const char* what)
{
    if (!isTrue)
    {
        std::printf("wrong: %s\n", what);
        ++failures;
    }
}

struct Sum : TomlTreeVisitor
{
    long long sum = 0;
    void visitInteger(const char* text) override { sum += parseInteger(text); }
};

// Its base has its table of functions, and its type, in the library.
struct LastInteger : PlacedVisitor
{
    Place last;
    void visitInteger(const char*) override { last = place(); }
};

void visit()
{
    Sum sum;
    expect(visitTomlTree("a = [1, 0x1F]\nb = 0b1010\n", sum), "a document is accepted");
    expect(sum.sum == 42, "the visitor gets the integers");
    // This one goes through the recognisers.
    Sum broken;
    expect(!visitTomlTree("a = 1\nb = []\nc = 2\n", broken), "a document is rejected");
    expect(broken.sum == 3, "the visitor gets the integers beside a mistake");

    LastInteger places;
    expect(visitTomlTree("a = 1\nbc = 2\n", places), "a document of places is accepted");
    expect(places.last.line == 2 && places.last.column == 6, "the visitor knows its place");
}

void diagnoseAll()
{
    const std::string document = "names = []\n";
    const std::vector<Finding> findings = diagnose(document);
    expect(findings.size() == 1 && findings[0].code == "empty-array", "a mistake is found");
    expect(!findings.empty() && !excerpt(document, findings[0]).empty(), "a mistake is shown");
    Sum sum;
    expect(visitOrDiagnose("a = 5\n", sum).empty() && sum.sum == 5, "a document is visited");
}

void convert()
{
    expect(integerValue("0xFF").value_or(0) == 255, "an integer has a value");
    expect(!integerValue("9223372036854775808"), "an integer is out of range");
    expect(stringValue("\"a\\tb\"").value_or("") == "a\tb", "a string has a value");
    expect(unquote("\"red\"") == "red", "a string has quotes");
}

enum class Level : std::uint8_t
{
    quiet,
    loud
};

struct Link
{
    std::string name;
    std::optional<int> mtu;
};

struct Config
{
    std::uint16_t port = 80;
    Level level = Level::quiet;
    std::vector<std::string> hosts;
    std::map<std::string, Link> links;
};

const Schema<Config>& configSchema()
{
    static const Schema<Link> link =
        Schema<Link>()
            .required("name", &Link::name,
                      [](const std::string& name) { return name.empty() ? "is empty" : ""; })
            .optional("mtu", &Link::mtu, range(68, 9000));
    static const Schema<Config> schema =
        Schema<Config>()
            .required("port", &Config::port, range(1, 65535), "The port that it listens on.")
            .optional("level", &Config::level,
                      oneOf({{"quiet", Level::quiet}, {"loud", Level::loud}}))
            .optional("hosts", &Config::hosts)
            .tablesByName("link", &Config::links, link);
    return schema;
}

void configure()
{
    Config config;
    const auto problems = readConfig("port = 8_080\nlevel = \"loud\"\nhosts = [\"a\", \"b\"]\n"
                                     "[link.eth0]\nname = \"outer\"\nmtu = 1500\n",
                                     configSchema(), config);
    expect(problems.empty(), "a configuration is read");
    expect(config.port == 8080 && config.level == Level::loud && config.hosts.size() == 2,
           "members are filled");
    expect(config.links["eth0"].name == "outer" && config.links["eth0"].mtu == 1500,
           "structs are filled");

    const auto wrong =
        readConfig("port = 80800\n[link.eth0]\nname = \"\"\n", configSchema(), config);
    expect(wrong.size() == 2 && wrong[0].message == "80800 is not in 1 to 65535" &&
               wrong[1].message == "is empty",
           "problems are told, those of a check of its own among them");
    expect(config.port == 8080, "a configuration with problems fills nothing");
    expect(describe(configSchema()).find("The port that it listens on.") != std::string::npos,
           "a configuration is described");
}

} // namespace

int main()
{
    visit();
    diagnoseAll();
    convert();
    configure();
    return failures == 0 ? 0 : 1;
}
