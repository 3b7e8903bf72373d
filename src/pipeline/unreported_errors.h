#pragma once

#include <antlr3.h>

namespace vorn::parsers::toml
{

// A lexer's errors are neither reported nor counted while this lives.
class UnreportedErrors
{
public:
    explicit UnreportedErrors(pANTLR3_BASE_RECOGNIZER recogniser)
        : recogniser_(recogniser), reportError_(recogniser->reportError)
    {
        recogniser_->reportError = [](pANTLR3_BASE_RECOGNIZER failed)
        {
            failed->state->exception->freeEx(failed->state->exception);
            failed->state->exception = nullptr;
        };
    }
    UnreportedErrors(const UnreportedErrors&) = delete;
    UnreportedErrors& operator=(const UnreportedErrors&) = delete;
    ~UnreportedErrors() { recogniser_->reportError = reportError_; }

private:
    pANTLR3_BASE_RECOGNIZER recogniser_;
    decltype(ANTLR3_BASE_RECOGNIZER::reportError) reportError_;
};

} // namespace vorn::parsers::toml
