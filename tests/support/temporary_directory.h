#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace test
{

// A directory of its own for a test's files, removed with all it holds.
class TemporaryDirectory
{
public:
    TemporaryDirectory()
    {
        std::string name = (std::filesystem::temp_directory_path() / "vorn-test-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr)
        {
            throw std::runtime_error("no temporary directory can be made");
        }
        path_ = name;
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
    ~TemporaryDirectory()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    std::string path(const std::string& name) const { return (path_ / name).string(); }

    // Writes a file, and returns its path.
    std::string write(const std::string& name, const std::string& content) const
    {
        std::ofstream file(path(name), std::ios::binary);
        file << content;
        if (!file.flush())
        {
            throw std::runtime_error("a file cannot be written: " + path(name));
        }
        return path(name);
    }

private:
    std::filesystem::path path_;
};

} // namespace test
