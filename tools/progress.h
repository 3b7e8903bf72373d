#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace tool
{

// A line on standard error, if that is a terminal, that shows how far slow work has come.
class Progress
{
public:
    explicit Progress(std::size_t files, bool isShown);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() { clear(); }

    // Starts with the next file.
    void begin(const std::string& name);

    // Called while the work on a file, counted from 0, is done by others.
    void wait(std::size_t file, const std::string& name);

    // Called after so many of its bytes have been read.
    void read(std::size_t bytes);

    // Called before its content, of that size, is examined.
    void work(std::size_t bytes);

    // Removes the line, before anything else is printed.
    void clear();

private:
    void show(const std::string& text);

    std::size_t files_;
    bool isShown_;
    std::size_t number_ = 0;
    std::string name_;
    bool isThere_ = false;
    std::chrono::steady_clock::time_point next_;
};

} // namespace tool
