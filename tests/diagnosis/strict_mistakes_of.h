// What is found in a document, as a test writes it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "diagnosis/mistake.h"

namespace test
{

// The mistakes in the statements of a document.  Statements that cannot be read are skipped.
std::vector<vorn::parsers::toml::diagnosis::Mistake> strictMistakes(const std::string& text,
                                                                    std::size_t max = 0);

// Whether all statements can be read.
bool isRead(const std::string& text);

// Each mistake in a line: its code, its part of the document, and the parts that are said to
// be there first.
std::string shown(const std::string& text,
                  const std::vector<vorn::parsers::toml::diagnosis::Mistake>& mistakes);

struct StrictCase
{
    std::string text;
    std::string mistakes; // as shown() has them
};

// Expects the mistakes of statements.
void expectStrict(const std::vector<StrictCase>& cases);

} // namespace test
