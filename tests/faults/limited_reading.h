#pragma once

#include <cstddef>
#include <string>

namespace test
{

// How a reading ends where memory is limited.
enum class Ending
{
    accepted,
    diagnosed,  // refused, with as many calls and log lines as without a limit
    tooLarge,   // refused, with one log line that says so
    tooDeep,    // the same
    notCreated, // refused, without a call; the last log line says what could not be made
    badAlloc,   // with the exception
    crashed,
    other,
};

constexpr std::size_t endings = static_cast<std::size_t>(Ending::other) + 1;

const char* nameOf(Ending ending);

// What a reading in a process of its own shows.
struct LimitedReading
{
    int signal = -1; // that ended the process; 0: none did
    bool accepted = false;
    bool hasThrown = false; // std::bad_alloc
    std::size_t calls = 0;
    std::size_t lines = 0;
    std::string lastMessage; // or its beginning
};

// Reads in a process of its own that can get `memory` bytes of address space more than it has
// when the reading begins; 0: without a limit.  With a path, the text is what the file has.
LimitedReading readLimited(const std::string& text, std::size_t memory, const char* path = nullptr);

Ending endingOf(const LimitedReading& reading, const LimitedReading& unlimited);

} // namespace test
