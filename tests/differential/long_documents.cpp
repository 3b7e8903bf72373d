#include "long_documents.h"

#include "mutation.h"

#include <cmath>

namespace test
{

std::string LongDocumentGenerator::next()
{
    std::string document = valid();
    std::size_t place = 0;
    const bool areWalked = random_.oneIn(4);
    for (std::size_t times = mutations(); times > 0; --times)
    {
        place = placeIn(document, place, random_);
        if (areWalked)
        {
            insertLine(document, place, walkedLine(random_));
        }
        else
        {
            mutate(document, place, random_, tokens_);
        }
    }
    return document;
}

std::size_t LongDocumentGenerator::mutations()
{
    // None now and then: recognisers without the direct reader are compared on that, too.
    if (random_.oneIn(20))
    {
        return 0;
    }
    return random_.oneIn(8) ? random_.between(6, 40) : random_.between(1, 5);
}

// There are as many from 2 to 20 KB as from 20 to 200 KB.
std::string LongDocumentGenerator::valid()
{
    constexpr std::size_t steps = 1000;
    const double part = static_cast<double>(random_.below(steps)) / steps;
    const double ratio = static_cast<double>(mostSize) / leastSize;
    const auto size = static_cast<std::size_t>(leastSize * std::pow(ratio, part));
    const std::string lineBreak = random_.oneIn(4) ? "\r\n" : "\n";
    std::string document = random_.oneIn(10) ? "\xEF\xBB\xBF" : "";
    while (document.size() < size)
    {
        document += blocks_.block(lineBreak);
    }
    return document;
}

} // namespace test
