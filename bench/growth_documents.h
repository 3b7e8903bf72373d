// The documents whose cost is measured.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace bench
{

constexpr std::size_t kilobyte = 1000;
constexpr std::size_t megabyte = 1000 * kilobyte;

// A document that can be made in any size, about.
struct Document
{
    std::string name;
    bool accepted;
    std::size_t size; // the smallest that is measured
    std::function<std::string(std::size_t size)> make;
};

// Each is measured in several sizes.
std::vector<Document> growingDocuments();

// Small ones, made to be costly.
std::vector<Document> hostileDocuments();

// As large as documents get, and those of errors only that are still read.
std::vector<Document> largestDocuments();

// Services with one mistake of each kind, in the first, the middle and the last line; lines that
// are all bad; and as little as there can be.
std::vector<Document> documentsWithMistakes();

// What is accepted of that size, to compare with.
Document validDocument(std::size_t size);

// With one mistake or many, to be diagnosed.
std::vector<Document> mistakenDocuments();

} // namespace bench
