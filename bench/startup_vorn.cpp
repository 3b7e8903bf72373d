// Reads one file with the library: startup_vorn FILE
#include <vorn/parsers/toml.h>

#include <cstdlib>

int main(int argc, char** argv)
{
    using namespace vorn::parsers::toml;
    TomlTreeVisitor visitor;
    return visitTomlTree(FilePath(argc > 1 ? argv[1] : ""), visitor) ? EXIT_SUCCESS : EXIT_FAILURE;
}
