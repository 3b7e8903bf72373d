// Takes the place of visitTomlTree() in the tests of the library: the texts that they read
// are compared, before they are read for the test.
#include "comparison.h"
#include "escaped.h"

#include <gtest/gtest.h>

using vorn::parsers::toml::ITomlTreeVisitor;

// The linker gives these names: callers reach the one that wraps.
bool realVisit(const std::string& text, ITomlTreeVisitor& visitor) //
    asm("__real_" VISIT_TOML_TREE);
bool wrappedVisit(const std::string& text, ITomlTreeVisitor& visitor) //
    asm("__wrap_" VISIT_TOML_TREE);

namespace
{

// The comparison reads, too.
bool comparing = false;

void expectSame(const std::string& text)
{
    comparing = true;
    const test::Comparison comparison = test::compare(text);
    comparing = false;
    EXPECT_TRUE(comparison.isWell()) << test::escaped(text) << '\n' << test::describe(comparison);
}

} // namespace

bool wrappedVisit(const std::string& text, ITomlTreeVisitor& visitor)
{
    if (!comparing)
    {
        expectSame(text);
        // Forgets the lines that were logged.
        const test::LogRecorder log;
    }
    return realVisit(text, visitor);
}
