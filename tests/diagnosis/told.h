// What is told of documents: all of each finding.
#pragma once

#include <string>
#include <vector>

namespace test
{

struct Told
{
    std::string place; // "LINE:COLUMN-LINE:COLUMN", the second after the last character
    std::string code;
    std::string message;
    std::string hint;
    std::vector<std::string> related = {}; // "LINE:COLUMN MESSAGE"
};

struct Mistaken
{
    std::string document;
    std::vector<Told> told;
};

// Expects exactly that, and that the library rejects the documents.  Where a hint says what to
// write instead of a value, there must be no mistake in that, nor before it; nor in the pair that
// a hint shows.
void expectTold(const std::vector<Mistaken>& documents);

} // namespace test
