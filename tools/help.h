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
    "Errors in a document go to standard error: check, tree, tokens, json and fix explain them,\n"
    "events and values print what the library logs, with long texts shortened.";

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
    "  $ printf 'names = []\\n' | vorn-toml check --format github --stdin-name a.toml - || true\n"
    "  ::error file=a.toml,line=1,endLine=1,col=10,endColumn=11,title=empty-array::the array is "
    "empty%0AAn array needs at least one element. Leave the key out instead.\n"
    "\n"
    "Explanations go to standard error, at most 20 for each file; the lines that end with\n"
    "accepted or rejected go to standard output, and so does all of the other formats.  Columns\n"
    "count characters.  Of a directory all *.toml files below it are read, except those in hidden\n"
    "directories and behind links to directories.  A warning is about what is accepted, but\n"
    "perhaps not read as it was meant.\n"
    "\n"
    "--strict rejects what the library accepts and TOML 1.0 forbids, too: keys and tables that\n"
    "are defined twice, dates that do not exist, integers beyond 64 bits, bytes that are not\n"
    "UTF-8 and the like.  A service reads such a document, but another reader may not.\n"
    "\n"
    "--json prints an array with an object for each file: file, status (accepted, rejected or\n"
    "unreadable), errors (how many are listed), findings (severity, line, column, endLine,\n"
    "endColumn, code, message, usually hint, and related where other places matter), and\n"
    "\"more\": true if there are more findings than these.\n";

constexpr const char* jsonExample =
    "  $ printf 'a.b = [1, 0x1F]\\nc = 07:32:00\\n' | vorn-toml json -\n"
    "  {\n"
    "    \"a\": {\n"
    "      \"b\": [\n"
    "        1,\n"
    "        31\n"
    "      ]\n"
    "    },\n"
    "    \"c\": \"07:32:00\"\n"
    "  }\n"
    "\n"
    "Keys keep their order.  Dates and times become strings, as they are written; infinities\n"
    "and not-a-numbers become \"inf\", \"-inf\" and \"nan\"; bytes that are not UTF-8 become\n"
    "U+FFFD.  A document that defines something twice, or has an integer beyond 64 bits, is an\n"
    "error; check --strict shows where.\n";

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
