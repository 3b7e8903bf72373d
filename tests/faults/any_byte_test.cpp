// Small documents with any byte at any place: the library and the reference show the same.
#include "differential/comparison.h"
#include "differential/crash_report.h"
#include "differential/escaped.h"
#include "differential/kept_memory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

const std::vector<std::string> documents = {
    "a = 1\n",
    "[t.u]\r\n",
    "[[t]]\n# c\n",
    "a.'b' = \"c\"\n",
    "a = [1, 2,]\n",
    "a = {b = 'c'}\n",
    "a = 0xF\nb = -1_0\n",
    "a = -1.5e+3\n",
    "a = +nan\nb = true\n",
    "a = 1979-05-27T07:32:00Z\n",
    "a = 07:32:00.5\n",
    "a = \"\\n\\u00e9\"\n",
    "a = '''\nx'''\n",
    "a = \"\"\"x\\\n y\"\"\"\n",
    "a = '\xc3\xa9\xe2\x82\xac'\n",
};

struct Figures
{
    int accepted = 0;
    int refused = 0;
};

void compareInto(Figures& figures, const std::string& document)
{
    const test::Comparison comparison = test::compare(document);
    ASSERT_TRUE(comparison.isWell()) << test::escaped(document) << '\n'
                                     << test::describe(comparison);
    ++(comparison.library.accepted ? figures.accepted : figures.refused);
}

class AnyByte : public testing::TestWithParam<std::string>
{
};

} // namespace

TEST_P(AnyByte, inAnyPlaceIsReadAsByTheReference)
{
    static std::string document;
    test::reportCrashesOn(document);
    test::keepMemory();
    Figures figures;
    for (std::size_t place = 0; place <= GetParam().size(); ++place)
    {
        for (int byte = static_cast<int>(place % VORN_TEST_STEP); byte < 256;
             byte += VORN_TEST_STEP)
        {
            document = GetParam();
            document.insert(place, 1, static_cast<char>(byte));
            ASSERT_NO_FATAL_FAILURE(compareInto(figures, document));
            if (place < GetParam().size())
            {
                document = GetParam();
                document[place] = static_cast<char>(byte);
                ASSERT_NO_FATAL_FAILURE(compareInto(figures, document));
            }
        }
    }
    EXPECT_GT(figures.accepted, 0);
    EXPECT_GT(figures.refused, 0);
}

INSTANTIATE_TEST_SUITE_P(OfADocument, AnyByte, testing::ValuesIn(documents));
