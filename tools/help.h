// The help, with examples; the tests run them.
#pragma once

namespace tool
{

constexpr const char* mainHelp =
    "Example:\n"
    "  $ vorn-toml check network.toml\n"
    "  network.toml: accepted\n"
    "\n"
    "Exit status: 0 accepted, 1 rejected, 2 wrong usage, 3 a file could not be read, or the\n"
    "output could not be written.\n"
    "Errors in a document go to standard error: check, tree and tokens explain them, events\n"
    "and values print what the library logs, with long texts shortened.";

constexpr const char* eventsExample = "  $ printf 'a = 1\\n' | vorn-toml events -\n"
                                      "  beginDocument\n"
                                      "  beginKeyValue\n"
                                      "  visitBareKey a\n"
                                      "  visitInteger 1\n"
                                      "  endKeyValue\n"
                                      "  endDocument\n";

constexpr const char* valuesExample =
    "  $ printf 'port = 0x1F\\nat = 1979-05-27T07:32:00\\n' |"
    " TZ=UTC0 vorn-toml values - | grep visit\n"
    "  visitBareKey port\n"
    "  visitInteger 0x1F -> 31\n"
    "  visitBareKey at\n"
    "  visitLocalDateTime 1979-05-27T07:32:00 -> 1979-05-27T07:32:00+00:00 (296638320)\n"
    "\n"
    "Values are what the library's conversions return.  Strings and quoted keys lose\n"
    "their quotes and keep their escapes; infinities and not-a-numbers become 0.\n"
    "Date-times are read as local time, in the zone TZ, and shown with its offset\n"
    "and the seconds since the epoch.  Bare keys, local dates and local times\n"
    "have no conversion and no arrow.  If a conversion throws, the reason is\n"
    "shown after the arrow as \"error: ...\".\n";

constexpr const char* checkExample =
    "  $ vorn-toml check network.toml\n"
    "  network.toml: accepted\n"
    "  $ printf 'names = []\\n' | vorn-toml check - 2>&1 || true\n"
    "  -:1:10: error: the array is empty\n"
    "      1 | names = []\n"
    "        |          ^\n"
    "        = hint: An array needs at least one element. Leave the key out instead.\n"
    "  -: rejected\n"
    "\n"
    "Explanations go to standard error, at most 20 errors per file; the lines that end with\n"
    "accepted or rejected go to standard output.  Columns count characters.\n"
    "--json prints an array with an object for each file: file, status (accepted, rejected or\n"
    "unreadable), errors (how many), findings (severity, line, column, endLine, endColumn,\n"
    "message and usually hint), and refusal where a document is too large or too deep.\n";

constexpr const char* treeExample = "  $ printf 'a.b = [1, 2]\\n' | vorn-toml tree -\n"
                                    "  document\n"
                                    "    pair\n"
                                    "      dotted key\n"
                                    "        bare key a\n"
                                    "        bare key b\n"
                                    "      array\n"
                                    "        integer 1\n"
                                    "        integer 2\n"
                                    "\n"
                                    "With --dot: vorn-toml tree --dot FILE | dot -Tsvg >tree.svg\n";

constexpr const char* tokensExample = "  $ printf 'a = true # yes\\n' | vorn-toml tokens -\n"
                                      "  1:1      bare key                   a\n"
                                      "  1:3      '='                        =\n"
                                      "  1:5      boolean                    true\n"
                                      "  1:15     end of the line            \\n\n"
                                      "  2:1      end of the file\n"
                                      "\n"
                                      "Spaces, tabs and comments are not tokens.\n";

} // namespace tool
