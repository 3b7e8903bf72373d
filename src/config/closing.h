// What can only be said once a table or a list is complete.
#pragma once

#include <cstdint>
#include <string>

#include "containers.h"
#include "problems.h"

namespace vorn::parsers::toml::config
{

class Closing
{
public:
    Closing(Containers& containers, Problems& problems)
        : containers_(containers), problems_(problems)
    {
    }

    // Closes a container with all in it: says which keys are missing, whether a list has too few
    // or too many elements, and what the schema's checks say.
    void close(std::uint32_t number);
    // Closes all lists, likewise.
    void closeLists();

private:
    void closeOne(std::uint32_t number);
    void findMissing(std::uint32_t number);
    void findMissingIn(const Table& table, const std::string& path, std::uint32_t number,
                       const Spot& spot);
    void checkCount(std::uint32_t number);
    void checkMember(std::uint32_t number);
    void checkTable(std::uint32_t number);
    Spot spotOf(std::uint32_t number, std::uint32_t node) const;
    void report(std::uint32_t number, Spot spot, std::string&& path, std::string&& message,
                Problems::Order order = Problems::Order::byPlace);

    Containers& containers_;
    Problems& problems_;
};

} // namespace vorn::parsers::toml::config
