#pragma once

#include <cstddef>
#include <memory>
#include <new>

namespace vorn::parsers::toml
{

// Room for elements, never initialised.  A few fit the object itself: small documents are
// read without allocating memory, which would take a tenth of the time.
template <typename Element, std::size_t few>
class Scratch
{
public:
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): not initialised, as meant
    // cppcheck-suppress uninitMemberVar
    explicit Scratch(std::size_t count)
        : many_(count > few ? new (std::nothrow) Element[count] : nullptr),
          begin_(count > few ? many_.get() : few_)
    {
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;
    ~Scratch() = default;

    // The first element; null if there is no memory for so many.
    Element* begin() const noexcept { return begin_; }

private:
    Element few_[few];
    const std::unique_ptr<Element[]> many_;
    Element* const begin_;
};

} // namespace vorn::parsers::toml
