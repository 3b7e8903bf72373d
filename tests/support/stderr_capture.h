#pragma once

#include <cstddef>
#include <string>

namespace test
{

// Takes what is written to standard error while it lives: the runtime's own error
// displays print there.
class StderrCapture
{
public:
    StderrCapture();
    StderrCapture(const StderrCapture&) = delete;
    StderrCapture& operator=(const StderrCapture&) = delete;
    ~StderrCapture();

    // What has been written so far, or since it was taken.
    std::string text() const;
    std::string take();
    std::size_t size() const;

private:
    int saved_ = -1;
    int file_ = -1;
};

} // namespace test
