// vorn-toml tree and vorn-toml tokens.
#include "tools/tool_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace
{

using test::accepted;
using test::expectRun;
using test::rejected;
using test::runTool;

TEST(VornTomlTree, DrawsEveryKindOfNode)
{
    expectRun(runTool({"tree", "-"}, "a.'b' = [\"c\", 'd', \"\"\"e\"\"\", '''f\n''']\n[g]\n[[h]]\n"
                                     "i = {j = 1, k = 2.5}\nl = true\nm = 2024-01-31\n"
                                     "n = 07:32:00\no = 2024-01-31T07:32:00\n"
                                     "p = 2024-01-31T07:32:00Z\n"),
              accepted,
              "document\n"
              "  pair\n"
              "    dotted key\n"
              "      bare key a\n"
              "      quoted key 'b'\n"
              "    array\n"
              "      string \"c\"\n"
              "      literal string 'd'\n"
              "      multi-line string \"\"\"e\"\"\"\n"
              "      multi-line literal string '''f\\n'''\n"
              "  header\n"
              "    bare key g\n"
              "  header of an array of tables\n"
              "    bare key h\n"
              "  pair\n"
              "    bare key i\n"
              "    inline table\n"
              "      pair\n"
              "        bare key j\n"
              "        integer 1\n"
              "      pair\n"
              "        bare key k\n"
              "        float 2.5\n"
              "  pair\n"
              "    bare key l\n"
              "    boolean true\n"
              "  pair\n"
              "    bare key m\n"
              "    date 2024-01-31\n"
              "  pair\n"
              "    bare key n\n"
              "    time 07:32:00\n"
              "  pair\n"
              "    bare key o\n"
              "    local date-time 2024-01-31T07:32:00\n"
              "  pair\n"
              "    bare key p\n"
              "    offset date-time 2024-01-31T07:32:00Z\n",
              "");
}

TEST(VornTomlTree, PrintsGraphs)
{
    expectRun(runTool({"tree", "--dot", "-"}, "a = \"b\\\\\"\n"), accepted,
              "digraph \"-\" {\n"
              "  node [fontname=\"monospace\"];\n"
              "  n0 [shape=ellipse, label=\"document\"];\n"
              "  n1 [shape=ellipse, label=\"pair\"];\n"
              "  n0 -> n1;\n"
              "  n2 [shape=box, label=\"bare key\\na\"];\n"
              "  n1 -> n2;\n"
              "  n3 [shape=box, label=\"string\\n\\\"b\\\\\\\\\\\"\"];\n"
              "  n1 -> n3;\n"
              "}\n",
              "");
}

TEST(VornTomlTree, DrawsWhatCouldBeMadeOutAndExplainsTheRest)
{
    const std::string explanation = "-:2:4: error: expected a value, found the end of the line\n"
                                    "    2 | b =\n"
                                    "      |    ^\n"
                                    "      = hint: The value must start on the line of its key.\n";
    expectRun(runTool({"tree", "-"}, "a = 1\nb =\nc = 2\n"), rejected,
              "document\n"
              "  pair\n"
              "    bare key a\n"
              "    integer 1\n"
              "  pair\n"
              "    bare key b\n",
              explanation);
    const test::ProgramRun graph = runTool({"tree", "--dot", "-"}, "a = 1\nb =\nc = 2\n");
    EXPECT_EQ(graph.status, rejected);
    EXPECT_EQ(graph.standardError, explanation);
    EXPECT_EQ(graph.standardOutput.substr(graph.standardOutput.size() - 4), ";\n}\n");
}

TEST(VornTomlTree, HasLinesThatDoNotGrowWithTheDepth)
{
    const std::string deep = std::string(150, '[') + '1' + std::string(150, ']');
    const std::string output = runTool({"tree", "-"}, "a = " + deep + '\n').standardOutput;
    const std::string indentation(200, ' ');
    EXPECT_NE(output.find('\n' + indentation + "array\n" + indentation + "(level 101) array\n"),
              std::string::npos);
    EXPECT_EQ(output.substr(output.rfind('\n', output.size() - 2) + 1),
              indentation + "(level 152) integer 1\n");
}

TEST(VornTomlTokens, ListsThemWithTheirPlaces)
{
    expectRun(
        runTool({"tokens", "-"}, "\xef\xbb\xbf'\xc3\xa9' = [1, 0x1F] # c\r\n\n\t'''a\nb''' ="),
        rejected,
        "1:1      literal string             '\\xC3\\xA9'\n"
        "1:5      '='                        =\n"
        "1:7      '['                        [\n"
        "1:8      integer                    1\n"
        "1:9      ','                        ,\n"
        "1:11     hexadecimal integer        0x1F\n"
        "1:15     ']'                        ]\n"
        "1:21     end of the line            \\n\\n\n"
        "3:2      multi-line literal string  '''a\\nb'''\n"
        "4:6      '='                        =\n"
        "4:7      end of the file\n",
        "-:3:2: error: expected a key or a header, found the multi-line literal string '''a\n"
        "    3 |     '''a\n"
        "      |     ^~~~\n"
        "      = hint: A quoted key is written on one line, with \" or '.\n");
}

TEST(VornTomlTokens, ListsWhatIsNoToken)
{
    const test::ProgramRun run = runTool({"tokens", "-"}, "a = @1\n");
    EXPECT_EQ(run.status, rejected);
    EXPECT_EQ(run.standardOutput, "1:1      bare key                   a\n"
                                  "1:3      '='                        =\n"
                                  "1:5      (no token)                 @\n"
                                  "1:6      integer                    1\n"
                                  "1:7      end of the line            \\n\n"
                                  "2:1      end of the file\n");
}

} // namespace
