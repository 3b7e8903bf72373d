#pragma once

#include <pthread.h>

namespace vorn::parsers::toml
{

// The calling thread is not cancelled while this lives; a request waits.  Cancelling unwinds
// the stack like an exception that nobody may catch, and must not start above frames of C.
class DeferredCancellation
{
public:
    DeferredCancellation() noexcept { pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &before_); }
    DeferredCancellation(const DeferredCancellation&) = delete;
    DeferredCancellation& operator=(const DeferredCancellation&) = delete;
    ~DeferredCancellation() { pthread_setcancelstate(before_, nullptr); }

private:
    int before_ = PTHREAD_CANCEL_ENABLE;
};

} // namespace vorn::parsers::toml
