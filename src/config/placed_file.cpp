#include <vorn/parsers/toml_places.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <optional>

namespace vorn::parsers::toml
{
namespace
{

class File
{
public:
    explicit File(const char* path) : descriptor_(open(path, O_RDONLY | O_CLOEXEC)) {}
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File()
    {
        if (descriptor_ >= 0)
        {
            close(descriptor_);
        }
    }

    // All of it; no value if it cannot be read to its end.
    std::optional<std::string> content() const
    {
        std::string bytes(expectedSize(), '\0');
        std::size_t size = 0;
        for (;;)
        {
            const ssize_t count = readSome(bytes.data() + size, bytes.size() - size);
            if (count < 0)
            {
                return std::nullopt;
            }
            size += static_cast<std::size_t>(count);
            if (count == 0)
            {
                bytes.resize(size);
                return bytes;
            }
            if (size == bytes.size())
            {
                bytes.resize(2 * size);
            }
        }
    }

private:
    // One byte more than the file says, at which its end shows.
    std::size_t expectedSize() const
    {
        constexpr std::size_t min = 4096;
        struct stat status = {};
        const bool isKnown = fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode);
        return isKnown ? std::max(static_cast<std::size_t>(status.st_size) + 1, min) : min;
    }

    ssize_t readSome(char* bytes, std::size_t size) const
    {
        ssize_t count = 0;
        do
        {
            count = read(descriptor_, bytes, size);
        } while (count < 0 && errno == EINTR);
        return count;
    }

    int descriptor_;
};

} // namespace

bool visitTomlTree(const FilePath& path, PlacedVisitor& visitor)
{
    if (const std::optional<std::string> content = File(path.c_str()).content())
    {
        return visitTomlTree(*content, visitor);
    }
    ITomlTreeVisitor& unplaced = visitor;
    return visitTomlTree(path, unplaced);
}

} // namespace vorn::parsers::toml
