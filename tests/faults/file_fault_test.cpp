// Files that change or fail while a document is read from them.  This program's open(), read()
// and pread() do as told.
#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <functional>
#include <thread>

#include "descriptors.h"
#include "support/driver_log.h"
#include "support/large_documents.h"
#include "support/reading.h"
#include "support/temporary_directory.h"

using test::Reading;
using vorn::parsers::toml::FilePath;

extern "C"
{
    int __real_open(const char* path, int flags);
    ssize_t __real_read(int file, void* bytes, std::size_t most);
    ssize_t __real_pread(int file, void* bytes, std::size_t most, off_t position);
}

namespace
{

// Called before the document's file is opened, and before each time that it is read, with
// how often that has been done.
std::function<void()> beforeOpening;
std::function<void(int)> beforeReading;
// How the reading with this number fails; 0: it does not.
int failingRead = 0;
std::size_t mostBytes = 0; // that one read() gives, not pread(); 0: as many as are asked for
int reads = 0;

class FileFault : public testing::Test
{
protected:
    FileFault() { reset(); }
    ~FileFault() override
    {
        reset();
        EXPECT_EQ(test::lowestFreeDescriptor(), descriptor_);
    }

    std::string write(const std::string& content) const
    {
        return directory_.write("file", content);
    }

private:
    static void reset()
    {
        beforeOpening = {};
        beforeReading = {};
        failingRead = 0;
        mostBytes = 0;
        reads = 0;
    }

