// Memory for texts that nothing may be read after.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace test
{

// Holds one text at a time, right before a page that cannot be accessed.
class GuardedMemory
{
public:
    explicit GuardedMemory(std::size_t size)
    {
        const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        const std::size_t usable = (size + page - 1) / page * page;
        mapped_ = usable + page;
        memory_ =
            mmap(nullptr, mapped_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (memory_ == MAP_FAILED ||
            mprotect(static_cast<char*>(memory_) + usable, page, PROT_NONE) != 0)
        {
            throw std::runtime_error("no guarded memory");
        }
        end_ = static_cast<char*>(memory_) + usable;
    }
    GuardedMemory(const GuardedMemory&) = delete;
    GuardedMemory& operator=(const GuardedMemory&) = delete;
    ~GuardedMemory() { munmap(memory_, mapped_); }

    // Where the text begins; it ends at end().
    const char* hold(std::string_view text)
    {
        if (text.size() > static_cast<std::size_t>(end_ - static_cast<char*>(memory_)))
        {
            throw std::length_error("the text is too long for the guarded memory");
        }
        char* const begin = end_ - text.size();
        std::memmove(begin, text.data(), text.size());
        return begin;
    }
    const char* end() const { return end_; }

    // The same for a text that a NUL ends; it ends at terminator().
    const char* holdTerminated(std::string_view text)
    {
        end_[-1] = '\0';
        --end_;
        const char* const begin = hold(text);
        ++end_;
        return begin;
    }
    const char* terminator() const { return end_ - 1; }

private:
    std::size_t mapped_ = 0;
    void* memory_ = nullptr;
    char* end_ = nullptr;
};

} // namespace test
