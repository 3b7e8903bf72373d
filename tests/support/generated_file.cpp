#include "generated_file.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace test
{

std::string generatedFile(const std::string& name)
{
    const std::string path = GENERATED_FILES + ('/' + name);
    std::ifstream file(path);
    if (!file)
    {
        throw std::runtime_error("no file " + path);
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace test