    test::TemporaryDirectory directory_;
    int descriptor_ = test::lowestFreeDescriptor();
};

void expectNotOpened(const std::string& path, const Reading& reading)
{
    EXPECT_FALSE(reading.accepted);
    EXPECT_EQ(reading.events, test::Events());
    test::expectDriverLog(reading.lines, {"Failed to open file; " + path});
}

void expectNotOpened(const std::string& path)
{
    expectNotOpened(path, test::read(FilePath(path)));
}

// What the file gives is what this text gives.
void expectRead(const std::string& path, const std::string& text)
{
    const Reading fromFile = test::read(FilePath(path));
    const Reading fromText = test::read(text);
    EXPECT_EQ(fromFile.accepted, fromText.accepted);
    EXPECT_TRUE(fromFile.events == fromText.events);
    ASSERT_EQ(fromFile.lines.size(), fromText.lines.size());
    for (std::size_t index = 0; index < fromFile.lines.size(); ++index)
    {
        EXPECT_TRUE(fromFile.lines[index].message == fromText.lines[index].message);
    }
}

int documentFile = -1;

// Counts a reading of the document; returns whether it may go on.
bool canRead(int file)
{
    if (file != documentFile)
    {
        return true;
    }
    ++reads;
    if (beforeReading)
    {
        beforeReading(reads);
    }
    errno = EIO;
    return reads != failingRead;
}

const std::string document = test::mixedDocument(20'000);

} // namespace

extern "C" int __wrap_open(const char* path, int flags)
{
    if (beforeOpening)
    {
        beforeOpening();
    }
    documentFile = __real_open(path, flags);
    return documentFile;
}

extern "C" ssize_t __wrap_read(int file, void* bytes, std::size_t most)
{
    return canRead(file)
               ? __real_read(file, bytes, mostBytes == 0 ? most : std::min(most, mostBytes))
               : -1;
}

extern "C" ssize_t __wrap_pread(int file, void* bytes, std::size_t most, off_t position)
{
    return canRead(file) ? __real_pread(file, bytes, most, position) : -1;
}

TEST_F(FileFault, disappearsBeforeItIsOpened)
{
    const std::string path = write(document);
    beforeOpening = [&path] { std::filesystem::remove(path); };
    expectNotOpened(path);
}

TEST_F(FileFault, becomesADirectoryBeforeItIsOpened)
{
    const std::string path = write(document);
    beforeOpening = [&path]
    {
        std::filesystem::remove(path);
        std::filesystem::create_directory(path);
    };
    expectNotOpened(path);
}

TEST_F(FileFault, isReplacedBeforeItIsOpened)
{
    const std::string path = write(document);
    beforeOpening = [&path]
    {
        beforeOpening = {};
        std::ofstream(path) << "a = 1";
    };
    expectRead(path, "a = 1");
}

TEST_F(FileFault, disappearsWhileItIsRead)
{
    const std::string path = write(document);
    mostBytes = 1000;
    beforeReading = [&path](int number)
    {
        if (number == 3)
        {
            std::filesystem::remove(path);
        }
    };
    expectRead(path, document);
}

// A document of which less is left is one that is cut off; what has been read stays.
TEST_F(FileFault, shrinksWhileItIsRead)
{
    mostBytes = 1000;
    for (const std::size_t left : {0u, 999u, 2000u, 2500u, 3000u, 15'000u})
    {
        SCOPED_TRACE(left);
        const std::string path = write(document);
        reads = 0;
        beforeReading = [&path, left](int number)
        {
            // After the first look and two pieces.
            if (number == 4)
            {
                std::filesystem::resize_file(path, left);
            }
        };
        expectRead(path, document.substr(0, std::max<std::size_t>(left, 2000)));
    }
}

TEST_F(FileFault, growsWhileItIsRead)
{
    for (const std::size_t added : {1u, 1000u, 100'000u})
    {
        SCOPED_TRACE(added);
        const std::string path = write(document);
        const std::string more = "# " + std::string(added, 'x') + "\nb = @\n";
        reads = 0;
        beforeReading = [&path, &more](int number)
        {
            // Its size has been asked for.
            if (number == 2)
            {
                std::ofstream(path, std::ios::app) << more;
            }
        };
        expectRead(path, document + more);
    }
}

TEST_F(FileFault, failsAtAnyReading)
{
    const std::string path = write(document);
    mostBytes = 4000;
    for (failingRead = 1; failingRead <= 6; ++failingRead)
    {
        SCOPED_TRACE(failingRead);
        reads = 0;
        expectNotOpened(path);
        EXPECT_EQ(reads, failingRead);
    }
    failingRead = 0;
    expectRead(path, document);
}

TEST_F(FileFault, failsOrChangesAtTheOnlyReading)
{
    const std::string path = write("a = 1\n");
    failingRead = 1;
    expectNotOpened(path);
    EXPECT_EQ(reads, 1);

    failingRead = 0;
    for (const std::size_t size : {0u, 3u, 100u, 2000u, 2047u, 2048u, 5000u})
    {
        SCOPED_TRACE(size);
        const std::string changed = document.substr(0, size);
        reads = 0;
        beforeReading = [&](int number)
        {
            if (number == 1)
            {
                std::ofstream(path) << changed;
            }
        };
        expectRead(path, changed);
    }
}

TEST_F(FileFault, cannotBeOpenedWhereAllDescriptorsAreTaken)
{
    const std::string path = write(document);
    rlimit limits = {};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &limits), 0);
    const rlim_t usual = limits.rlim_cur;
    beforeOpening = [&limits]
    {
        limits.rlim_cur = 3;
        setrlimit(RLIMIT_NOFILE, &limits);
    };
    const Reading reading = test::read(FilePath(path));
    beforeOpening = {};
    limits.rlim_cur = usual;
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &limits), 0);
    expectNotOpened(path, reading);
    expectRead(path, document);
}

TEST_F(FileFault, isTheNullDeviceWhichIsAnEmptyDocument)
{
    expectRead("/dev/null", "");
}

// A writer that ends in the middle leaves a document that is cut off there.
TEST_F(FileFault, isAPipeThatIsClosedEarly)
{
    const std::string path = write("") + ".pipe";
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    for (const std::size_t written : {0u, 1u, 5000u, 15'003u})
    {
        SCOPED_TRACE(written);
        const std::string part = document.substr(0, written);
        std::thread writer([&path, &part] { std::ofstream(path) << part; });
        expectRead(path, part);
        writer.join();
    }
}
