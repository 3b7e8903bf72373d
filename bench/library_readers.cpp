#include "readers.h"

#include <vorn/parsers/toml.h>

#include <memory>
#include <stdexcept>

#include "tests/support/direct_reading.h"
#include "tests/support/temporary_directory.h"

namespace bench
{
namespace
{

using vorn::parsers::toml::FilePath;
using vorn::parsers::toml::TomlTreeVisitor;
using vorn::parsers::toml::visitTomlTree;

class CopyingVisitor : public TomlTreeVisitor
{
public:
    void visitBareKey(const char* text) override { copy(text); }
    void visitQuotedKey(const char* text) override { copy(text); }
    void visitBasicString(const char* text) override { copy(text); }
    void visitMultilineBasicString(const char* text) override { copy(text); }
    void visitLiteralString(const char* text) override { copy(text); }
    void visitMultilineLiteralString(const char* text) override { copy(text); }
    void visitInteger(const char* text) override { copy(text); }
    void visitFloat(const char* text) override { copy(text); }
    void visitBoolean(const char* text) override { copy(text); }
    void visitOffsetDateTime(const char* text) override { copy(text); }
    void visitLocalDateTime(const char* text) override { copy(text); }
    void visitLocalDate(const char* text) override { copy(text); }
    void visitLocalTime(const char* text) override { copy(text); }

private:
    void copy(const char* text) { texts_.emplace_back(text); }

    std::vector<std::string> texts_;
};

template <typename Visitor, typename Source>
void read(const Source& source)
{
    Visitor visitor;
    if (!visitTomlTree(source, visitor))
    {
        throw std::runtime_error("the library refuses the document");
    }
}

template <typename Visitor, typename Source>
void readDirectly(const Source& source)
{
    const test::DirectReadingOn on;
    read<Visitor>(source);
}

} // namespace

Reading libraryReading(const std::string& text)
{
    return [&text] { readDirectly<TomlTreeVisitor>(text); };
}

Reading copyingReading(const std::string& text)
{
    return [&text] { readDirectly<CopyingVisitor>(text); };
}

Reading fileReading(const std::string& text)
{
    const auto directory = std::make_shared<const test::TemporaryDirectory>();
    return [directory, path = FilePath(directory->write("document.toml", text))]
    { readDirectly<TomlTreeVisitor>(path); };
}

Reading pipelineReading(const std::string& text)
{
    return [&text] { read<TomlTreeVisitor>(text); };
}

} // namespace bench
