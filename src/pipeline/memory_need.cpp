#include "memory_need.h"

#include <antlr3.h>
#include <sys/mman.h>

#include <limits>

#include "buffer_hints.h"
#include "stack_room.h"

namespace vorn::parsers::toml
{
namespace
{

constexpr std::size_t mebibyte = std::size_t{1024} * 1024;

// The runtime's objects before any token: the node stream's buffer and the first pools of
// tokens, trees and vectors, of which it makes more than one each.
constexpr std::size_t fixedNeed =
    nodeBufferHint * sizeof(ANTLR3_VECTOR_ELEMENT) +
    ANTLR3_FACTORY_POOL_SIZE * (5 * sizeof(ANTLR3_COMMON_TOKEN) + 3 * sizeof(ANTLR3_COMMON_TREE)) +
    ANTLR3_FACTORY_VPOOL_SIZE * 4 * sizeof(ANTLR3_VECTOR) + mebibyte;

// What a token leads to, at most: itself, a few nodes with their lists of children, the
// token of an imaginary node, and the places of all these in the runtime's vectors.  The
// hungriest documents seen took four fifths of this.
constexpr std::size_t needOfToken = 2 * sizeof(ANTLR3_COMMON_TOKEN) +
                                    3 * sizeof(ANTLR3_COMMON_TREE) + 2 * sizeof(ANTLR3_VECTOR) +
                                    12 * sizeof(ANTLR3_VECTOR_ELEMENT);

// A token that is put in where one is missing, with its text, and their places in lists.
constexpr std::size_t needOfMissing =
    sizeof(ANTLR3_COMMON_TOKEN) + sizeof(ANTLR3_STRING) + 8 * sizeof(ANTLR3_VECTOR_ELEMENT);

// A list that grows becomes twice as long, while the shorter one is still there.
constexpr std::size_t needOfListed = 3 * sizeof(ANTLR3_VECTOR_ELEMENT);

// Copies of the document, or parts of it, that an error makes: in the runtime's display,
// in the log line, in the logger.
constexpr std::size_t copies = 8;

// In a small address space what is free need not be in one piece.
constexpr std::size_t maxInOnePiece = sizeof(void*) > 4 ? std::numeric_limits<std::size_t>::max()
                                                        : 32 * mebibyte;

// A mapping that is never touched.
class Reservation
{
public:
    explicit Reservation(std::size_t size)
        : size_(size),
          address_(mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))
    {
    }
    Reservation(const Reservation&) = delete;
    Reservation& operator=(const Reservation&) = delete;
    ~Reservation()
    {
        if (succeeded())
        {
            munmap(address_, size_);
        }
    }

    bool succeeded() const noexcept { return address_ != MAP_FAILED; }

private:
    std::size_t size_;
    void* address_;
};

// The largest number stands for a need that is larger.
std::size_t sum(std::size_t first, std::size_t second) noexcept
{
    std::size_t result = 0;
    return __builtin_add_overflow(first, second, &result) ? std::numeric_limits<std::size_t>::max()
                                                          : result;
}

std::size_t product(std::size_t first, std::size_t second) noexcept
{
    std::size_t result = 0;
    return __builtin_mul_overflow(first, second, &result) ? std::numeric_limits<std::size_t>::max()
                                                          : result;
}

} // namespace

std::size_t memoryForLexing(std::size_t documentSize) noexcept
{
    return sum(fixedNeed, documentSize);
}

std::size_t memoryForReading(std::size_t documentSize, std::size_t tokens,
                             std::size_t brackets) noexcept
{
    return sum(sum(fixedNeed, product(documentSize, copies)),
               sum(product(tokens, needOfToken), product(brackets, maxStackOfLevel)));
}

std::size_t memoryForChecking(std::size_t documentSize, std::size_t tokens, std::size_t brackets,
                              std::size_t listed) noexcept
{
    return sum(memoryForReading(documentSize, 0, brackets),
               sum(product(tokens, needOfMissing), product(listed, needOfListed)));
}

// NOLINTNEXTLINE(misc-no-recursion): a piece is a large part of the address space.
bool isMemoryLeft(std::size_t size) noexcept
{
    if (size > maxInOnePiece)
    {
        // All pieces are held until the last one has been had.
        const Reservation piece(maxInOnePiece);
        return piece.succeeded() && isMemoryLeft(size - maxInOnePiece);
    }
    return size == 0 || Reservation(size).succeeded();
}

} // namespace vorn::parsers::toml
