#include "text_report.h"

#include <algorithm>

#include "excerpt.h"
#include "source_lines.h"
#include "utf8.h"

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
    Report(const std::string& name, std::string_view text, bool colour)
        : name_(printable(name)), lines_(text), colours_(colour ? coloured : Colours{})
    {
    }

    void add(const Finding& finding)
    {
        const auto [line, column] = lines_.placeOf(finding.begin);
        addMessage(':' + std::to_string(line) + ':' + std::to_string(column), finding.severity,
                   finding.message);
        const std::size_t begin = lines_.beginOf(line);
        const auto [source, marks] =
            excerptOf(lines_.line(line), finding.begin - std::min(begin, finding.begin),
                      finding.end - std::min(begin, finding.end));
        std::string number = std::to_string(line);
        number.insert(0, number.size() < 5 ? 5 - number.size() : 0, ' ');
        const std::string margin(number.size(), ' ');
        text_ += number + " | " + source + '\n';
        text_ += margin + " | " + in(colours_.mark, marks) + '\n';
        if (!finding.hint.empty())
        {
            text_ += margin + " = " + in(colours_.hint, "hint: ") + finding.hint + '\n';
        }
    }

    void addMessage(const std::string& place, Severity severity, const std::string& message)
    {
        const bool isError = severity == Severity::error;
        text_ += in(colours_.bold, name_ + place + ": ");
        text_ += in(isError ? colours_.error : colours_.warning, isError ? "error: " : "warning: ");
        text_ += in(colours_.bold, message) + '\n';
    }

    void addLine(const std::string& line) { text_ += name_ + ": " + line + '\n'; }

    const std::string& text() const { return text_; }

private:
    std::string in(std::string_view colour, const std::string& text) const
    {
        return std::string(colour) + text + std::string(colours_.plain);
    }

    std::string name_;
    SourceLines lines_;
    Colours colours_;
    std::string text_;
};

} // namespace

std::string textReport(const std::string& name, std::string_view text, const Diagnosis& diagnosis,
                       bool colour)
{
    if (diagnosis.findings.empty() && diagnosis.refusal == Refusal::none)
    {
        return "";
    }
    Report report(name, text, colour);
    if (diagnosis.refusal != Refusal::none)
    {
        report.addMessage("", Severity::error, refusalMessage(diagnosis.refusal));
    }
    std::size_t explained = 0;
    for (const Finding& finding : diagnosis.findings)
    {
        report.add(finding);
        explained += finding.severity == Severity::error ? 1 : 0;
    }
    if (const std::size_t more = diagnosis.errors - explained; more > 0)
    {
        report.addLine(std::to_string(more) + (more == 1 ? " more error" : " more errors"));
    }
    return report.text();
}

std::string refusalMessage(Refusal refusal)
{
    return refusal == Refusal::tooDeep
               ? "the document is invalid, but its arrays or inline tables are nested too deeply "
                 "to say where"
               : "the document is too large to diagnose: there is not enough memory";
}

} // namespace tool
