// The stand-in's test of a file's existence.
#include <gtest/gtest.h>

#include <vorn/utils/file.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/temporary_directory.h"

namespace
{

struct Entry
{
    std::string name;
    bool existsFollowing;    // links stand for what they point to
    bool existsNotFollowing; // links stand for themselves
};

const std::vector<Entry> entries = {
    {"file", true, true},
    {"empty", true, true},
    {"secret", true, true},
    {"pipe", true, true},
    {"directory", false, false},
    {"directory/file", true, true},
    {"missing", false, false},
    {"missing/file", false, false},
    {"file/file", false, false},
    {"file/", false, false},
    {"", false, false},
    {"link to file", true, true},
    {"link to link", true, true},
    {"link to directory", false, true},
    {"link to nothing", false, true},
    {"link to itself", false, true},
};

class PlatformFile : public testing::Test
{
protected:
    void SetUp() override
    {
        using std::filesystem::create_symlink;
        directory_.write("file", "content");
        directory_.write("empty", "");
        ASSERT_EQ(chmod(directory_.write("secret", "content").c_str(), 0), 0);
        ASSERT_EQ(mkfifo(directory_.path("pipe").c_str(), 0600), 0);
        std::filesystem::create_directory(directory_.path("directory"));
        directory_.write("directory/file", "content");
        create_symlink("file", directory_.path("link to file"));
        create_symlink("link to file", directory_.path("link to link"));
        create_symlink("directory", directory_.path("link to directory"));
        create_symlink("nowhere", directory_.path("link to nothing"));
        create_symlink("link to itself", directory_.path("link to itself"));
    }

    const test::TemporaryDirectory directory_;
};

} // namespace

TEST_F(PlatformFile, existsUnlessItIsADirectoryOrMissing)
{
    for (const Entry& entry : entries)
    {
        SCOPED_TRACE(entry.name);
        // An absolute path does not start from the descriptor, whatever it is.
        const std::string path = entry.name.empty() ? "" : directory_.path(entry.name);
        EXPECT_EQ(fileExists(path.c_str(), true, AT_FDCWD), entry.existsFollowing);
        EXPECT_EQ(fileExists(path.c_str(), false, AT_FDCWD), entry.existsNotFollowing);
        EXPECT_EQ(fileExists(path.c_str(), true, -1), entry.existsFollowing);
    }
    EXPECT_TRUE(fileExists("/dev/null", true, AT_FDCWD));
    EXPECT_FALSE(fileExists("/", true, AT_FDCWD));
}

TEST_F(PlatformFile, isLookedForFromADirectory)
{
    const int descriptor = open(directory_.path("").c_str(), O_RDONLY | O_DIRECTORY);
    ASSERT_GE(descriptor, 0);
    for (const Entry& entry : entries)
    {
        SCOPED_TRACE(entry.name);
        EXPECT_EQ(fileExists(entry.name.c_str(), true, descriptor), entry.existsFollowing);
        EXPECT_EQ(fileExists(entry.name.c_str(), false, descriptor), entry.existsNotFollowing);
    }
    close(descriptor);
    EXPECT_FALSE(fileExists("file", true, -1));
}

TEST_F(PlatformFile, isLookedForFromTheWorkingDirectory)
{
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(directory_.path(""));
    EXPECT_TRUE(fileExists("file", true, AT_FDCWD));
    EXPECT_FALSE(fileExists("directory", true, AT_FDCWD));
    EXPECT_FALSE(fileExists("missing", true, AT_FDCWD));
    std::filesystem::current_path(before);
}
