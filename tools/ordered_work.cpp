#include "ordered_work.h"

#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace tool
{
namespace
{

// So many reports may wait for their turn.  A report is small; where the processors are busy, it
// takes a while until the thread that prints runs.
constexpr std::size_t reportsPerThread = 64;

struct Outcome
{
    FileReport report;
    std::exception_ptr failure;
};

class Workers
{
public:
    Workers(const OrderedWork& work, unsigned threads)
        : work_(work), window_(reportsPerThread * threads)
    {
        try
        {
            while (threads_.size() < threads)
            {
                threads_.emplace_back([this] { makeReports(); });
            }
        }
        catch (const std::system_error&)
        {
            // The system has no more threads: those that there are have to do.
        }
    }
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;
    ~Workers()
    {
        {
            const std::lock_guard lock(mutex_);
            isStopped_ = true;
        }
        room_.notify_all();
        for (std::thread& thread : threads_)
        {
            thread.join();
        }
    }

    bool hasNone() const { return threads_.empty(); }

    FileReport taken(std::size_t file)
    {
        constexpr std::chrono::milliseconds pause(100);
        std::unique_lock lock(mutex_);
        std::optional<Outcome>& place = window_[file % window_.size()];
        while (!done_.wait_for(lock, pause, [&] { return place.has_value(); }))
        {
            work_.wait(file);
        }
        const Outcome outcome = *std::exchange(place, std::nullopt);
        taken_ = file + 1;
        lock.unlock();
        room_.notify_all();
        if (outcome.failure)
        {
            std::rethrow_exception(outcome.failure);
        }
        return outcome.report;
    }

private:
    void makeReports()
    {
        for (std::optional<std::size_t> file = next(); file; file = next())
        {
            Outcome outcome = made(*file);
            {
                const std::lock_guard lock(mutex_);
                window_[*file % window_.size()] = std::move(outcome);
            }
            done_.notify_one();
        }
    }

    // The next file whose report has room in the window.
    std::optional<std::size_t> next()
    {
        std::unique_lock lock(mutex_);
        room_.wait(lock,
                   [this] {
                       return isStopped_ || next_ == work_.files || next_ < taken_ + window_.size();
                   });
        return isStopped_ || next_ == work_.files ? std::nullopt : std::optional(next_++);
    }

    Outcome made(std::size_t file) const
    {
        try
        {
            return {work_.make(file), nullptr};
        }
        catch (...)
        {
            return {{}, std::current_exception()};
        }
    }

    const OrderedWork& work_;
    std::mutex mutex_;
    std::condition_variable done_; // a report has been made
    std::condition_variable room_; // a report has been taken
    std::vector<std::optional<Outcome>> window_;
    std::size_t next_ = 0;
    std::size_t taken_ = 0;
    bool isStopped_ = false;
    std::vector<std::thread> threads_;
};

} // namespace

void workInOrder(const OrderedWork& work, unsigned threads)
{
    std::optional<Workers> workers;
    if (threads > 1)
    {
        workers.emplace(work, threads);
    }
    const bool isAlone = !workers || workers->hasNone();
    for (std::size_t file = 0; file < work.files; ++file)
    {
        work.wait(file);
        work.take(isAlone ? work.make(file) : workers->taken(file));
    }
}

} // namespace tool
