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
    std::vector<Said> said;
};

// What is said more than once, without its place.
Said at(const std::string& place, const Said& said);

extern const Said emptyArray;
extern const Said emptyTable;
extern const Said noLastLineBreak;
extern const Said unclosed;

// Hints that are given more than once.
const std::string commas = "Separate elements with commas: [1, 2].";
const std::string bareKeys =
    "Bare keys consist of A-Z a-z 0-9 _ and -. Other keys, and all strings, need quotes.";

// Expects all of what is said, in order, and that both the tool and the library accept the
// document unless an error is among it.
void expectSaid(const std::vector<Explained>& documents);

// Expects all of what is said with `strict`, in order, and an error if the library rejects the
// document.
void expectSaidStrictly(const std::vector<Explained>& documents);

} // namespace test
