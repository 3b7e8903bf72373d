// Files' contents, whatever the system says about them.  This program's read() and fstat()
// do as told.
#include <gtest/gtest.h>

#include "file_content.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <string>

#include "support/temporary_directory.h"

using test::TemporaryDirectory;
using vorn::parsers::toml::fileContent;

extern "C"
{
    ssize_t __real_read(int file, void* bytes, std::size_t most);
    int __real_fstat(int file, struct stat* status);
}

namespace
{

std::function<ssize_t(int, void*, std::size_t)> doRead = __real_read;
std::function<int(int, struct stat*)> doStat = __real_fstat;

class FileContent : public testing::Test
{
protected:
    FileContent()
    {
        doRead = __real_read;
        doStat = __real_fstat;
    }
    ~FileContent() override
    {
        doRead = __real_read;
        doStat = __real_fstat;
    }

    std::string write(const std::string& content) const
    {
        return directory_.write("file", content);
    }

    // The file's size is reported to be this.
    static void reportSize(off_t size)
    {
        doStat = [size](int file, struct stat* status)
        {
            const int result = __real_fstat(file, status);
            status->st_size = size;
            return result;
        };
    }

private:
    TemporaryDirectory directory_;
};

std::string numbers(std::size_t size)
{
    std::string text;
    for (int number = 0; text.size() < size; ++number)
    {
        text += std::to_string(number) + ' ';
    }
    text.resize(size);
    return text;
}

} // namespace

extern "C" ssize_t __wrap_read(int file, void* bytes, std::size_t most)
{
    return doRead(file, bytes, most);
}

extern "C" int __wrap_fstat(int file, struct stat* status)
{
    return doStat(file, status);
}

TEST_F(FileContent, isWholeAtAnySize)
{
    for (const std::size_t size : {0, 1, 4094, 4095, 4096, 4097, 65536, 1'000'000})
    {
        const std::string text = numbers(size);
        EXPECT_TRUE(fileContent(write(text).c_str()) == text) << size;
    }
}

TEST_F(FileContent, isReadInOneGo)
{
    const std::string text = numbers(1'000'000);
    const std::string path = write(text);
    int reads = 0;
    doRead = [&reads](int file, void* bytes, std::size_t most)
    {
        ++reads;
        return __real_read(file, bytes, most);
    };
    EXPECT_TRUE(fileContent(path.c_str()) == text);
    EXPECT_EQ(reads, 2); // the second one finds the end
}

// As it is when the file grows or shrinks meanwhile, and for those of /proc.
TEST_F(FileContent, isWholeWhereTheReportedSizeIsWrong)
{
    for (const std::size_t size : {0, 1, 5000, 100'000})
    {
        const std::string text = numbers(size);
        const std::string path = write(text);
        for (const off_t reported : {0, 1, 4095, 4096, 4999, 5001, 200'000})
        {
            SCOPED_TRACE(std::to_string(size) + " " + std::to_string(reported));
            reportSize(reported);
            EXPECT_TRUE(fileContent(path.c_str()) == text);
        }
    }
}

TEST_F(FileContent, isWholeWhereTheSizeIsUnknown)
{
    doStat = [](int, struct stat*) { return -1; };
    const std::string text = numbers(100'000);
    EXPECT_TRUE(fileContent(write(text).c_str()) == text);
}

TEST_F(FileContent, isWholeWhereReadingStopsAndGoesOn)
{
    const std::string text = numbers(10'000);
    const std::string path = write(text);
    int reads = 0;
    doRead = [&reads](int file, void* bytes, std::size_t most)
    {
        if (++reads % 3 == 0)
        {
            errno = EINTR;
            return ssize_t{-1};
        }
        return __real_read(file, bytes, std::min<std::size_t>(most, 7));
    };
    EXPECT_TRUE(fileContent(path.c_str()) == text);
}

TEST_F(FileContent, isMissingWhereReadingFailsInTheMiddle)
{
    const std::string path = write(numbers(10'000));
    int reads = 0;
    doRead = [&reads](int file, void* bytes, std::size_t most)
    {
        if (++reads > 3)
        {
            errno = EIO;
            return ssize_t{-1};
        }
        return __real_read(file, bytes, std::min<std::size_t>(most, 1000));
    };
    EXPECT_EQ(fileContent(path.c_str()), std::nullopt);
    EXPECT_EQ(reads, 4);
}

TEST_F(FileContent, isMissingWhereThereIsNoFile)
{
    EXPECT_EQ(fileContent("/nowhere/at/all"), std::nullopt);
    EXPECT_EQ(fileContent("/"), std::nullopt); // opens, but cannot be read
}

// A program that is started meanwhile, on another thread, does not get the file.
TEST_F(FileContent, isNotLeftToStartedPrograms)
{
    int flags = 0;
    doRead = [&flags](int file, void* bytes, std::size_t most)
    {
        flags = fcntl(file, F_GETFD);
        return __real_read(file, bytes, most);
    };
    EXPECT_EQ(fileContent(write("a = 1\n").c_str()), "a = 1\n");
    EXPECT_EQ(flags, FD_CLOEXEC);
}

TEST_F(FileContent, leavesNoFileOpen)
{
    const std::string path = write("a = 1\n");
    const int before = open("/dev/null", O_RDONLY | O_CLOEXEC);
    close(before);
    fileContent(path.c_str());
    fileContent("/");
    doRead = [](int, void*, std::size_t) { return ssize_t{-1}; };
    fileContent(path.c_str());
    const int after = open("/dev/null", O_RDONLY | O_CLOEXEC);
    close(after);
    EXPECT_EQ(after, before);
}
