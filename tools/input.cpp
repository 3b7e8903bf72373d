#include "input.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <utility>

#include "shown_text.h"

namespace tool
{
namespace
{

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

bool readAll(std::FILE* file, std::string& content, Progress& progress)
{
    constexpr std::size_t block = 65536;
    for (std::size_t size = 0;; progress.read(size))
    {
        content.resize(size + block);
        const std::size_t count = std::fread(content.data() + size, 1, block, file);
        size += count;
        if (count == 0)
        {
            content.resize(size);
            break;
        }
    }
    return std::ferror(file) == 0;
}

std::optional<std::string> fail(const std::string& name, Progress& progress)
{
    const int reason = errno;
    progress.clear();
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the tool has one thread.
    std::fprintf(stderr, "vorn-toml: %s: %s\n", printable(name).c_str(), std::strerror(reason));
    return std::nullopt;
}

} // namespace

std::optional<std::string> readInput(const std::string& name, Progress& progress)
{
    progress.begin(name);
    std::string content;
    if (name == "-")
    {
        return readAll(stdin, content, progress) ? std::optional(std::move(content))
                                                 : fail("standard input", progress);
    }
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(name.c_str(), "rb"));
    return file && readAll(file.get(), content, progress) ? std::optional(std::move(content))
                                                          : fail(name, progress);
}

Status visitInput(const std::string& name, Progress& progress,
                  vorn::parsers::toml::ITomlTreeVisitor& visitor)
{
    const auto text = readInput(name, progress);
    if (!text)
    {
        return unreadable;
    }
    progress.clear();
    return vorn::parsers::toml::visitTomlTree(*text, visitor) ? accepted : rejected;
}

} // namespace tool
