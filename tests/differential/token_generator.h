#pragma once

#include "random.h"

#include <string>

namespace test
{

// Makes tokens at random, each well-formed.
class TokenGenerator
{
public:
    explicit TokenGenerator(Random& random) : random_(random) {}

    // Blanks, or nothing.
    std::string blanks();
    // A run of line breaks that is one token.
    std::string newlines();
    // A comment without its line break.
    std::string comment();

    // One part of a key.
    std::string key();
    std::string scalar();

private:
    std::string quoted(char quote);
    std::string multiLine(char quote);
    std::string content(char quote, bool lines);
    std::string contentItem(char quote, bool lines);
    std::string longContent();
    std::string string();
    std::string digits(std::string_view set, std::size_t least, std::size_t most);
    std::string integer();
    std::string exponent();
    std::string floating();
    std::string dateTime();

    Random& random_;
};

} // namespace test
