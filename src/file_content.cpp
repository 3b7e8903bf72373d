#include "file_content.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>

#include "pipeline/cleanup_guard.h"

namespace vorn::parsers::toml
{
namespace
{

constexpr std::size_t minRoom = 4096;

// As many bytes as the file says that it has, and one more, at which its end shows.  The
// file may have more or fewer all the same: a pipe does not know, others grow.
std::size_t expectedRoom(int file)
{
    struct stat status = {};
    const bool known = fstat(file, &status) == 0 && S_ISREG(status.st_mode);
    return known ? std::max(static_cast<std::size_t>(status.st_size) + 1, minRoom) : minRoom;
}

ssize_t readSome(int file, char* bytes, std::size_t size)
{
    ssize_t count = 0;
    do
    {
        count = read(file, bytes, size);
    } while (count < 0 && errno == EINTR);
    return count;
}

} // namespace

std::optional<std::string> fileContent(const char* path)
{
    const int file = open(path, O_RDONLY | O_CLOEXEC);
    if (file < 0)
    {
        return std::nullopt;
    }
    const CleanupGuard fileGuard([file] { close(file); });
    std::string content(expectedRoom(file), '\0');
    std::size_t length = 0;
    for (;;)
    {
        const ssize_t count = readSome(file, content.data() + length, content.size() - length);
        if (count < 0)
        {
            return std::nullopt;
        }
        length += static_cast<std::size_t>(count);
        if (count == 0)
        {
            content.resize(length);
            return content;
        }
        if (length == content.size())
        {
            content.resize(2 * length);
        }
    }
}

} // namespace vorn::parsers::toml
