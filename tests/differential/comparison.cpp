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

OrderedReading readWith(Visit visit, const std::string& document, StderrCapture& standardError)
{
    EventRecorder visitor;
    LogRecorder log;
    std::vector<Moment> moments;
    log.onLine([&] { moments.push_back({visitor.events().size(), standardError.size()}); });
    const bool accepted = visit(document, visitor);
    return {{accepted, visitor.events(), log.lines(), standardError.take()}, std::move(moments)};
}

OrderedReading readWithLibrary(const std::string& document, StderrCapture& standardError)
{
    return readWith(vorn::parsers::toml::visitTomlTree, document, standardError);
}

// The number of the source line aside.
bool sameLine(const LogLine& a, const LogLine& b)
{
    return a.message == b.message && a.format == b.format && a.function == b.function &&
           a.module == b.module && a.sourceFile == b.sourceFile && a.level == b.level &&
           a.first == b.first && a.second == b.second;
}

bool sameMoment(const Moment& a, const Moment& b)
{
    return a.calls == b.calls && a.displayed == b.displayed;
}

bool sameOrder(const OrderedReading& a, const OrderedReading& b)
{
    return std::equal(a.moments.begin(), a.moments.end(), b.moments.begin(), b.moments.end(),
                      sameMoment);
}

// All read the same bytes, so that even addresses in the runtime's displays are the same.
bool sameReading(const OrderedReading& a, const OrderedReading& b)
{
    return a.accepted == b.accepted && a.events == b.events && sameLines(a.lines, b.lines) &&
           a.standardError == b.standardError && sameOrder(a, b);
}

void describeDifference(std::ostream& out, const std::string& name, const OrderedReading& a,
                        const OrderedReading& b)
{
    out << name << " and reference differ in:" << (a.accepted != b.accepted ? " result" : "")
        << (a.events != b.events ? " calls" : "") << (!sameLines(a.lines, b.lines) ? " log" : "")
        << (a.standardError != b.standardError ? " standard-error" : "")
        << (!sameOrder(a, b) ? " order" : "") << '\n';
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
    return sameReading(library, reference) && (!pipeline || sameReading(*pipeline, reference));
}

namespace
{

Comparison compare(const std::string& document, bool quickly)
{
    StderrCapture standardError;
    Comparison comparison;
    comparison.plain = isPlainText(document);
    comparison.reference = readWith(reference::visitTomlTree, document, standardError);
    if (!quickly || comparison.reference.accepted)
    {
        comparison.pipeline = readWithLibrary(document, standardError);
    }
    const DirectReadingOn on;
    comparison.library = readWithLibrary(document, standardError);
    EventRecorder visitor;
    comparison.direct =
        vorn::parsers::toml::readDirectly(document, visitor) == DirectReading::accepted;
    return comparison;
}

} // namespace

Comparison compare(const std::string& document)
{
    return compare(document, false);
}

Comparison compareQuickly(const std::string& document)
{
    return compare(document, true);
}

std::string describe(const Comparison& comparison)
{
    std::ostringstream out;
    describeDifference(out, "library", comparison.library, comparison.reference);
    if (comparison.pipeline)
    {
        describeDifference(out, "pipeline", *comparison.pipeline, comparison.reference);
    }
    out << (comparison.isDirectIfPlain() ? "" : "it is valid, but not read directly\n");
    out << "library\n";
    describeReading(out, comparison.library);
    if (comparison.pipeline)
    {
        out << "library, direct reader off\n";
        describeReading(out, *comparison.pipeline);
    }
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
