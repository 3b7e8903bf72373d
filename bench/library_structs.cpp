#include "struct_readers.h"

#include <stdexcept>
#include <vector>

#include "copying_visitor.h"

namespace bench
{
namespace
{

namespace toml = vorn::parsers::toml;

template <typename Visitor>
Services visited(const std::string& text)
{
    Visitor visitor;
    if (!toml::visitTomlTree(text, visitor))
    {
        throw std::runtime_error("the library refuses the document");
    }
    return {};
}

} // namespace

Services visitedServices(const std::string& text)
{
    return visited<toml::TomlTreeVisitor>(text);
}

Services copiedServices(const std::string& text)
{
    return visited<CopyingVisitor>(text);
}

Services configuredServices(const std::string& text)
{
    Services read;
    const std::vector<toml::Problem> problems = toml::readConfig(text, servicesSchema(), read);
    if (!problems.empty())
    {
        throw std::runtime_error(problems.front().message);
    }
    return read;
}

} // namespace bench
