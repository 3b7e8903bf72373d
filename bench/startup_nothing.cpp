// A program of the standard library that opens a file: startup_nothing FILE
#include <cstdlib>
#include <fstream>

int main(int argc, char** argv)
{
    const std::ifstream file(argc > 1 ? argv[1] : "");
    return file ? EXIT_SUCCESS : EXIT_FAILURE;
}
