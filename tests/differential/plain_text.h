#pragma once

#include <string_view>

namespace test
{

// Whether a text is well-formed UTF-8 of characters up to U+FFFF.
bool isPlainText(std::string_view text);

} // namespace test
