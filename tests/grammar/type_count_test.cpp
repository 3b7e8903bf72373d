#include <gtest/gtest.h>

#include "grammar/type_count.h"

#include <algorithm>
#include <regex>
#include <string>

#include "support/generated_file.h"

TEST(TypeCount, reachesTheLastOfTheVocabulary)
{
    const std::string vocabulary = test::generatedFile("Toml.tokens");
    const std::regex line("=([0-9]+)\n");
    int last = 0;
    for (std::sregex_iterator match(vocabulary.begin(), vocabulary.end(), line), end; match != end;
         ++match)
    {
        last = std::max(last, std::stoi((*match)[1]));
    }
    EXPECT_EQ(vorn::parsers::toml::typeCount, last + 1);
}
