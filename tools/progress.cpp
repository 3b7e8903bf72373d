#include "progress.h"

#include <cstdio>

#include "shown_text.h"

namespace tool
{
namespace
{

constexpr std::chrono::milliseconds patience(500);
constexpr std::chrono::milliseconds pause(100);

// Takes so long that progress is shown at once.
constexpr std::size_t largeFile = std::size_t{32} * 1024 * 1024;

std::string megabytes(std::size_t bytes)
{
    return std::to_string((bytes + 500000) / 1000000) + " MB";
}

} // namespace

Progress::Progress(std::size_t files, bool isShown)
    : files_(files), isShown_(isShown), next_(std::chrono::steady_clock::now() + patience)
{
}

void Progress::begin(const std::string& name)
{
    ++number_;
    name_ = printable(name);
    if (std::chrono::steady_clock::now() >= next_)
    {
        show("");
    }
}

void Progress::wait(std::size_t file, const std::string& name)
{
    number_ = file;
    begin(name);
}

void Progress::read(std::size_t bytes)
{
    if (std::chrono::steady_clock::now() >= next_)
    {
        show(", " + megabytes(bytes) + " read");
    }
}

void Progress::work(std::size_t bytes)
{
    if (bytes >= largeFile || std::chrono::steady_clock::now() >= next_)
    {
        show(", " + megabytes(bytes));
    }
}

void Progress::clear()
{
    if (isThere_)
    {
        std::fputs("\r\x1B[K", stderr);
        std::fflush(stderr);
        isThere_ = false;
    }
}

void Progress::show(const std::string& text)
{
    if (!isShown_)
    {
        return;
    }
    next_ = std::chrono::steady_clock::now() + pause;
    clear();
    std::fprintf(stderr, "[%zu/%zu] %s%s", number_, files_, name_.c_str(), text.c_str());
    std::fflush(stderr);
    isThere_ = true;
}

} // namespace tool
