// Documents that are accepted, and the visitor calls that they make.
#include <gtest/gtest.h>

#include "support/driver_log.h"
#include "support/event_lists.h"
#include "support/reading.h"

using namespace std::string_literals;
using namespace test;

namespace
{

const Events aIsOne = pair(bare("a"), integer("1"));
const Events bIsTwo = pair(bare("b"), integer("2"));

struct Document
{
    std::string text;
    Events events;
};

void expectAccepted(const std::string& text, const Events& events)
{
    SCOPED_TRACE(testing::PrintToString(text));
    const Reading reading = read(text);
    EXPECT_TRUE(reading.accepted);
    EXPECT_EQ(reading.events, events);
    expectDriverLog(reading.lines, {});
    EXPECT_EQ(reading.standardError, "");
}

void expectEach(const Events& events, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts)
    {
        expectAccepted(text, events);
    }
}

void expectAllAccepted(const std::vector<Document>& documents)
{
    for (const Document& one : documents)
    {
        expectAccepted(one.text, one.events);
    }
}

} // namespace

TEST(TomlText, linesWithoutContentMakeNoCalls)
{
    expectEach(document({}), {"", "\n", "\n\n\n", "\r\n", "\r\n\n\r\n", "   ", " \t ", " \n\t\n",
                              "# only a comment", "# c\n", "#", "#\n#\n", "# c\r\n", "\n\n \n# c\n",
                              "# \x01\x7f\t\r c\n", "# \xc3\xa9\xe2\x82\xac\xef\xbf\xbf\n",
                              "\xef\xbb\xbf", "\xef\xbb\xbf# c\n", "# NUL \0 in a comment\n"s});
}

TEST(TomlText, linesEndWithALineBreakAndMayHoldBlanksAndAComment)
{
    expectEach(document({aIsOne}),
               {"a = 1\n", "a=1\n", " \ta\t = \t1 \n", "a = 1\r\n", "a = 1\n ", "a = 1\n# c",
                "a = 1 # c\n", "a = 1# c = 2\n", "\n\n# c\n \na = 1\n\n",
                "\xef\xbb\xbf"
                "a = 1\n"});
    expectEach(document({aIsOne, bIsTwo}), {"a = 1\nb = 2\n", "a = 1\r\nb = 2\r\n",
                                            "a = 1\n\n\nb = 2\n", "a = 1\n \n# c\n\t# d\nb = 2\n"});
    expectEach(document({table(bare("t"))}), {"[t] # c\n"});
    expectEach(document({aIsOne, aIsOne}), {"a = 1\na = 1\n"});
}

TEST(TomlText, headersDoNotEncloseTheirPairs)
{
    const Events server = bare("server");
    expectAllAccepted({
        {"[server]\n", document({table(server)})},
        {" [ server ] \n", document({table(server)})},
        {"[[server]]\n", document({arrayTable(server)})},
        {"[ [server] ]\n", document({arrayTable(server)})},
        {"[[\tserver ] ]\n", document({arrayTable(server)})},
        {"[server]\na = 1\n", document({table(server), aIsOne})},
        {"a = 1\n[server]\nb = 2\n", document({aIsOne, table(server), bIsTwo})},
        {"[[server]]\na = 1\n[[server]]\nb = 2\n",
         document({arrayTable(server), aIsOne, arrayTable(server), bIsTwo})},
        {"[a.b]\n", document({table(dotted({bare("a"), bare("b")}))})},
        {"[ a . \"b\" ]\n", document({table(dotted({bare("a"), quoted("\"b\"")}))})},
        {"[[a.'b'.c]]\n", document({arrayTable(dotted({bare("a"), quoted("'b'"), bare("c")}))})},
        {"[\"\"]\n", document({table(quoted("\"\""))})},
        {"[server]\n[server]\n", document({table(server), table(server)})},
    });
}

TEST(TomlText, keysOfManyPartsAreEnclosed)
{
    const Events one = integer("1");
    expectAllAccepted({
        {"a.b.c = 1\n", document({pair(dotted({bare("a"), bare("b"), bare("c")}), one)})},
        {"a . b\t.c=1\n", document({pair(dotted({bare("a"), bare("b"), bare("c")}), one)})},
        {"\"a\".'b' = 1\n", document({pair(dotted({quoted("\"a\""), quoted("'b'")}), one)})},
        {"a.\"b.c\".d = 1\n",
         document({pair(dotted({bare("a"), quoted("\"b.c\""), bare("d")}), one)})},
        {"a.-._ = 1\n", document({pair(dotted({bare("a"), bare("-"), bare("_")}), one)})},
    });
}

