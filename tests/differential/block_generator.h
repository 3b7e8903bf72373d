#pragma once

#include "document_generator.h"
#include "random.h"
#include "token_generator.h"

#include <cstdint>
#include <string>

namespace test
{

// Makes what the files of services are made of, at random: some valid lines that belong
// together, which end with a line break of the file's kind.
class BlockGenerator
{
public:
    BlockGenerator(Random& random, std::uint64_t seed)
        : random_(random), tokens_(random), documents_(seed)
    {
    }

    std::string block(const std::string& lineBreak);

private:
    std::string lines();
    std::string service();
    std::string table();
    std::string array();
    std::string tables();
    std::string text();
    std::string remarks();
    std::string longValue();
    std::string number(std::size_t limit) { return std::to_string(random_.below(limit)); }

    Random& random_;
    TokenGenerator tokens_;
    DocumentGenerator documents_;
};

} // namespace test
