// Reads one file with toml++: startup_tomlplusplus FILE
#include <toml++/toml.h>

#include <cstdlib>

int main(int argc, char** argv)
{
    const auto model = toml::parse_file(argc > 1 ? argv[1] : "");
    return model.empty() ? EXIT_FAILURE : EXIT_SUCCESS;
}