TEST(TomlText, bareKeysAreWhatDoesNotLexAsAValue)
{
    for (const std::string key :
         {"abc",      "A-Z_0",   "-",           "_",           "---",   "a",      "T",
          "e",        "tr",      "truex",       "true_",       "true-", "falsey", "truetrue",
          "infinity", "inf-",    "nanx",        "nan_",        "Inf",   "NaN",    "True",
          "00",       "01",      "-01",         "0_1",         "1_",    "1__0",   "123a",
          "0x",       "0x1G",    "0X1F",        "0o8",         "0b2",   "0x_1",   "1e",
          "1979-",    "1979-05", "1979-05-27T", "1979-05-27Z", "-a",    "-infx"})
    {
        expectAccepted(key + "=1\n", document({pair(bare(key), integer("1"))}));
        expectAccepted("[" + key + "]\n", document({table(bare(key))}));
        expectAccepted(key + ".a=1\n", document({pair(dotted({bare(key), bare("a")}), //
                                                      integer("1"))}));
    }
}

TEST(TomlText, stringsOfOneLineAreKeysToo)
{
    for (const std::string key :
         {"\"\"", "''", "\"a b\"", "'a b'", "\"\\u00e9\"", "\"a\\\"b\"", "'C:\\p\\'",
          "\"127.0.0.1\"", "\"\xc3\xa9\"", "'\xe2\x82\xac'", "\"\t\"", "\"'\"", "'\"'", "\"true\""})
    {
        expectAccepted(key + " = 1\n", document({pair(quoted(key), integer("1"))}));
        expectAccepted("[" + key + "]\n", document({table(quoted(key))}));
        expectAccepted("[[" + key + ".a]]\n",
                       document({arrayTable(dotted({quoted(key), bare("a")}))}));
    }
}

TEST(TomlText, arraysHoldValuesOfAnyKind)
{
    const Events one = integer("1");
    const Events two = integer("2");
    const auto list = [](std::initializer_list<Events> elements)
    { return document({pair(bare("a"), array(elements))}); };
    expectAllAccepted({
        {"a = [1]\n", list({one})},
        {"a = [ 1 , 2 ]\n", list({one, two})},
        {"a = [1,]\n", list({one})},
        {"a = [1, 2, ]\n", list({one, two})},
        {"a = [[1], [2]]\n", list({array({one}), array({two})})},
        {"a = [[[1]]]\n", list({array({array({one})})})},
        {"a = [1, \"two\", [2], {x = 1}]\n",
         list({one, scalar("visitBasicString", "\"two\""), array({two}),
               inlineTable({pair(bare("x"), one)})})},
        {"a = [1.5, true, 07:32:00, inf]\n",
         list({scalar("visitFloat", "1.5"), scalar("visitBoolean", "true"),
               scalar("visitLocalTime", "07:32:00"), scalar("visitFloat", "inf")})},
    });
}

TEST(TomlText, arraysMayBreakLinesInSomePlaces)
{
    const Events one = integer("1");
    const Events two = integer("2");
    const auto list = [](std::initializer_list<Events> elements)
    { return document({pair(bare("a"), array(elements))}); };
    expectEach(list({one}),
               {"a = [\n1]\n", "a = [\n\n1]\n", "a = [\r\n\r\n  1]\n", "a = [ # c\n1]\n"});
    expectEach(list({one, two}), {"a = [1\n, 2]\n", "a = [1,\n2]\n", "a = [1, # c\n2 # d\n] # e\n",
                                  "a = [\n  1,\n  2 ]\n", "a = [\n  1,\n  2\n]\n",
                                  "a = [\n  1\n  ,\n  2\n]\n", "a = [1,\n2,]\n"});
    expectEach(list({one, two, one}), {"a = [1,\n2\n,1\n]\n"});
}

TEST(TomlText, inlineTablesHoldPairs)
{
    const Events one = integer("1");
    const Events two = integer("2");
    const auto holding = [](std::initializer_list<Events> pairs)
    { return document({pair(bare("a"), inlineTable(pairs))}); };
    expectAllAccepted({
        {"a = {x = 1}\n", holding({pair(bare("x"), one)})},
        {"a={x=1,x=2}\n", holding({pair(bare("x"), one), pair(bare("x"), two)})},
        {"a = { x = 1, y.z = 2 }\n",
         holding({pair(bare("x"), one), pair(dotted({bare("y"), bare("z")}), two)})},
        {"a = {'x' = {y = 1}}\n",
         holding({pair(quoted("'x'"), inlineTable({pair(bare("y"), one)}))})},
        {"a = {x = [1, 2]}\n", holding({pair(bare("x"), array({one, two}))})},
        {"a = {x = [\n1,\n2\n]}\n", holding({pair(bare("x"), array({one, two}))})},
    });
}

TEST(TomlText, nestingHasNoLimitOfItsOwn)
{
    constexpr std::size_t depth = 500;
    const std::string opening = "a = " + std::string(depth, '[');
    Events events = {"beginDocument", "beginKeyValue", "visitBareKey a"};
    events.insert(events.end(), depth, "beginArray");
    events.push_back("visitInteger 1");
    events.insert(events.end(), depth, "endArray");
    events.insert(events.end(), {"endKeyValue", "endDocument"});
    expectAccepted(opening + '1' + std::string(depth, ']') + '\n', events);
}
