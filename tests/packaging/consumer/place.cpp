// A client of the library of values and places: the example of its header, and what else needs the
// other libraries.
#include <vorn/parsers/toml_config.h>

#include <iostream>
#include <string>

using namespace vorn::parsers::toml;

namespace
{

struct Ports : PlacedVisitor
{
    void visitInteger(const char* text) override
    {
        if (integerValue(text).value_or(0) > 65535)
        {
            std::cout << place().line << ':' << place().column << ": " << text
                      << " is not a port\n";
        }
    }
};

} // namespace

int main()
{
    Ports ports;
    ITomlTreeVisitor& interface = ports;
    const bool accepted = visitTomlTree("ssh = 22\nhttp = 80800\n", ports);
    // Only with one type information for the class, the library's, this is right.
    const bool isSame = dynamic_cast<PlacedVisitor*>(&interface) == &ports;
    return accepted && isSame ? 0 : 1;
}
