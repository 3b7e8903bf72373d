// The library's log lines in the tool.
#pragma once

namespace tool
{

// While one lives, the library's log lines of its thread are not printed.
class HeldLog
{
public:
    HeldLog();
    HeldLog(const HeldLog&) = delete;
    HeldLog& operator=(const HeldLog&) = delete;
    ~HeldLog();
};

} // namespace tool
