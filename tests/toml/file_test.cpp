// Documents in files.
#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <thread>
#include <type_traits>

#include "support/driver_log.h"
#include "support/event_lists.h"
#include "support/reading.h"
#include "support/temporary_directory.h"

using namespace std::string_literals;
using namespace test;
using vorn::parsers::toml::FilePath;
using vorn::parsers::toml::visitTomlTree;

namespace
{

std::string noSuchFile(const std::string& path)
{
    return "No such file: " + path;
}

std::string notOpened(const std::string& path)
{
    return "Failed to open file; " + path;
}

// A path is refused with one line, and no call of the visitor.
void expectRefused(const Reading& reading, const std::string& message)
{
    EXPECT_FALSE(reading.accepted);
    EXPECT_EQ(reading.events, Events());
    expectDriverLog(reading.lines, {message});
    EXPECT_EQ(reading.standardError, "");
}

void expectRefused(const FilePath& path, const std::string& message)
{
    SCOPED_TRACE(path.string());
    expectRefused(read(path), message);
}

// What a file gives, and what its content gives as a text, is the same.
void expectSameAsText(const std::string& path, const std::string& content)
{
    const Reading fromFile = read(FilePath(path));
    const Reading fromText = read(content);
    EXPECT_EQ(fromFile.accepted, fromText.accepted);
    EXPECT_TRUE(fromFile.events == fromText.events);
    ASSERT_EQ(fromFile.lines.size(), fromText.lines.size());
    for (std::size_t index = 0; index < fromFile.lines.size(); ++index)
    {
        EXPECT_TRUE(fromFile.lines[index].message == fromText.lines[index].message);
    }
}

// Takes the rights of root away from the process while it lives.
class OrdinaryUser
{
public:
    OrdinaryUser() : isSet_(geteuid() != 0 || seteuid(65534) == 0) {}
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser()
    {
        if (geteuid() != getuid() && seteuid(getuid()) != 0)
        {
            std::abort();
        }
    }

    bool isSet() const { return isSet_; }

private:
    bool isSet_;
};

} // namespace

TEST(TomlFile, isReadWholeAndVisitedLikeAText)
{
    const TemporaryDirectory directory;
    for (const std::string& content : {
             ""s,
             "\n"s,
             "a = 1\n"s,
             "a = 1"s,
             "a = 1\r\n[b]\r\n\r\nc = '''x\r\ny'''\r\n"s,
             "a = \"x\0y\"\n# \0\nb = 2\n"s,
             "\0"s,
             "a = '\xc3\xa9'\n\xc3\xa9\n"s,
             "\xef\xbb\xbf"
             "a = 1\n"s,
             "a = \x1a\nb = '\x1a'\n"s,
             "a b\n"s,
         })
    {
        SCOPED_TRACE(testing::PrintToString(content));
        expectSameAsText(directory.write("document.toml", content), content);
    }
}

TEST(TomlFile, ofAnySizeIsReadWhole)
{
    const TemporaryDirectory directory;
    constexpr std::size_t block = 64 * 1024;
    constexpr std::size_t large = 3'000'000;
    for (const std::size_t size : {block - 1, block, block + 1, 2 * block, large})
    {
        SCOPED_TRACE(size);
        std::string content = "a = '";
        for (std::size_t index = 0; content.size() < size - 2; ++index)
        {
            content += std::to_string(index) + ' ';
        }
        content.resize(size - 2);
        content += "'\n";
        expectSameAsText(directory.write("large.toml", content), content);
        EXPECT_TRUE(read(content).accepted);
    }
}

TEST(TomlFile, thatIsEmptyIsAnEmptyDocument)
{
    const TemporaryDirectory directory;
    const Reading reading = read(FilePath(directory.write("empty.toml", "")));
    EXPECT_TRUE(reading.accepted);
    EXPECT_EQ(reading.events, document({}));
    expectDriverLog(reading.lines, {});
}

TEST(TomlFile, mayBeALinkOrAPipe)
{
    const TemporaryDirectory directory;
    const std::string link = directory.path("link");
    std::filesystem::create_symlink(directory.write("a.toml", "a = 1\n"), link);
    const Events expected = document({pair(bare("a"), integer("1"))});
    EXPECT_EQ(read(FilePath(link)).events, expected);

    const std::string pipe = directory.path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    std::thread writer(
        [&pipe]
        {
            std::ofstream file(pipe);
            file << "a =" << std::flush << " 1\n";
        });
    EXPECT_EQ(read(FilePath(pipe)).events, expected);
    writer.join();
}

