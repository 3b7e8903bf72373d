// What the readers read.
#pragma once

#include <string>
#include <vector>

#include "documents.h"
#include "readers.h"

namespace bench
{

struct Source
{
    Document document;
    std::string json; // its twin; empty if no reader wants it

    const std::string& inputOf(const Reader& reader) const
    {
        return reader.input == Input::json ? json : document.text;
    }
};

// The documents of one size, or of all if it is zero.
std::vector<Source> sourcesFor(const std::vector<Reader>& readers, std::size_t size = 0);

// The readers that a list with commas names.  Throws if there is none of such a name.
std::vector<Reader> readersNamed(const std::string& names);

} // namespace bench
