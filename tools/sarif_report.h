#pragma once

#include <set>
#include <string>

#include "check_report.h"
#include "json_list.h"

namespace tool
{

// A log of SARIF 2.1.0 with one run, for services that show findings beside the source.
class SarifReport : public CheckReport
{
public:
    SarifReport();

    FileReport of(const CheckedFile& file) const override;
    void print(const FileReport& file) override;
    void end() override;

private:
    JsonList results_ = JsonList(6);
    std::set<std::string> codes_;
    Json notes_ = Json::array(); // of what is not a result
    bool isComplete_ = true;     // whether all files could be read
};

} // namespace tool
