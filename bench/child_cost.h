// What a document costs, in a process of its own.
#pragma once

#include <cstddef>

#include "growth_documents.h"

namespace bench
{

// What is done with the text.
enum class Use
{
    none,
    visit,       // visitTomlTree()
    diagnose,    // diagnose()
    diagnoseAll, // the same, without a limit of findings
};

struct Cost
{
    double milliseconds;
    long kilobytes;    // the most that the process had beside the text
    std::size_t lines; // that were logged; or findings
};

// The quickest of some times, and the least memory.
Cost costOf(const Document& document, std::size_t size, Use use);

} // namespace bench
