// The documents that the readers are compared on.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace bench
{

struct Document
{
    std::string name; // kind/size
    std::size_t size; // that of the name; the text's comes close to it
    std::string text;
};

// Each kind of document in each size.  All are valid for every reader that is compared.
std::vector<Document> documents();

} // namespace bench
