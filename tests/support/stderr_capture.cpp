#include "stderr_capture.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <stdexcept>

namespace test
{

StderrCapture::StderrCapture()
{
    std::fflush(stderr);
    saved_ = dup(STDERR_FILENO);
    file_ = memfd_create("stderr", 0);
    if (saved_ < 0 || file_ < 0 || dup2(file_, STDERR_FILENO) < 0)
    {
        throw std::runtime_error("standard error cannot be captured");
    }
}

StderrCapture::~StderrCapture()
{
    std::fflush(stderr);
    dup2(saved_, STDERR_FILENO);
    close(saved_);
    close(file_);
}

std::size_t StderrCapture::size() const
{
    std::fflush(stderr);
    return static_cast<std::size_t>(lseek(file_, 0, SEEK_END));
}

std::string StderrCapture::text() const
{
    std::string content(size(), '\0');
    const ssize_t count = pread(file_, content.data(), content.size(), 0);
    content.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return content;
}

std::string StderrCapture::take()
{
    std::string taken = text();
    if (!taken.empty() && (ftruncate(file_, 0) != 0 || lseek(file_, 0, SEEK_SET) != 0))
    {
        throw std::runtime_error("captured standard error cannot be cleared");
    }
    return taken;
}

} // namespace test
