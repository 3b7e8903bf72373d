// What `vorn-toml fix` makes of documents.
#pragma once

#include "fix/fix.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace test
{

struct Fixed
{
    std::string before;
    std::string after;
};

inline tool::fixing::FixResult fixText(const std::string& text, bool dropsComments = false)
{
    return tool::fixing::fix(text, {dropsComments});
}

// Each document becomes another one, which stays as it is.
inline void expectFixed(const std::vector<Fixed>& cases, bool dropsComments = false)
{
    for (const auto& [before, after] : cases)
    {
        SCOPED_TRACE(before);
        const tool::fixing::FixResult result = fixText(before, dropsComments);
        EXPECT_EQ(result.outcome, tool::fixing::FixOutcome::fixed);
        EXPECT_EQ(result.text, after);
        EXPECT_EQ(fixText(after).outcome, tool::fixing::FixOutcome::unchanged);
    }
}

inline void expectUnchanged(const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        SCOPED_TRACE(text);
        EXPECT_EQ(fixText(text).outcome, tool::fixing::FixOutcome::unchanged);
    }
}

} // namespace test
