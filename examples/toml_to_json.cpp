// Prints a TOML document as JSON: toml_to_json FILE
//
// Keys keep their order, tables and arrays become objects and arrays.  JSON has no dates
// and times, infinities and not-a-numbers: they become strings, dates and times as they
// are written, the others as "inf", "-inf" and "nan".
//
// Exit status: 0 done, 1 the document is not TOML 1.0, which standard error explains, 2 wrong
// usage.
#include <vorn/parsers/toml_diagnosis.h>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <sstream>
#include <vector>

#include "toml_to_json.h"

namespace
{

namespace toml = vorn::parsers::toml;

bool isError(const toml::Finding& finding)
{
    return finding.severity == toml::Severity::error;
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): what is not caught is a lack of memory.
int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::cerr << "Usage: toml_to_json FILE\n";
        return 2;
    }
    std::ifstream file(argv[1], std::ios::binary);
    file.peek();
    if (file.fail())
    {
        std::cerr << argv[1] << ": cannot be read\n";
        return 1;
    }
    std::ostringstream text;
    text << file.rdbuf();
    toml::DiagnosisOptions options;
    options.strict = true;
    JsonBuilder builder;
    const std::vector<toml::Finding> findings = toml::visitOrDiagnose(text.str(), builder, options);
    for (const toml::Finding& finding : findings)
    {
        std::cerr << argv[1] << ':' << finding.line << ':' << finding.column << ": "
                  << finding.message << '\n';
    }
    if (std::any_of(findings.begin(), findings.end(), isError))
    {
        return 1;
    }
    std::cout << builder.document().dump(2) << '\n';
    return 0;
}
