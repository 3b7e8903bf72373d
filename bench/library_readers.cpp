#include "readers.h"

#include <vorn/parsers/toml.h>

#include <memory>
#include <stdexcept>

#include "direct_reader.h"
#include "tests/support/temporary_directory.h"
#include "tools/ignoring_visitor.h"

namespace
{

// Whether documents reach the library's direct reader.
bool directly = true;

} // namespace

// The library's call of its readDirectly() is linked to the first, and that function to
// the second.
extern "C" bool wrappedReadDirectly(
    const std::string& text,
    vorn::parsers::toml::ITomlTreeVisitor& visitor) asm("__wrap_" VORN_READ_DIRECTLY);
extern "C" bool
realReadDirectly(const std::string& text,
                 vorn::parsers::toml::ITomlTreeVisitor& visitor) asm("__real_" VORN_READ_DIRECTLY);

bool wrappedReadDirectly(const std::string& text, vorn::parsers::toml::ITomlTreeVisitor& visitor)
{
    return directly && realReadDirectly(text, visitor);
}

namespace bench
{
namespace
{

using vorn::parsers::toml::FilePath;
using vorn::parsers::toml::visitTomlTree;

class CopyingVisitor : public tool::IgnoringVisitor
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

} // namespace

Reading libraryReading(const std::string& text)
{
    return [&text] { read<tool::IgnoringVisitor>(text); };
}

Reading copyingReading(const std::string& text)
{
    return [&text] { read<CopyingVisitor>(text); };
}

Reading fileReading(const std::string& text)
{
    const auto directory = std::make_shared<const test::TemporaryDirectory>();
    return [directory, path = FilePath(directory->write("document.toml", text))]
    { read<tool::IgnoringVisitor>(path); };
}

Reading pipelineReading(const std::string& text)
{
    return [&text]
    {
        directly = false;
        read<tool::IgnoringVisitor>(text);
        directly = true;
    };
}

} // namespace bench
