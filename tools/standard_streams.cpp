#include "standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <new>

namespace tool
{
namespace
{

// A file that is opened takes the lowest free descriptor.  If that is one of a closed stream,
// what the program prints arrives in the file, so closed streams get one that fails to be used.
void occupyClosedStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    {
        if (fcntl(stream, F_GETFD) == -1 && errno == EBADF)
        {
            open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

// Without a buffer every part of a line is a write of its own.
void bufferErrorStream()
{
    static std::array<char, BUFSIZ> buffer = {};
    std::setvbuf(stderr, buffer.data(), _IOLBF, buffer.size());
}

} // namespace

StandardStreams::StandardStreams() : output_(stdout)
{
    occupyClosedStreams();
    bufferErrorStream();
    // The C library keeps that a write has failed, but not why.
    cookie_io_functions_t functions = {};
    functions.write = write;
    std::FILE* const output = fopencookie(this, "w", functions);
    if (output == nullptr)
    {
        throw std::bad_alloc();
    }
    std::setvbuf(output, nullptr, _IOLBF, BUFSIZ);
    stdout = output;
}

StandardStreams::~StandardStreams()
{
    std::fclose(stdout);
    stdout = output_;
}

int StandardStreams::outputFailure() const
{
    std::fflush(stdout);
    return failure_;
}

ssize_t StandardStreams::write(void* streams, const char* bytes, std::size_t size)
{
    int& failure = static_cast<StandardStreams*>(streams)->failure_;
    for (std::size_t written = 0; written < size && failure == 0;)
    {
        const ssize_t count = ::write(STDOUT_FILENO, bytes + written, size - written);
        if (count >= 0)
        {
            written += static_cast<std::size_t>(count);
        }
        else if (errno != EINTR)
        {
            failure = errno;
        }
    }
    // The C library takes 0 for a failure.
    return failure == 0 ? static_cast<ssize_t>(size) : 0;
}

} // namespace tool
