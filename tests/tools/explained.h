// What the tool says about documents, and whether the library agrees.
#pragma once

#include <string>
#include <vector>

namespace test
{

struct Said
{
    std::string message; // "LINE:COLUMN error: ...", as the tool counts
    std::string hint;
};

struct Explained
{
    std::string text;
    bool accepted;
    std::vector<Said> said;
};

// Expects all of what is said, in order, and that the library has the same verdict.
void expectSaid(const std::vector<Explained>& documents);

} // namespace test
