// The library's log lines in the tool.
#pragma once

#include "recognition.h"

namespace tool
{

// While one lives, the library's log lines are not printed.
class HeldLog
{
public:
    HeldLog();
    HeldLog(const HeldLog&) = delete;
    HeldLog& operator=(const HeldLog&) = delete;
    ~HeldLog();

    // Whether one of the lines said that a document is not looked at.
    Refusal refusal() const { return refusal_; }

    void take(const char* format);

private:
    Refusal refusal_ = Refusal::none;
};

} // namespace tool
