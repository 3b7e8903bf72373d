#include "input.h"

#include <array>
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

// strerror() may only be called by one thread at a time.
std::string textOf(int reason)
{
    std::array<char, 256> buffer = {};
    return strerror_r(reason, buffer.data(), buffer.size());
}

} // namespace

Content contentOf(const std::string& name, Progress& progress)
{
    progress.begin(name);
    const bool isInput = name == "-";
    const std::unique_ptr<std::FILE, CloseFile> file(isInput ? nullptr
                                                             : std::fopen(name.c_str(), "rb"));
    std::string text;
    if ((isInput || file) && readAll(isInput ? stdin : file.get(), text, progress))
    {
        return {std::move(text), ""};
    }
    return {std::nullopt, textOf(errno)};
}

std::string unreadableLine(const std::string& name, const std::string& problem)
{
    const std::string shown = name == "-" ? "standard input" : printable(name);
    return "vorn-toml: " + shown + ": " + problem + '\n';
}

std::optional<std::string> readInput(const std::string& name, Progress& progress)
{
    Content content = contentOf(name, progress);
    if (!content.text)
    {
        progress.clear();
        std::fputs(unreadableLine(name, content.problem).c_str(), stderr);
    }
    return std::move(content.text);
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
