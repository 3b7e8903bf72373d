// A client that uses a bit of everything that the library exports to clients.
#include <vorn/parsers/toml.h>

#include <cstdio>
#include <stdexcept>
#include <string>

using namespace vorn::parsers::toml;

namespace
{

// Prints integers and refuses floats.
class Visitor : public TomlTreeVisitor
{
public:
    void visitInteger(const char* text) override { std::printf("%lld\n", parseInteger(text)); }
    void visitFloat(const char* text) override { throw std::runtime_error(text); }
};

void read(const std::string& text)
{
    Visitor visitor;
    ITomlTreeVisitor& interface = visitor;
    try
    {
        const bool accepted = visitTomlTree(text, interface);
        std::printf("%s\n", accepted ? "accepted" : "rejected");
    }
    catch (const std::runtime_error& error)
    {
        std::printf("the visitor threw %s\n", error.what());
    }
    // Only with one type information for the interface, the library's, this is right.
    std::printf("%s\n", dynamic_cast<Visitor*>(&interface) == &visitor ? "same" : "other");
}

} // namespace

int main()
{
    std::printf("%s\n", version());
    read("a = 0x1F\n");
    read("a = 1.5\n");
    // Not accepted by the direct reader: the visitor throws through the recognisers.
    read("a = 2.5");
    read("a = 3");
    Visitor visitor;
    std::printf("%d\n", visitTomlTree(FilePath("/no/such.toml"), visitor) ? 1 : 0);
}
