// Any bytes as a file: it is read as its content is.
#include "finding.h"

#include "differential/comparison.h"
#include "differential/escaped.h"
#include "support/direct_reading.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <string>

using vorn::parsers::toml::FilePath;

namespace
{

// A file without a name, which a path of the system leads to.
class MemoryFile
{
public:
    void write(const std::string& content) const
    {
        const auto size = static_cast<ssize_t>(content.size());
        if (ftruncate(file_, 0) != 0 || pwrite(file_, content.data(), content.size(), 0) != size)
        {
            fuzz::report("The file cannot be written.");
        }
    }

    FilePath path() const { return FilePath("/proc/self/fd/" + std::to_string(file_)); }

private:
    int file_ = memfd_create("document", 0);
};

// The runtime's displays hold addresses of the text, which differ.
void expectSameReading(const std::string& document)
{
    static const MemoryFile file;
    file.write(document);
    const test::DirectReadingOn on;
    const test::Reading ofFile = test::read(file.path());
    const test::Reading ofText = test::read(document);
    const bool same = ofFile.accepted == ofText.accepted && ofFile.events == ofText.events &&
                      test::sameLines(ofFile.lines, ofText.lines);
    if (!same)
    {
        fuzz::report(
            "The file is read in another way than its content: " + test::escaped(document) +
            "\nfile\n" + test::describe(ofFile) + "text\n" + test::describe(ofText));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    expectSameReading(std::string(reinterpret_cast<const char*>(data), size));
    return 0;
}
