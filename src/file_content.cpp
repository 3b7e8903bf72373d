#include "file_content.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <utility>

namespace vorn::parsers::toml
{
namespace
{

class OpenFile
{
public:
    explicit OpenFile(const char* path) : number_(open(path, O_RDONLY | O_CLOEXEC)) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile()
    {
        if (number_ >= 0)
        {
            close(number_);
        }
    }

    int number() const { return number_; }

private:
    const int number_;
};

template <typename Call>
ssize_t uninterrupted(Call call)
{
    ssize_t count = 0;
    do
    {
        count = call();
    } while (count < 0 && errno == EINTR);
    return count;
}

// As many bytes as the file says that it has; 0 if it does not know, as a pipe does not.
std::size_t reportedSize(int file)
{
    struct stat status = {};
    const bool known = fstat(file, &status) == 0 && S_ISREG(status.st_mode);
    return known ? static_cast<std::size_t>(status.st_size) : 0;
}

// Has the system put large pages under a large block where it has some: reading 10 MB for the
// first time takes 2 ms less then, of 4.5 beyond the time for a text in memory.
void allowLargePages([[maybe_unused]] char* bytes, [[maybe_unused]] std::size_t size)
{
#ifdef MADV_HUGEPAGE
    // So that there is a whole one in it.
    constexpr std::size_t large = std::size_t{4} * 1024 * 1024;
    // What is advised on starts with a page, of whatever size the usual ones are.
    constexpr std::uintptr_t boundary = std::uintptr_t{64} * 1024;
    if (size >= large)
    {
        const std::uintptr_t before = -reinterpret_cast<std::uintptr_t>(bytes) % boundary;
        madvise(bytes + before, size - before, MADV_HUGEPAGE);
    }
#endif
}

} // namespace

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): not initialised, as meant
FileContent::FileContent(const char* path)
{
    const OpenFile file(path);
    if (file.number() < 0)
    {
        return;
    }
    // Reading at a position is for files that have all their bytes already: of these, less than
    // was asked for is all there is.  So few bytes are in one page of the system's cache, which is
    // there as a whole or not at all.  Pipes and terminals, which give what they have and then
    // more, know no positions.
    const ssize_t count =
        uninterrupted([&] { return pread(file.number(), few_, sizeof(few_), 0); });
    if (count < 0 ? errno == ESPIPE : static_cast<std::size_t>(count) == sizeof(few_))
    {
        readRest(file.number());
    }
    else if (count >= 0)
    {
        few_[count] = '\0';
        text_ = {few_, static_cast<std::size_t>(count)};
    }
}

// Reads the file from its start, up to where nothing comes any more: it may have more or fewer
// bytes than it says.
void FileContent::readRest(int file)
{
    const std::size_t expected = reportedSize(file);
    // One more, at which the end shows.
    std::size_t room = std::max(expected + 1, 2 * sizeof(few_));
    many_.reset(new char[room]);
    allowLargePages(many_.get(), room);
    for (std::size_t length = 0;;)
    {
        char* const begin = many_.get();
        const ssize_t count =
            uninterrupted([&] { return read(file, begin + length, room - length); });
        if (count < 0)
        {
            return;
        }
        length += static_cast<std::size_t>(count);
        if (length == room)
        {
            std::unique_ptr<char[]> larger(new char[2 * room]);
            std::memcpy(larger.get(), begin, length);
            many_ = std::move(larger);
            room *= 2;
        }
        // All that the file says that it has, in one go and with room for more, is its end, too.
        else if (count == 0 || (length == expected && length == static_cast<std::size_t>(count)))
        {
            begin[length] = '\0';
            text_ = {begin, length};
            return;
        }
    }
}

} // namespace vorn::parsers::toml
