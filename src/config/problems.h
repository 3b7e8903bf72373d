// Collects what is wrong, and puts it in order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <vorn/parsers/toml_config.h>

namespace vorn::parsers::toml::config
{

// A place before its line is counted.
struct Spot
{
    std::uint32_t source = 0; // the text or file, by its number
    std::uint32_t offset = 0; // documents are smaller than four gigabytes
};

// A document, and the file that it is from.
struct Source
{
    std::string file; // empty for a text
    const std::string* text;
};

class Problems
{
public:
    // There are no more after so many.
    static constexpr std::size_t max = 1000;

    // What is missing comes after all others.
    enum class Order
    {
        byPlace,
        last,
    };

    void add(Spot spot, Problem&& problem, Order order = Order::byPlace);

    // Whether a problem of this severity would be kept.
    bool takes(const Problem& problem) const
    {
        return found_.size() < max || (problem.severity == Severity::error && !hasErrors_);
    }

    // In the order of the documents, with lines and columns.
    std::vector<Problem> take(const std::vector<Source>& sources);

private:
    struct Found
    {
        Order order = Order::byPlace;
        Spot spot;
        Problem problem;
    };

    std::vector<Found> found_;
    bool hasErrors_ = false;
};

} // namespace vorn::parsers::toml::config