TEST(TomlFile, thatIsMissingIsRefused)
{
    const TemporaryDirectory directory;
    const std::string link = directory.path("dangling");
    std::filesystem::create_symlink("nowhere", link);
    const std::string file = directory.write("a.toml", "a = 1\n");
    for (const std::string& path : {directory.path("missing.toml"), directory.path("no/a.toml"),
                                    directory.path("%s%n"), link, file + "/b", ""s})
    {
        expectRefused(FilePath(path), noSuchFile(path));
    }
}

TEST(TomlFile, thatIsADirectoryIsRefused)
{
    const TemporaryDirectory directory;
    const std::string path = directory.path("directory.toml");
    std::filesystem::create_directory(path);
    expectRefused(FilePath(path), noSuchFile(path));
}

TEST(TomlFile, thatMayNotBeReadIsRefused)
{
    const TemporaryDirectory directory;
    const std::string path = directory.write("secret.toml", "a = 1\n");
    ASSERT_EQ(chmod(directory.path("").c_str(), 0755), 0);
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    Reading reading;
    {
        const OrdinaryUser user;
        if (!user.isSet())
        {
            GTEST_SKIP() << "root reads every file, and cannot be another user here";
        }
        reading = read(FilePath(path));
    }
    expectRefused(reading, notOpened(path));
}

TEST(TomlFile, thatCannotBeOpenedIsRefused)
{
    // A socket is there, but open() fails for it, whoever calls.
    const TemporaryDirectory directory;
    const std::string path = directory.path("socket");
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    ASSERT_LT(path.size(), sizeof(address.sun_path));
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_GE(listener, 0);
    ASSERT_EQ(bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    expectRefused(FilePath(path), notOpened(path));
    close(listener);
}

TEST(TomlFile, whoseReadingFailsIsRefused)
{
    // It can be opened, but there is nothing to read at its start.
    expectRefused(FilePath("/proc/self/mem"), notOpened("/proc/self/mem"));
}

TEST(TomlFile, pathsAreRelativeToTheWorkingDirectory)
{
    const TemporaryDirectory directory;
    directory.write("a.toml", "a = 1\n");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(directory.path(""));
    const Reading reading = read(FilePath("a.toml"));
    std::filesystem::current_path(before);
    EXPECT_TRUE(reading.accepted);
    EXPECT_EQ(reading.events, document({pair(bare("a"), integer("1"))}));
}

TEST(TomlFile, pathsAreMadeOfCharactersAndOfStrings)
{
    const std::string longPath(300, 'p');
    for (const std::string& path : {""s, "a"s, "/etc/app.toml"s, longPath})
    {
        for (const FilePath& made : {FilePath(path), FilePath(path.c_str())})
        {
            EXPECT_EQ(made.string(), path);
            EXPECT_STREQ(made.c_str(), path.c_str());
            // The first member begins with a pointer to the characters.
            const char* characters = nullptr;
            std::memcpy(&characters, &made, sizeof(characters));
            EXPECT_STREQ(characters, path.c_str());
        }
    }
    EXPECT_EQ(FilePath("a\0b"s).string(), "a\0b"s);
}

TEST(TomlFile, pathsOfAClientsOwnTypeAreReadThroughTheirFirstMember)
{
    struct ClientsPath
    {
        const char* characters;
        alignas(FilePath) char rest[sizeof(FilePath)];
    };
    const TemporaryDirectory directory;
    const std::string name = directory.write("a.toml", "a = 1\n");
    alignas(alignof(FilePath)) const ClientsPath path = {name.c_str(), {}};
    const Reading reading = read(reinterpret_cast<const FilePath&>(path));
    EXPECT_TRUE(reading.accepted);
    EXPECT_EQ(reading.events, document({pair(bare("a"), integer("1"))}));
}

TEST(TomlFile, textsAreNotMistakenForPaths)
{
    static_assert(!std::is_convertible_v<const char*, FilePath>);
    static_assert(!std::is_convertible_v<std::string, FilePath>);
    static_assert(!std::is_convertible_v<FilePath, std::string>);
    EventRecorder visitor;
    EXPECT_TRUE(visitTomlTree("a = 1\n", visitor));
    EXPECT_EQ(visitor.events(), document({pair(bare("a"), integer("1"))}));
}
