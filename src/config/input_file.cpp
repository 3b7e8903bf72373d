#include "input_file.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <memory>
#include <string_view>
#include <system_error>
#include <utility>

namespace vorn::parsers::toml::config
{
namespace
{

class Descriptor
{
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor()
    {
        if (number_ >= 0)
        {
            close(number_);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    int number() const { return number_; }

private:
    int number_;
};

// Reads the rest of a file.  Returns 0, or the error.
int readRest(int descriptor, std::string& text)
{
    std::array<char, 16384> block{};
    for (;;)
    {
        const ssize_t count = read(descriptor, block.data(), block.size());
        if (count > 0)
        {
            text.append(block.data(), static_cast<std::size_t>(count));
        }
        else if (count == 0)
        {
            return 0;
        }
        else if (errno != EINTR)
        {
            return errno;
        }
    }
}

int readFile(const std::string& path, std::string& text)
{
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat status = {};
    if (file.number() < 0 || fstat(file.number(), &status) != 0)
    {
        return errno;
    }
    if (status.st_size > 0)
    {
        text.reserve(static_cast<std::size_t>(status.st_size));
    }
    return readRest(file.number(), text);
}

bool isFolder(const std::string& path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool isToml(std::string_view name)
{
    constexpr std::string_view ending = ".toml";
    return name.size() > ending.size() && name[0] != '.' &&
           name.substr(name.size() - ending.size()) == ending;
}

// The paths of the files in a folder.  Returns 0, or the error.
int listFolder(const std::string& path, std::vector<std::string>& files)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(path.c_str()), closedir);
    if (folder == nullptr)
    {
        return errno;
    }
    errno = 0;
    // NOLINTNEXTLINE(concurrency-mt-unsafe): no other thread reads from this folder.
    while (const dirent* const entry = readdir(folder.get()))
    {
        if (isToml(entry->d_name))
        {
            files.push_back(path + '/' + entry->d_name);
        }
    }
    std::sort(files.begin(), files.end());
    return errno;
}

// Collects the files, and what is wrong with those that cannot be read.
class Inputs
{
public:
    explicit Inputs(std::vector<Problem>& problems) : problems_(problems) {}

    void add(const std::string& path, bool mayBeMissing)
    {
        InputFile file{path, {}};
        const int error = readFile(path, file.text);
        if (error == 0)
        {
            files_.push_back(std::move(file));
        }
        else if (error != ENOENT || !mayBeMissing)
        {
            report(path, error);
        }
    }

    void addFolder(const std::string& path)
    {
        std::vector<std::string> files;
        if (const int error = listFolder(path, files); error != 0)
        {
            report(path, error);
        }
        for (const std::string& file : files)
        {
            add(file, true);
        }
    }

    std::vector<InputFile> take() { return std::move(files_); }

private:
    void report(const std::string& path, int error)
    {
        Problem problem;
        problem.file = path;
        problem.message = "cannot be read: " + std::generic_category().message(error);
        problems_.push_back(std::move(problem));
    }

    std::vector<Problem>& problems_;
    std::vector<InputFile> files_;
};

} // namespace

std::vector<InputFile> readInputs(const std::vector<FilePath>& paths, bool mayBeMissing,
                                  std::vector<Problem>& problems)
{
    Inputs inputs(problems);
    for (const FilePath& path : paths)
    {
        if (mayBeMissing && isFolder(path.string()))
        {
            inputs.addFolder(path.string());
        }
        else
        {
            inputs.add(path.string(), mayBeMissing);
        }
    }
    return inputs.take();
}

} // namespace vorn::parsers::toml::config
