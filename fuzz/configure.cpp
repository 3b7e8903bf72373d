// Any bytes as a configuration: it is filled, or untouched with a problem; there are mistakes of
// the document where the library rejects it and nowhere else; and places are within it.
#include "finding.h"

#include "config/every_member.h"
#include "support/reading.h"

#include <vorn/parsers/toml_config.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace toml = vorn::parsers::toml;

namespace
{

bool isMistake(const toml::Problem& problem)
{
    return problem.path.empty() && problem.severity == toml::Severity::error &&
           problem.message.find("defined twice") == std::string::npos;
}

// Asks for the place in each operation.
struct Places : toml::PlacedVisitor
{
    std::size_t last = 0;
    bool areInOrder = true;

    void look()
    {
        const toml::Place here = place();
        areInOrder = areInOrder && here.offset >= last && here.line > 0 && here.column > 0;
        last = here.offset;
    }
    void visitBareKey(const char*) override { look(); }
    void visitQuotedKey(const char*) override { look(); }
    void visitBasicString(const char*) override { look(); }
    void visitInteger(const char*) override { look(); }
    void beginArray() override { look(); }
    void endInlineTable() override { look(); }
};

void expectPlaced(const std::string& document, bool isAccepted)
{
    const test::LogRecorder log;
    const test::StderrCapture standardError;
    Places places;
    fuzz::expect(toml::visitTomlTree(document, places) == isAccepted, "places change nothing",
                 document);
    fuzz::expect(places.last <= document.size(), "places are in the document", document);
    fuzz::expect(!isAccepted || places.areInOrder, "places are in order", document);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string document(reinterpret_cast<const char*>(data), size);
    const bool isAccepted = test::read(document).accepted;
    test::EveryMember config;
    config.text = "as it was";
    config.flags = {true};
    const std::vector<toml::Problem> problems =
        toml::readConfig(document, test::everySchema(), config);
    if (toml::config::haveErrors(problems))
    {
        fuzz::expect(config.text == "as it was" && config.flags.size() == 1, "it is untouched",
                     document);
    }
    // What is defined twice has no path either, in several words.
    fuzz::expect(isAccepted || std::any_of(problems.begin(), problems.end(), isMistake),
                 "a mistake is told where it is rejected", document);
    for (const toml::Problem& problem : problems)
    {
        fuzz::expect(problem.place.offset <= document.size() && problem.place.line > 0,
                     "a problem is in the document", document);
        fuzz::expect(!problem.message.empty(), "a problem has words", document);
    }
    expectPlaced(document, isAccepted);
    return 0;
}
