#include "check_report.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "github_report.h"
#include "json_report.h"
#include "sarif_report.h"
#include "shown_text.h"
#include "text_report.h"

namespace tool
{
namespace
{

// Findings on standard error; on standard output a line for each file, and one for all.
class TextReport : public CheckReport
{
public:
    TextReport(bool colour, bool quiet, std::size_t files)
        : colour_(colour), quiet_(quiet), files_(files)
    {
    }

    FileReport of(const CheckedFile& file) const override
    {
        FileReport report;
        if (file.examination.status != unreadable)
        {
            report.error = textReport(file.name, file.text, file.examination, colour_);
            report.output = quiet_ ? "" : statusLine(file);
        }
        return report;
    }

    void print(const FileReport& file) override
    {
        ++counts_.at(file.status);
        CheckReport::print(file);
    }

    void end() override
    {
        if (quiet_ || files_ < 2)
        {
            return;
        }
        std::string line = std::to_string(files_) + " files";
        const char* separator = ": ";
        for (const Status status : {accepted, rejected, unreadable})
        {
            if (counts_.at(status) != 0)
            {
                line += separator + std::to_string(counts_.at(status)) + ' ' + statusName(status);
                separator = ", ";
            }
        }
        std::printf("%s\n", line.c_str());
    }

private:
    static std::string statusLine(const CheckedFile& file)
    {
        return printable(file.name) + ": " + statusName(file.examination.status) + '\n';
    }

    bool colour_;
    bool quiet_;
    std::size_t files_;
    std::array<std::size_t, unreadable + 1> counts_ = {};
};

} // namespace

void CheckReport::print(const FileReport& file)
{
    std::fputs(file.error.c_str(), stderr);
    std::fputs(file.output.c_str(), stdout);
}

std::unique_ptr<CheckReport> makeReport(const Options& options, std::size_t files)
{
    switch (options.check.format)
    {
    case Format::json:
        return std::make_unique<JsonReport>();
    case Format::sarif:
        return std::make_unique<SarifReport>();
    case Format::github:
        return std::make_unique<GithubReport>();
    case Format::text:
        break;
    }
    return std::make_unique<TextReport>(useColour(options.colour), options.check.quiet, files);
}

} // namespace tool
