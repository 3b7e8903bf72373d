// The documents that are read into structs, and the structs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <vorn/parsers/toml_config.h>

namespace bench
{

// What a program wants to know of a service.
struct Service
{
    std::string name;
    std::string command;
    std::uint16_t port = 0;
    bool enabled = false;
    double timeout = 1;
    std::vector<std::string> args;
    std::int64_t memory = 0;
    std::int64_t files = 0;
};

bool operator==(const Service& one, const Service& other);

struct Services
{
    std::vector<Service> services;
};

// A document that describes so many services, at most 64,000: each has a port of its own.
std::string servicesDocument(std::size_t count);

// What such a document says, filled without one, as a reader does that meets one value after the
// other: lists grow by an element each time.
Services servicesByHand(std::size_t count);

// Which keys fill which members.
const vorn::parsers::toml::Schema<Services>& servicesSchema();

} // namespace bench
