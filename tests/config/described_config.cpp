// Describes a schema, or reads a file by it: described_config listener|every
// markdown|toml|json-schema|FILE.  The exit code says whether the file fills a configuration.
#include <vorn/parsers/toml_config.h>

#include <iostream>
#include <string>

#include "every_kind.h"
#include "listener_schema.h"

using namespace vorn::parsers::toml;

namespace
{

template <typename Struct>
int run(const Schema<Struct>& schema, const std::string& what)
{
    if (what == "markdown" || what == "toml" || what == "json-schema")
    {
        std::cout << describe(schema, what == "toml"       ? Format::toml
                                      : what == "markdown" ? Format::markdown
                                                           : Format::jsonSchema);
        return 0;
    }
    Struct config;
    bool isFilled = true;
    for (const Problem& problem : readConfig(FilePath(what), schema, config))
    {
        isFilled = isFilled && problem.severity == Severity::warning;
        std::cout << problem << '\n';
    }
    return isFilled ? 0 : 1;
}

} // namespace

int main(int count, char** words)
{
    if (count != 3)
    {
        return 2;
    }
    return std::string(words[1]) == "every" ? run(every_kind::schema(), words[2])
                                            : run(listening::configSchema(), words[2]);
}
