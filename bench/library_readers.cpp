#include "readers.h"

#include <vorn/parsers/toml.h>

#include <memory>
#include <stdexcept>

#include "copying_visitor.h"
#include "settings.h"
#include "tests/support/temporary_directory.h"

namespace bench
{
namespace
{

using vorn::parsers::toml::FilePath;
using vorn::parsers::toml::TomlTreeVisitor;
using vorn::parsers::toml::visitTomlTree;

template <typename Visitor, typename Source>
void read(const Source& source)
{
    Visitor visitor;
    if (!visitTomlTree(source, visitor))
    {
        throw std::runtime_error("the library refuses the document");
    }
}

} // namespace

Reading libraryReading(const std::string& text)
{
    return [&text] { read<TomlTreeVisitor>(text); };
}

Reading copyingReading(const std::string& text)
{
    return [&text] { read<CopyingVisitor>(text); };
}

Reading settingsReading(const std::string& text)
{
    return [&text] { read<SettingsVisitor>(text); };
}

Reading fileReading(const std::string& text)
{
    const auto directory = std::make_shared<const test::TemporaryDirectory>();
    return [directory, path = FilePath(directory->write("document.toml", text))]
    { read<TomlTreeVisitor>(path); };
}

} // namespace bench
