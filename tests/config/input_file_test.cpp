// The files of a configuration, whatever the system says about them.  This program's read(),
// fstat64() and opendir() do as told.
#include "config/input_file.h"

#include "told_problems.h"

#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <vector>

using vorn::parsers::toml::FilePath;
using vorn::parsers::toml::Problem;
using vorn::parsers::toml::config::InputFile;
using vorn::parsers::toml::config::readInputs;

extern "C"
{
    ssize_t __real_read(int file, void* bytes, std::size_t most);
    int __real_fstat64(int file, struct stat64* status);
    DIR* __real_opendir(const char* path);
}

namespace
{

// How often the next calls fail.
int failingReads = 0;
int failingStats = 0;
int failingFolders = 0;
int failure = 0;

bool fails(int& count)
{
    if (count == 0)
    {
        return false;
    }
    --count;
    errno = failure;
    return true;
}

class InputFiles : public testing::Test
{
protected:
    // What is read, as "NAME: TEXT" each, and the problems.
    std::string readOf(const std::vector<std::string>& names, bool mayBeMissing)
    {
        std::vector<FilePath> paths;
        for (const std::string& name : names)
        {
            paths.emplace_back(directory.path(name));
        }
        std::vector<Problem> problems;
        std::string said;
        for (const InputFile& file : readInputs(paths, mayBeMissing, problems))
        {
            said += nameOf(file.path) + ": " + file.text + '\n';
        }
        for (Problem& problem : problems)
        {
            problem.file = nameOf(problem.file);
        }
        return said + test::told(problems);
    }

    test::TemporaryDirectory directory;

private:
    std::string nameOf(const std::string& path) const
    {
        return path.substr(directory.path("").size());
    }
};

} // namespace

extern "C" ssize_t __wrap_read(int file, void* bytes, std::size_t most)
{
    return fails(failingReads) ? -1 : __real_read(file, bytes, most);
}

extern "C" int __wrap_fstat64(int file, struct stat64* status)
{
    return fails(failingStats) ? -1 : __real_fstat64(file, status);
}

extern "C" DIR* __wrap_opendir(const char* path)
{
    return fails(failingFolders) ? nullptr : __real_opendir(path);
}

TEST_F(InputFiles, areReadInTheirOrder)
{
    directory.write("b", "one");
    directory.write("a", "");
    directory.write("large", std::string(100000, 'x'));
    EXPECT_EQ(readOf({"b", "a", "b"}, false), "b: one\na: \nb: one\n");
    EXPECT_EQ(readOf({"large"}, true), "large: " + std::string(100000, 'x') + '\n');
    EXPECT_EQ(readOf({}, false), "");
}

TEST_F(InputFiles, mayBeMissing)
{
    directory.write("a", "one");
    EXPECT_EQ(readOf({"none", "a", "none.d"}, true), "a: one\n");
    EXPECT_EQ(readOf({"none", "a"}, false),
              "a: one\nnone: cannot be read: No such file or directory\n");
    EXPECT_EQ(readOf({"a/b"}, true), "a/b: cannot be read: Not a directory\n");
}

TEST_F(InputFiles, areThoseOfAFolderThatEndWithToml)
{
    std::filesystem::create_directory(directory.path("app.d"));
    for (const char* const name : {"b.toml", "a.toml", "B.toml", ".toml", ".a.toml", "toml",
                                   "a.txt", "a.toml~", "a.toml.toml", "xtoml"})
    {
        directory.write("app.d/" + std::string(name), "x");
    }
    EXPECT_EQ(readOf({"app.d"}, true), "app.d/B.toml: x\napp.d/a.toml: x\napp.d/a.toml.toml: x\n"
                                       "app.d/b.toml: x\n");
    EXPECT_EQ(readOf({"app.d"}, false), "app.d: cannot be read: Is a directory\n");
}

TEST_F(InputFiles, areNoFoldersWithinFolders)
{
    std::filesystem::create_directories(directory.path("app.d/a.toml"));
    directory.write("app.d/b.toml", "x");
    std::filesystem::create_symlink("nowhere", directory.path("app.d/c.toml"));
    EXPECT_EQ(readOf({"app.d"}, true),
              "app.d/b.toml: x\napp.d/a.toml: cannot be read: Is a directory\n");
}

TEST_F(InputFiles, areReadOnAfterAnInterruption)
{
    directory.write("a", "one");
    failure = EINTR;
    failingReads = 2;
    EXPECT_EQ(readOf({"a"}, false), "a: one\n");
    EXPECT_EQ(failingReads, 0);
}

TEST_F(InputFiles, areProblemsIfTheSystemFails)
{
    directory.write("a", "one");
    std::filesystem::create_directory(directory.path("app.d"));
    failure = EIO;
    failingReads = 1;
    EXPECT_EQ(readOf({"a"}, true), "a: cannot be read: Input/output error\n");
    failingStats = 1;
    EXPECT_EQ(readOf({"a"}, true), "a: cannot be read: Input/output error\n");
    failingFolders = 1;
    EXPECT_EQ(readOf({"app.d", "a"}, true), "a: one\napp.d: cannot be read: Input/output error\n");
}
