#pragma once

#include "comparison.h"

#include <chrono>
#include <cstdint>
#include <string>

namespace test
{

// What documents that have been compared were like.
class Figures
{
public:
    void add(const std::string& document, const Comparison& comparison);

    std::uint64_t documents() const { return documents_; }
    double seconds() const;

    // How many, and how many of them were accepted.
    void print() const;
    // What those that were rejected had.
    void printMistakes() const;

private:
    std::uint64_t documents_ = 0;
    std::uint64_t bytes_ = 0;
    std::uint64_t accepted_ = 0;
    std::uint64_t direct_ = 0;
    // Of those that were rejected: how many had what, and the errors of all.
    std::uint64_t lexerErrors_ = 0;
    std::uint64_t parserErrors_ = 0;
    std::uint64_t treeErrors_ = 0;
    std::uint64_t failedWalks_ = 0;
    std::uint64_t errors_ = 0;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

} // namespace test
