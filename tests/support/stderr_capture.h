#pragma once

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

    // What has been written so far.
    std::string text() const;

private:
    int saved_ = -1;
    int file_ = -1;
};

} // namespace test
