// Arrays in `vorn-toml fix`: brackets, commas, line breaks and comments.
#include "tools/fixed.h"

using namespace test;

namespace
{

TEST(FixArrayLayout, ClosingBracketAfterOneElement)
{
    expectFixed({
        {"a = [\n  1\n]\n", "a = [\n  1]\n"},
        {"a = [\n  1,\n]\n", "a = [\n  1,]\n"},
        {"a = [\n  1\n  ,\n]\n", "a = [\n  1,]\n"},
        {"a = [1\n,]\n", "a = [1,]\n"},
        {"a = [\n  [1\n],\n]\n", "a = [\n  [1],]\n"},
        {"a = [\r\n  1\r\n]\r\n", "a = [\r\n  1]\r\n"},
        {"a = {b = [\n1\n], c = 2}\n", "a = {b = [\n1], c = 2}\n"},
    });
}

TEST(FixArrayLayout, ClosingBracketAfterSeveralElements)
{
    expectFixed({
        {"a = [\n  1,\n  2,\n]\n", "a = [\n  1,\n  2\n]\n"},
        {"a = [\n  1,\n  2, # two\n]\n", "a = [\n  1,\n  2 # two\n]\n"},
        {"a = [\n  1,\n  2\n  ,\n]\n", "a = [\n  1,\n  2\n]\n"},
        {"a = [\n  1,\n  2 # two\n  , \n]\n", "a = [\n  1,\n  2 # two\n]\n"},
        {"a = [\n  1,\n  2\n  ,\n\n # end\n]\n", " # end\na = [\n  1,\n  2\n\n]\n"},
        {"a = [1, 2 # two\n  , # comma\n]\n", "   # comma\na = [1, 2 # two\n]\n"},
        {"a = [1,\n  2,\n\n  # end\n\n]\n", "  # end\na = [1,\n  2\n\n\n]\n"},
        {"a = [1, [2, 3,\n],\n]\n", "a = [1, [2, 3\n]\n]\n"},
        {"a = [1, {b = 2},\n]\n", "a = [1, {b = 2}\n]\n"},
    });
}

TEST(FixArrayLayout, LinesOfBlanks)
{
    expectFixed({
        {"a = [1,\n  \n2]\n", "a = [1,\n\n2]\n"},
        {"a = [1,\n  \n\t\n  2]\n", "a = [1,\n\n\n  2]\n"},
        {"a = [ \n \n1]\n", "a = [ \n\n1]\n"},
        {"a = [1, 2\n \n]\n", "a = [1, 2\n\n]\n"},
        {"a = [1 \n \n , 2]\n", "a = [1 \n\n , 2]\n"},
        {"a = [1, 2\n \n,]\n", "a = [1, 2\n\n,]\n"},
        {"a = [1, 2\n \n \n , 3]\n", "a = [1, 2\n\n\n , 3]\n"},
    });
}

TEST(FixArrayLayout, MovesCommentsOfTheirOwnBeforeTheStatement)
{
    expectFixed({
        {"a = [1,\n  # two\n  2]\n", "  # two\na = [1,\n  2]\n"},
        {"x = 1\n  a = [ # first\n\t# one\n  1, # first\n  # two\n  # 2\n\n  2]\n",
         "x = 1\n\t# one\n  # two\n  # 2\n  a = [ # first\n  1, # first\n\n  2]\n"},
        {"a = [1 # one\n  # two\n  , 2]\n", "  # two\na = [1 # one\n  , 2]\n"},
        {"a = [[\n# one\n1], {b = [1,\n# two\n2]}]\n",
         "# one\n# two\na = [[\n1], {b = [1,\n2]}]\n"},
        {"a = [\r\n# one\r\n1]\n", "# one\r\na = [\r\n1]\n"},
        {"\xef\xbb\xbf"
         "a = [\n# one\n1]\n",
         "\xef\xbb\xbf# one\na = [\n1]\n"},
        {"a = [\n# one\n1]\nb = [\n# two\n2]\n", "# one\na = [\n1]\n# two\nb = [\n2]\n"},
    });
}

TEST(FixArrayLayout, MovesCommentsAfterASingleElement)
{
    expectFixed({
        {"  a = [\n    1, # one\n    # end\n  ]\n", "  # one\n    # end\n  a = [\n    1,]\n"},
        {"a = [1 # one\n]\n", "# one\na = [1]\n"},
        {"a = [1 # one\n, # comma\n]\n", "# one\n# comma\na = [1,]\n"},
    });
}

TEST(FixArrayLayout, LeavesWhatIsAccepted)
{
    const std::vector<std::string> arrays = {
        "[ # first\n  1, # one\n  2 # two\n]",
        "[1, 2,]",
        "[\n\n\n1\n,\n2\n,\n3\n]",
        "[1, 2\n# two\n, 3]",
        "[1,2\n,]",
        "[1 ,\t2 , ]",
        "[[\n1], [1,\n2\n]]",
    };
    for (const std::string& array : arrays)
    {
        SCOPED_TRACE(array);
        expectUnchanged({"a = " + array + '\n'});
        // It stays beside others, too.
        expectFixed({{"a = " + array + "\nb = [\n1\n]", "a = " + array + "\nb = [\n1]\n"}});
    }
}

TEST(FixArrayLayout, TakesAnyDepth)
{
    std::string before = "a = ";
    const int depth = 20000;
    for (int level = 0; level < depth; ++level)
    {
        before += "[ # x\n # y\n";
    }
    before += '1';
    for (int level = 0; level < depth; ++level)
    {
        before += ",\n]";
    }
    const tool::fixing::FixResult result = fixText(before);
    EXPECT_EQ(result.outcome, tool::fixing::FixOutcome::fixed);
    EXPECT_EQ(result.text.substr(0, 10), " # y\n # y\n");
    EXPECT_EQ(result.text.substr(result.text.size() - 7), ",],],]\n");
}

} // namespace
