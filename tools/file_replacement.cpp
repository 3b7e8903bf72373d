#include "file_replacement.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

namespace tool
{
namespace
{

class Descriptor
{
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (number_ >= 0)
        {
            ::close(number_);
        }
    }

    bool isOpen() const { return number_ >= 0; }
    int number() const { return number_; }

    // Whether all that was written has arrived.
    bool close() { return ::close(std::exchange(number_, -1)) == 0; }

private:
    int number_;
};

// A new file, removed unless it is renamed.
class TemporaryFile
{
public:
    explicit TemporaryFile(const std::string& directory)
        : name_(directory + "/.vorn-toml-XXXXXX"), file_(mkostemp(name_.data(), O_CLOEXEC)),
          isThere_(file_.isOpen())
    {
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile()
    {
        if (isThere_)
        {
            unlink(name_.c_str());
        }
    }

    bool isOpen() const { return isThere_; }

    // (A change of the owner takes some bits from the mode.)
    bool takeOver(const struct stat& status) const
    {
        return fchown(file_.number(), status.st_uid, status.st_gid) == 0 &&
               fchmod(file_.number(), status.st_mode & 07777U) == 0;
    }

    bool write(std::string_view content)
    {
        while (!content.empty())
        {
            const ssize_t count = ::write(file_.number(), content.data(), content.size());
            if (count < 0 && errno != EINTR)
            {
                return false;
            }
            content.remove_prefix(count > 0 ? static_cast<std::size_t>(count) : 0);
        }
        return fsync(file_.number()) == 0 && file_.close();
    }

    bool rename(const std::string& name)
    {
        isThere_ = ::rename(name_.c_str(), name.c_str()) != 0;
        return !isThere_;
    }

private:
    std::string name_;
    Descriptor file_;
    bool isThere_;
};

struct Free
{
    void operator()(char* text) const { std::free(text); }
};

// The file itself, where symbolic links lead to it; empty if there is none.
std::string resolved(const std::string& name)
{
    const std::unique_ptr<char, Free> path(realpath(name.c_str(), nullptr));
    return path ? path.get() : "";
}

bool replace(const std::string& name, const std::string& content)
{
    const std::string path = resolved(name);
    struct stat status = {};
    if (path.empty() || stat(path.c_str(), &status) != 0 || access(path.c_str(), W_OK) != 0)
    {
        return false;
    }
    if (!S_ISREG(status.st_mode))
    {
        errno = EINVAL;
        return false;
    }
    const std::string directory = path.substr(0, path.rfind('/') + 1) + '.';
    TemporaryFile file(directory);
    if (!file.isOpen() || !file.takeOver(status) || !file.write(content) || !file.rename(path))
    {
        return false;
    }
    // The new name is on the disk, too.  (Not all file systems can be asked for that.)
    const Descriptor opened(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.isOpen())
    {
        fsync(opened.number());
    }
    return true;
}

} // namespace

int replaceFile(const std::string& name, const std::string& content)
{
    errno = 0;
    return replace(name, content) ? 0 : errno;
}

} // namespace tool
