// How long a process takes for a document that it reads over and over.
#pragma once

#include "growth_documents.h"

namespace bench
{

// In milliseconds, of the processor.
struct Times
{
    double first; // of a process that has read a small document like it
    double later; // the quickest of the further ones
};

// The least of three processes.
Times timesOf(const Document& document);

} // namespace bench
