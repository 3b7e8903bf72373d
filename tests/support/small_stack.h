#pragma once

#include <pthread.h>

#include <cstddef>
#include <functional>
#include <stdexcept>

namespace test
{

// Does something on a thread with a stack of this size, in bytes.
inline void onThread(std::size_t stackSize, std::function<void()> work)
{
    pthread_attr_t attributes;
    pthread_t thread = {};
    pthread_attr_init(&attributes);
    const auto run = [](void* function) -> void*
    {
        (*static_cast<std::function<void()>*>(function))();
        return nullptr;
    };
    if (pthread_attr_setstacksize(&attributes, stackSize) != 0 ||
        pthread_create(&thread, &attributes, run, &work) != 0 || pthread_join(thread, nullptr) != 0)
    {
        throw std::runtime_error("no thread with such a stack");
    }
    pthread_attr_destroy(&attributes);
}

} // namespace test
