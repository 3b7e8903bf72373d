#pragma once

#include <cstddef>
#include <string>

namespace test
{

// What a process of its own has for a reading.
struct ChildLimits
{
    std::size_t stack = 0;  // of the reading thread, in bytes; 0: the main thread with its own
    std::size_t memory = 0; // that it can still get when the reading begins; 0: no limit
    bool recordsLog = true; // which takes memory itself
};

// What a reading in a process of its own showed.
struct ChildReading
{
    int signal = -1; // that ended the process; 0: none did
    bool accepted = false;
    std::size_t calls = 0;   // of the visitor
    std::size_t lines = 0;   // that were logged
    std::size_t logHash = 0; // of all of them
    std::string lastMessage; // or its beginning, if it is long
    double seconds = 0;      // of the processor
    long peakKilobytes = 0;  // of the process
};

ChildReading readInChild(const std::string& text, const ChildLimits& limits = {});

} // namespace test
