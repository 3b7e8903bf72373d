#pragma once

#include "random.h"
#include "token_generator.h"

#include <cstddef>
#include <string>

namespace test
{

// Changes a small part of a document, at or after a place: a token, a line, a line break, a
// bracket or a quote, or some bytes.  The rest stays as it is.
void mutate(std::string& document, std::size_t place, Random& random, TokenGenerator& tokens);

// A place to mutate: anywhere, and more often than by chance at either end, or near `other`.
std::size_t placeIn(const std::string& document, std::size_t other, Random& random);

// One or more lines with a mistake, or with a text that is mistaken only where it stands.
std::string mistakenLines(Random& random, TokenGenerator& tokens);

// One with a mistake after which the walk goes on, if nothing else ends it.
std::string walkedLine(Random& random);

// Inserts a line before the one at a place.
void insertLine(std::string& document, std::size_t place, const std::string& line);

} // namespace test
