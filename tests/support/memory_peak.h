// The memory that the use of a text takes.
#pragma once

#include <functional>
#include <string>

namespace test
{

// Whether the kernel lets a process look for its peak from now on.
bool canMeasurePeaks();

// Where the heap gets large blocks from, of 128 KB and more.
enum class Heap
{
    fresh, // the kernel, as at first: a cleared block takes pages only where it is used
    used,  // what it has, as after a larger block has been freed: it may have to clear all of it
};

// The most memory, in kilobytes, that a use of a text takes at once beside the text.  It is
// measured in a process of its own, which makes the text and has used it once before: the pages of
// the code are there, and what the heap had for it has been given back.
//
// Throws std::runtime_error where a use returns false.
long peakBesideText(const std::function<std::string()>& makeText,
                    const std::function<bool(const std::string&)>& use, Heap heap = Heap::fresh);

} // namespace test
