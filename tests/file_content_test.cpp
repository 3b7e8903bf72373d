// Files' contents, whatever the system says about them.  This program's read(), pread(), fstat()
// and madvise() do as told.
#include <gtest/gtest.h>

#include "file_content.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <fstream>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "support/temporary_directory.h"

using test::TemporaryDirectory;
using vorn::parsers::toml::FileContent;

extern "C"
{
    ssize_t __real_read(int file, void* bytes, std::size_t most);
    ssize_t __real_pread(int file, void* bytes, std::size_t most, off_t position);
    int __real_fstat(int file, struct stat* status);
    int __real_madvise(void* begin, std::size_t size, int advice);
}

namespace
{

std::function<ssize_t(int, void*, std::size_t)> doRead;
std::function<ssize_t(int, void*, std::size_t, off_t)> doReadAt;
std::function<int(int, struct stat*)> doStat;
std::function<int(void*, std::size_t, int)> doAdvise;

// All that is less than this is read at a position, in one go.
constexpr std::size_t fewBytes = 2048;

class FileContentTest : public testing::Test
{
protected:
    FileContentTest() { reset(); }
    ~FileContentTest() override { reset(); }

    std::string write(const std::string& content) const
    {
        return directory_.write("file", content);
    }

    std::string makePipe() const
    {
        const std::string path = directory_.path("pipe");
        EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
        return path;
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
    static void reset()
    {
        doRead = __real_read;
        doReadAt = __real_pread;
        doStat = __real_fstat;
        doAdvise = __real_madvise;
    }

    TemporaryDirectory directory_;
};

std::optional<std::string> contentOf(const std::string& path)
{
    const FileContent content(path.c_str());
    if (!content.isRead())
    {
        return std::nullopt;
    }
    EXPECT_EQ(content.text().data()[content.text().size()], '\0');
    return std::string(content.text());
}

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

extern "C" ssize_t __wrap_pread(int file, void* bytes, std::size_t most, off_t position)
{
    return doReadAt(file, bytes, most, position);
}

extern "C" int __wrap_fstat(int file, struct stat* status)
{
    return doStat(file, status);
}

extern "C" int __wrap_madvise(void* begin, std::size_t size, int advice)
{
    return doAdvise(begin, size, advice);
}

TEST_F(FileContentTest, isWholeAtAnySize)
{
    for (const std::size_t size :
         {0, 1, 2046, 2047, 2048, 2049, 4094, 4095, 4096, 4097, 65536, 131072, 1'000'000})
    {
        const std::string text = numbers(size);
        EXPECT_TRUE(contentOf(write(text)) == text) << size;
    }
}

TEST_F(FileContentTest, ofASmallFileIsAskedForOnce)
{
    int reads = 0;
    doReadAt = [&reads](int file, void* bytes, std::size_t most, off_t position)
    {
        ++reads;
        return __real_pread(file, bytes, most, position);
    };
    doRead = [](int, void*, std::size_t) -> ssize_t { throw std::logic_error("another read"); };
    doStat = [](int, struct stat*) -> int { throw std::logic_error("a look at the size"); };
    for (const std::size_t size : {std::size_t{0}, std::size_t{1024}, fewBytes - 1})
    {
        reads = 0;
        EXPECT_TRUE(contentOf(write(numbers(size))) == numbers(size));
        EXPECT_EQ(reads, 1);
    }
}

TEST_F(FileContentTest, isReadInOneGo)
{
    int reads = 0;
    doRead = [&reads](int file, void* bytes, std::size_t most)
    {
        ++reads;
        return __real_read(file, bytes, most);
    };
    for (const std::size_t size : {fewBytes, std::size_t{10'000}, std::size_t{1'000'000}})
    {
        reads = 0;
        EXPECT_TRUE(contentOf(write(numbers(size))) == numbers(size));
        EXPECT_EQ(reads, 1);
    }
}

// Nobody has to heed the advice, or to understand it.
TEST_F(FileContentTest, ofALargeFileMayHaveLargePages)
{
    const std::string text = numbers(5'000'000);
    const std::string path = write(text);
    std::vector<std::size_t> sizes;
    doAdvise = [&sizes](void* begin, std::size_t size, int advice)
    {
        sizes.push_back(size);
        const int page = getpagesize();
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(begin) % static_cast<unsigned>(page), 0u);
        EXPECT_EQ(advice, MADV_HUGEPAGE);
        return __real_madvise(begin, size, advice);
    };
    EXPECT_TRUE(contentOf(path) == text);
    ASSERT_EQ(sizes.size(), 1u);
    EXPECT_LE(sizes[0], text.size() + 1);
    EXPECT_GT(sizes[0], text.size() - 100'000);

    doAdvise = [](void*, std::size_t, int) { return -1; };
    EXPECT_TRUE(contentOf(path) == text);
    doAdvise = [](void*, std::size_t, int) -> int { throw std::logic_error("not large"); };
    EXPECT_TRUE(contentOf(write(numbers(1'000'000))) == numbers(1'000'000));
}

// As it is when the file grows or shrinks meanwhile, and for those of /proc.
TEST_F(FileContentTest, isWholeWhereTheReportedSizeIsWrong)
{
    for (const std::size_t size : {0, 1, 5000, 100'000})
    {
        const std::string text = numbers(size);
        const std::string path = write(text);
        for (const off_t reported : {0, 1, 4095, 4096, 4999, 5001, 200'000})
        {
            SCOPED_TRACE(std::to_string(size) + " " + std::to_string(reported));
            reportSize(reported);
            EXPECT_TRUE(contentOf(path) == text);
        }
    }
}

TEST_F(FileContentTest, isWholeWhereTheSizeIsUnknown)
{
    doStat = [](int, struct stat*) { return -1; };
    const std::string text = numbers(100'000);
    EXPECT_TRUE(contentOf(write(text)) == text);
}

// A size that only seems to be right: the file grows while it is read in pieces.
TEST_F(FileContentTest, isWholeWhereItGrowsBetweenPieces)
{
    const std::string text = numbers(9000);
    const std::string path = write(text);
    for (const off_t reported : {3000, 6000})
    {
        reportSize(reported);
        doRead = [](int file, void* bytes, std::size_t most)
        { return __real_read(file, bytes, std::min<std::size_t>(most, 1500)); };
        EXPECT_TRUE(contentOf(path) == text) << reported;
    }
}

TEST_F(FileContentTest, isWholeWhereReadingStopsAndGoesOn)
{
    const std::string text = numbers(10'000);
    const std::string path = write(text);
    int reads = 0;
    const auto isInterrupted = [&reads]
    {
        errno = EINTR;
        return ++reads % 3 != 0;
    };
    doReadAt = [&](int file, void* bytes, std::size_t most, off_t position)
    { return isInterrupted() ? -1 : __real_pread(file, bytes, most, position); };
    doRead = [&](int file, void* bytes, std::size_t most)
    { return isInterrupted() ? -1 : __real_read(file, bytes, std::min<std::size_t>(most, 7)); };
    EXPECT_TRUE(contentOf(path) == text);
    EXPECT_GT(reads, 3000);

    reads = 0;
    EXPECT_EQ(contentOf(write("a = 1\n")), "a = 1\n");
    EXPECT_EQ(reads, 3);
}

TEST_F(FileContentTest, ofAPipeIsWholeWhereItComesInPieces)
{
    const std::string path = makePipe();
    for (const std::size_t size : {0, 1, 100, 2048, 5000, 100'000})
    {
        const std::string text = numbers(size);
        std::thread writer([&path, &text] { std::ofstream(path) << text; });
        doRead = [](int file, void* bytes, std::size_t most)
        { return __real_read(file, bytes, std::min<std::size_t>(most, 7)); };
        EXPECT_TRUE(contentOf(path) == text) << size;
        writer.join();
    }
}

TEST_F(FileContentTest, isMissingWhereReadingFailsAtTheStart)
{
    const std::string path = write("a = 1\n");
    doReadAt = [](int, void*, std::size_t, off_t)
    {
        errno = EIO;
        return ssize_t{-1};
    };
    EXPECT_EQ(contentOf(path), std::nullopt);
}

TEST_F(FileContentTest, isMissingWhereReadingFailsInTheMiddle)
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
    EXPECT_EQ(contentOf(path), std::nullopt);
    EXPECT_EQ(reads, 4);
}

TEST_F(FileContentTest, isMissingWhereThereIsNoFile)
{
    EXPECT_EQ(contentOf("/nowhere/at/all"), std::nullopt);
    EXPECT_EQ(contentOf("/"), std::nullopt); // opens, but cannot be read
}

// A program that is started meanwhile, on another thread, does not get the file.
TEST_F(FileContentTest, isNotLeftToStartedPrograms)
{
    int flags = 0;
    doReadAt = [&flags](int file, void* bytes, std::size_t most, off_t position)
    {
        flags = fcntl(file, F_GETFD);
        return __real_pread(file, bytes, most, position);
    };
    EXPECT_EQ(contentOf(write("a = 1\n")), "a = 1\n");
    EXPECT_EQ(flags, FD_CLOEXEC);
}

TEST_F(FileContentTest, leavesNoFileOpen)
{
    const std::string path = write(numbers(10'000));
    const int before = open("/dev/null", O_RDONLY | O_CLOEXEC);
    close(before);
    contentOf(write("a = 1\n"));
    contentOf(path);
    contentOf("/");
    doRead = [](int, void*, std::size_t) { return ssize_t{-1}; };
    contentOf(path);
    const int after = open("/dev/null", O_RDONLY | O_CLOEXEC);
    close(after);
    EXPECT_EQ(after, before);
}
