// A client of the library of diagnoses alone: the example of its header.
#include <vorn/parsers/toml_diagnosis.h>

#include <iostream>
#include <string>

namespace toml = vorn::parsers::toml;

int main()
{
    const std::string name = "config.toml";
    const std::string document = std::string(11, '\n') + "names = []\n";
    for (const toml::Finding& finding : toml::diagnose(document))
    {
        std::cout << name << ':' << finding.line << ':' << finding.column << ": " << finding.message
                  << '\n'
                  << toml::excerpt(document, finding);
    }
}
