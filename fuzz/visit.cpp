// Any bytes as a document: the library, the library with its direct reader switched off and
// the reference pipeline show the same.
#include "finding.h"

#include "differential/comparison.h"
#include "differential/escaped.h"
#include "differential/shrinking.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace
{

[[noreturn]] void reportDifference(const std::string& document)
{
    const auto differs = [](const std::string& text) { return !test::compare(text).isWell(); };
    const std::string smallest = test::shrunk(document, differs);
    fuzz::report("A document differs. The smallest found: " + test::escaped(smallest) + '\n' +
                 test::describe(test::compare(smallest)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string document(reinterpret_cast<const char*>(data), size);
    if (!test::compare(document).isWell())
    {
        reportDifference(document);
    }
    return 0;
}
