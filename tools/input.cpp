#include "input.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>

namespace tool
{
namespace
{

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

bool readAll(std::FILE* file, std::string& content)
{
    std::array<char, 65536> block = {};
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), file))
    {
        content.append(block.data(), count);
    }
    return std::ferror(file) == 0;
}

std::optional<std::string> fail(const std::string& name)
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the tool has one thread.
    std::fprintf(stderr, "vorn-toml: %s: %s\n", name.c_str(), std::strerror(errno));
    return std::nullopt;
}

// The whole content of a file, or of standard input for "-".
std::optional<std::string> readInput(const std::string& name)
{
    std::string content;
    if (name == "-")
    {
        return readAll(stdin, content) ? std::optional(std::move(content)) : fail("standard input");
    }
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(name.c_str(), "rb"));
    return file && readAll(file.get(), content) ? std::optional(std::move(content)) : fail(name);
}

} // namespace

Status visitInput(const std::string& name, vorn::parsers::toml::ITomlTreeVisitor& visitor)
{
    const auto text = readInput(name);
    if (!text)
    {
        return unreadable;
    }
    return vorn::parsers::toml::visitTomlTree(*text, visitor) ? accepted : rejected;
}

} // namespace tool
