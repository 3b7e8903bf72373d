#include "comparison.h"

#include "direct/direct_reader.h"
#include "escaped.h"
#include "plain_text.h"
#include "reference/reference_pipeline.h"
#include "support/direct_reading.h"

#include <algorithm>
#include <sstream>

namespace test
{
namespace
{

using vorn::parsers::toml::DirectReading;
using Visit = bool (*)(const std::string&, vorn::parsers::toml::ITomlTreeVisitor&);

Reading readWith(Visit visit, const std::string& document, StderrCapture& standardError)
{
    EventRecorder visitor;
    const LogRecorder log;
    const bool accepted = visit(document, visitor);
    return {accepted, visitor.events(), log.lines(), standardError.take()};
}

// The number of the source line aside.
bool sameLine(const LogLine& a, const LogLine& b)
{
    return a.message == b.message && a.format == b.format && a.function == b.function &&
           a.module == b.module && a.sourceFile == b.sourceFile && a.level == b.level &&
           a.first == b.first && a.second == b.second;
}

// All read the same bytes, so that even addresses in the runtime's displays are the same.
bool sameReading(const Reading& a, const Reading& b)
{
    return a.accepted == b.accepted && a.events == b.events && sameLines(a.lines, b.lines) &&
           a.standardError == b.standardError;
}

void describeDifference(std::ostream& out, const Reading& a, const Reading& b)
{
    out << (a.accepted != b.accepted ? " result" : "") << (a.events != b.events ? " calls" : "")
        << (!sameLines(a.lines, b.lines) ? " log" : "")
        << (a.standardError != b.standardError ? " standard-error" : "") << '\n';
}

void describeReading(std::ostream& out, const Reading& reading)
{
    out << "  result: " << (reading.accepted ? "true" : "false") << '\n';
    for (const std::string& event : reading.events)
    {
        out << "  call: " << escaped(event) << '\n';
    }
    for (const LogLine& line : reading.lines)
    {
        out << "  log: " << line.module << ' ' << line.sourceFile << ' ' << line.function << ' '
            << line.level << ' ' << line.first << ' ' << line.second << ' ' << escaped(line.format)
            << ": " << escaped(line.message) << '\n';
    }
    out << "  standard error: " << escaped(reading.standardError) << '\n';
}

} // namespace

bool sameLines(const std::vector<LogLine>& a, const std::vector<LogLine>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), sameLine);
}

bool Comparison::same() const
{
    return sameReading(library, pipeline) && sameReading(pipeline, reference);
}

Comparison compare(const std::string& document)
{
    StderrCapture standardError;
    Comparison comparison;
    comparison.plain = isPlainText(document);
    comparison.reference = readWith(reference::visitTomlTree, document, standardError);
    comparison.pipeline = readWith(vorn::parsers::toml::visitTomlTree, document, standardError);
    const DirectReadingOn on;
    comparison.library = readWith(vorn::parsers::toml::visitTomlTree, document, standardError);
    EventRecorder visitor;
    comparison.direct =
        vorn::parsers::toml::readDirectly(document, visitor) == DirectReading::accepted;
    return comparison;
}

std::string describe(const Comparison& comparison)
{
    std::ostringstream out;
    out << "library and reference differ in:";
    describeDifference(out, comparison.library, comparison.reference);
    out << "pipeline and reference differ in:";
    describeDifference(out, comparison.pipeline, comparison.reference);
    out << (comparison.isDirectIfPlain() ? "" : "it is valid, but not read directly\n");
    out << "library\n";
    describeReading(out, comparison.library);
    out << "library, direct reader off\n";
    describeReading(out, comparison.pipeline);
    out << "reference\n";
    describeReading(out, comparison.reference);
    return out.str();
}

std::string describe(const Reading& reading)
{
    std::ostringstream out;
    describeReading(out, reading);
    return out.str();
}

} // namespace test
