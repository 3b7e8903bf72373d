#include "text_report.h"

#include <algorithm>

#include <string_view>

#include "shown_text.h"

namespace tool
{
namespace
{

// Escape sequences that set the colour of what follows; empty without colours.
struct Colours
{
    std::string_view bold;
    std::string_view error;
    std::string_view warning;
    std::string_view mark;
    std::string_view hint;
    std::string_view plain;
};

constexpr Colours coloured = {"\x1B[1m",    "\x1B[1;31m", "\x1B[1;35m",
                              "\x1B[1;32m", "\x1B[36m",   "\x1B[0m"};

class Report
{
public:
    Report(const std::string& name, const std::string& document, bool colour)
        : name_(printable(name)), document_(document), colours_(colour ? coloured : Colours{})
    {
    }

    void add(const Finding& finding)
    {
        const bool isError = finding.severity == Severity::error;
        text_ += in(colours_.bold, name_ + ':' + std::to_string(finding.line) + ':' +
                                       std::to_string(finding.column) + ": ");
        text_ += in(isError ? colours_.error : colours_.warning, isError ? "error: " : "warning: ");
        text_ += in(colours_.bold, finding.message) + '\n';
        addExcerpt(excerpt(document_, finding));
        if (!finding.hint.empty())
        {
            const std::size_t digits = std::to_string(finding.line).size();
            text_ += std::string(std::max<std::size_t>(digits, 5), ' ') + " = " +
                     in(colours_.hint, "hint: ") + finding.hint + '\n';
        }
    }

    const std::string& text() const { return text_; }

private:
    // Every second line consists of marks.
    void addExcerpt(const std::string& lines)
    {
        bool isMarks = false;
        for (std::size_t at = 0; at < lines.size(); isMarks = !isMarks)
        {
            const std::size_t end = lines.find('\n', at);
            const std::size_t margin = isMarks ? lines.find('|', at) + 2 : end;
            text_ += lines.substr(at, margin - at);
            text_ += isMarks ? in(colours_.mark, lines.substr(margin, end - margin)) : "";
            text_ += '\n';
            at = end + 1;
        }
    }

    std::string in(std::string_view colour, const std::string& text) const
    {
        return std::string(colour) + text + std::string(colours_.plain);
    }

    std::string name_;
    const std::string& document_;
    Colours colours_;
    std::string text_;
};

} // namespace

std::string textReport(const std::string& name, const std::string& text,
                       const Examination& examination, bool colour)
{
    Report report(name, text, colour);
    for (const Finding& finding : examination.findings)
    {
        report.add(finding);
    }
    return examination.more.empty()
               ? report.text()
               : report.text() + printable(name) + ": " + examination.more + '\n';
}

} // namespace tool
