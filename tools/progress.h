#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace tool
{

// A line on standard error, if that is a terminal, that says how far long work has come.
class Progress
{
public:
    explicit Progress(std::size_t files, bool isShown);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() { clear(); }

    // The next file is begun.
    void begin(const std::string& name);

    // So many bytes of it have been read.
    void read(std::size_t bytes);

    // Its content, of that size, is being looked at.
    void work(std::size_t bytes);

    // Takes the line away, before anything else is printed.
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
