#pragma once

#include <cstddef>
#include <functional>

#include "check_report.h"

namespace tool
{

// What is to be done for each of so many files.
struct OrderedWork
{
    std::size_t files = 0;
    // Makes a file's report, on any thread.
    std::function<FileReport(std::size_t)> make;
    // Called again and again while the report of a file, whose turn it is, is being made.
    std::function<void(std::size_t)> wait;
    // Called for one after the other.
    std::function<void(const FileReport&)> take;
};

// Makes the reports on so many threads, and takes them in the order of the files.  Few reports
// wait for their turn at any time.  An exception comes at the turn of its file; then there are
// no more.
void workInOrder(const OrderedWork& work, unsigned threads);

} // namespace tool
