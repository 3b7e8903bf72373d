#pragma once

#include <functional>
#include <utility>

namespace vorn::parsers::toml
{

// Calls what it was given when it leaves its scope, by return or by exception.
class CleanupGuard
{
public:
    explicit CleanupGuard(std::function<void()> cleanup) : cleanup_(std::move(cleanup)) {}
    CleanupGuard(const CleanupGuard&) = delete;
    CleanupGuard& operator=(const CleanupGuard&) = delete;

    ~CleanupGuard()
    {
        if (cleanup_)
        {
            cleanup_();
        }
    }

private:
    std::function<void()> cleanup_;
};

} // namespace vorn::parsers::toml
