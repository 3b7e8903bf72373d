#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include <vorn/parsers/toml_config.h>

#include "findings.h"
#include "input_file.h"
#include "navigation.h"
#include "problems.h"
#include "reader.h"
#include "table.h"

namespace vorn::parsers::toml::config
{
namespace
{

// A schema that is wrong reads nothing: its author is told each time.
std::vector<Problem> schemaProblems(const Table& table)
{
    std::vector<Problem> problems;
    for (std::string& mistake : mistakesOf(table))
    {
        Problem problem;
        problem.message = "the schema is wrong: " + std::move(mistake);
        problems.push_back(std::move(problem));
    }
    return problems;
}

// Reads the sources one after the other into the object.
class Reading
{
public:
    // `isWhole`: whether all documents are there.
    Reading(const Table& table, void* object, bool isWhole)
        : navigation_(table, object, problems_), isWhole_(isWhole)
    {
    }

    void read(std::uint32_t number, const std::string& text)
    {
        StrictFindings strict(text);
        navigation_.beginSource(number);
        Reader reader(text, navigation_, strict);
        DiagnosisOptions options;
        options.maxFindings = Problems::max;
        const std::vector<Finding> findings = visitOrDiagnose(text, reader, options);
        add(number, findings);
        isWhole_ = isWhole_ && !reader.isUntouched();
        if (navigation_.isSuspicious() || !findings.empty())
        {
            add(number, strict.definedTwice());
            if (strict.areCut())
            {
                addUnknownRest(number, text.size());
            }
        }
        navigation_.endSource();
    }

    std::vector<Problem> finish(const std::vector<Source>& sources)
    {
        // What seems to be missing may be in a document that could not be read.
        if (isWhole_)
        {
            navigation_.finish();
        }
        return problems_.take(sources);
    }

private:
    void add(std::uint32_t number, const std::vector<Finding>& findings)
    {
        for (const Finding& finding : findings)
        {
            problems_.add({number, static_cast<std::uint32_t>(finding.begin)}, problemOf(finding));
        }
    }

    // A document with so many faults may have keys that are defined twice.
    void addUnknownRest(std::uint32_t number, std::size_t end)
    {
        Problem problem;
        problem.message =
            "has more than 1,000 mistakes by TOML 1.0, so that not all are looked for";
        problems_.add({number, static_cast<std::uint32_t>(end)}, std::move(problem));
    }

    Problems problems_;
    Navigation navigation_;
    bool isWhole_;
};

std::vector<Problem> readSources(const std::vector<Source>& sources, bool areAll,
                                 const Table& table, void* object)
{
    Reading reading(table, object, areAll);
    for (std::uint32_t number = 0; number < sources.size(); ++number)
    {
        reading.read(number, *sources[number].text);
    }
    return reading.finish(sources);
}

} // namespace

std::vector<Problem> readText(const std::string& text, const Table& table, void* object)
{
    std::vector<Problem> problems = schemaProblems(table);
    return problems.empty() ? readSources({{{}, &text}}, true, table, object) : problems;
}

std::vector<Problem> readFiles(const std::vector<FilePath>& files, bool mayBeMissing,
                               const Table& table, void* object)
{
    std::vector<Problem> problems = schemaProblems(table);
    if (!problems.empty())
    {
        return problems;
    }
    const std::vector<InputFile> inputs = readInputs(files, mayBeMissing, problems);
    const std::string nothing;
    std::vector<Source> sources;
    std::transform(inputs.begin(), inputs.end(), std::back_inserter(sources),
                   [](const InputFile& input) {
                       return Source{input.path, &input.text};
                   });
    if (sources.empty() && problems.empty())
    {
        // What is missing has to have a place.
        sources.push_back({files.empty() ? nothing : files.back().string(), &nothing});
    }
    std::vector<Problem> others = readSources(sources, problems.empty(), table, object);
    problems.insert(problems.end(), std::make_move_iterator(others.begin()),
                    std::make_move_iterator(others.end()));
    return problems;
}

} // namespace vorn::parsers::toml::config
