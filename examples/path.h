// The place of a value in a document.
#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

namespace example
{

// The keys that lead to a value and, for elements of arrays, the indices.  The paths of the
// two ports below are `servers`, 0, `port` and `servers`, 1, `port`.
//
//   servers = [ { port = 80 }, { port = 443 } ]
class Path
{
public:
    using Step = std::variant<std::string, std::size_t>;

    // The value in a table under a key, or in an array at an index.
    Path operator/(const std::string& key) const { return with(key); }
    Path operator/(std::size_t index) const { return with(index); }

    // From the document down.  The document itself has none.
    const std::vector<Step>& steps() const { return steps_; }

    // What this is in.  Not for the document.
    Path parent() const;

    // No two paths have the same text: `servers[0].port`, `hosts."gw.local"[1]`.
    std::string text() const;

    // The text without indices, the same for all elements of an array: `servers[].port`.
    std::string pattern() const;

private:
    Path with(Step step) const;

    std::vector<Step> steps_;
};

} // namespace example
