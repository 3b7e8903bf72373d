// The help of fix; the tests run its examples.
#pragma once

namespace tool
{

constexpr const char* fixExample =
    "  $ printf 'ports = [\\n  80,\\n  443, # TLS\\n]\\n8080 = true' | vorn-toml fix -\n"
    "  ports = [\n"
    "    80,\n"
    "    443 # TLS\n"
    "  ]\n"
    "  \"8080\" = true\n"
    "  $ vorn-toml fix network.toml --check\n"
    "  network.toml: unchanged\n"
    "\n"
    "Documents of TOML 1.0 are rewritten in place into what the library accepts, with the same\n"
    "meaning.  What is accepted stays as it is, byte for byte.  For - the result goes to standard\n"
    "output.  Empty arrays, empty inline tables, and characters above U+FFFF in comments cannot\n"
    "be expressed: a file that has one is explained and left alone.  So is one that is not\n"
    "TOML 1.0.  For each file a line says what became of it, unless its content or the\n"
    "difference is printed.  - is the only FILE if it is one.\n"
    "Exit status: 0 all files could be fixed, or are accepted as they are; 1 one could not (or\n"
    "would change, with --check); 2 wrong usage; 3 a file could not be read or written.\n";

} // namespace tool
