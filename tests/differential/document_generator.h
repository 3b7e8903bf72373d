#pragma once

#include "random.h"
#include "token_generator.h"

#include <cstdint>
#include <string>

namespace test
{

// Makes documents at random: most follow the grammar, some of those are then damaged in
// one or a few places, and a few documents are a mere mixture of tokens or characters.
// About half of all are valid.
class DocumentGenerator
{
public:
    explicit DocumentGenerator(std::uint64_t seed) : random_(seed), tokens_(random_) {}

    std::string next();

    // A pair or a header with a line break, or blank lines; all of it is valid.
    std::string validLine();

private:
    std::string document();
    std::string line();
    std::string lineEnd();
    std::string header();
    std::string pair(std::size_t depth);
    std::string key();
    std::string value(std::size_t depth);
    std::string array(std::size_t depth);
    std::string inlineTable(std::size_t depth);
    std::string breaks(std::size_t most);
    std::string nested(std::size_t levels);

    bool hasStrays_ = true; // whether arrays have a line break too many now and then
    Random random_;
    TokenGenerator tokens_;
};

} // namespace test
