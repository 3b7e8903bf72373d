// How check's findings are printed: one class for each format.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "commands.h"
#include "examination.h"

namespace tool
{

// What is known of a file.  If it could not be read, `problem` says why, and the status is
// `unreadable`.
struct CheckedFile
{
    std::string name; // as it is shown
    std::string text;
    Examination examination;
    std::string problem;
};

// What is printed of a file.
struct FileReport
{
    Status status = accepted;
    std::string error; // comes first, on standard error
    std::string output;
    // For the end of a SARIF log: the findings' codes, and an object that is not a result.
    std::vector<std::string> codes;
    std::string note;
};

class CheckReport
{
public:
    CheckReport() = default;
    CheckReport(const CheckReport&) = delete;
    CheckReport& operator=(const CheckReport&) = delete;
    virtual ~CheckReport() = default;

    // May be called on several threads, in any order.
    virtual FileReport of(const CheckedFile& file) const = 0;

    // Called in the order of the files.
    virtual void print(const FileReport& file);

    // After the last file.
    virtual void end() {}
};

std::unique_ptr<CheckReport> makeReport(const Options& options, std::size_t files);

} // namespace tool
