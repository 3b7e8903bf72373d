// A logger that throws.  Linking it replaces that of the utility library.
#pragma once

#include <functional>
#include <string>

namespace test
{

struct LogFailure
{
    int line;
};

// From now on lines count from 1, and the one with this number throws; with 0 none does.
void throwAtLine(int line);
int loggedLines();

// Gets the message of each line, before it may throw.
void onLine(std::function<void(const std::string&)> observer);

} // namespace test
