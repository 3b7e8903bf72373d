#include "rejected.h"

#include "reading.h"

#include <gtest/gtest.h>

namespace test
{

void expectRejected(const std::vector<RejectedDocument>& documents)
{
    for (const RejectedDocument& document : documents)
    {
        SCOPED_TRACE(testing::PrintToString(document.text));
        const Reading reading = read(document.text);
        EXPECT_FALSE(reading.accepted);
        EXPECT_EQ(reading.events, document.events);
        expectDriverLog(reading.lines, document.messages);
    }
}

} // namespace test
