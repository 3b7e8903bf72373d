// Reads one file with cpptoml: startup_cpptoml FILE
// The header lacks this one.
#include <limits>

#include <cpptoml.h>

#include <cstdlib>

int main(int argc, char** argv)
{
    const auto model = cpptoml::parse_file(argc > 1 ? argv[1] : "");
    return model->empty() ? EXIT_FAILURE : EXIT_SUCCESS;
}
