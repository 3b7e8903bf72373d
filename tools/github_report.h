#pragma once

#include "check_report.h"

namespace tool
{

// A command for each finding that makes GitHub show it beside the source.
class GithubReport : public CheckReport
{
public:
    FileReport of(const CheckedFile& file) const override;
};

} // namespace tool
