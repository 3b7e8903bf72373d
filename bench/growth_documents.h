// The documents whose cost is measured.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace bench
{

constexpr std::size_t kilobyte = 1000;
constexpr std::size_t megabyte = 1000 * kilobyte;

// A document that can be made in any size, about.
struct Document
{
    const char* name;
    bool accepted;
    std::size_t size; // the smallest that is measured
    std::string (*make)(std::size_t size);
};

// Each is measured in several sizes.
std::vector<Document> growingDocuments();

// Small ones, made to be costly.
std::vector<Document> hostileDocuments();

// As large as documents get, and those of errors only that are still read.
std::vector<Document> largestDocuments();

// With one mistake or many, to be diagnosed.
std::vector<Document> mistakenDocuments();

} // namespace bench
