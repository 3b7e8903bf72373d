// The blocks of bytes that there are on this processor.
#pragma once

#include "scan/byte_block.h"

#include <gtest/gtest.h>

namespace test
{

#if defined(__x86_64__)
using Blocks = testing::Types<vorn::parsers::toml::WordBlock, vorn::parsers::toml::VectorBlock>;
#else
using Blocks = testing::Types<vorn::parsers::toml::WordBlock>;
#endif

} // namespace test
