#pragma once

#include "block_generator.h"
#include "random.h"
#include "token_generator.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace test
{

// Makes documents of 2 to 200 KB at random: valid lines of all kinds, and one to five places,
// seldom more or none, at which something has been changed.
class LongDocumentGenerator
{
public:
    static constexpr std::size_t leastSize = 2000;
    static constexpr std::size_t mostSize = 200'000;

    explicit LongDocumentGenerator(std::uint64_t seed)
        : random_(seed), tokens_(random_), blocks_(random_, seed + 1)
    {
    }

    std::string next();

    // One without a mistake.
    std::string valid();

private:
    std::size_t mutations();

    Random random_;
    TokenGenerator tokens_;
    BlockGenerator blocks_;
};

} // namespace test
