#pragma once

#include "check_report.h"
#include "json_list.h"

namespace tool
{

// An array with an object for each file, for editors.
class JsonReport : public CheckReport
{
public:
    FileReport of(const CheckedFile& file) const override;
    void print(const FileReport& file) override;
    void end() override;

private:
    JsonList files_ = JsonList(0);
};

} // namespace tool
