// Documents of some sixty lines with mistakes here and there.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace test
{

// Mistakes between thirteen valid lines each.
inline std::string amongValidLines(const std::vector<std::string>& mistakes)
{
    const std::string valid = "# a service\n"
                              "[[service]]\n"
                              "name = \"caf\xc3\xa9\"\n"
                              "ports = [\n  8080,\n  0x1F90\n]\n\n"
                              "limit.cpu = 0.75\n"
                              "limit.memory = { soft = 1e6, hard = +inf }\n"
                              "script = '''\n  a = [1\n'''\n";
    std::string document = valid;
    for (const std::string& mistake : mistakes)
    {
        document += mistake + valid;
    }
    return document;
}

inline std::string withCarriageReturns(const std::string& document)
{
    std::string result;
    for (const char c : document)
    {
        result += c == '\n' ? "\r\n" : std::string(1, c);
    }
    return result;
}

inline const std::vector<std::string> damagedDocuments = {
    // The parser repairs them, and the walk goes to the end.
    amongValidLines({"a.b 1\n", "@\nb = [1 2]\n", "[[t]\nc = [1, 2 3]\n"}),
    // The walk goes on after errors of its own.
    amongValidLines({"a = {}\n@\n", "[a.]\nb = [1, a]\n", "a.b. = 1\nc = {d = 1,}\n"}),
    // The walk fails after some of the lines.
    amongValidLines({"a.b 1\n", "a = [,]\nb = {c 1}\n", "a =\nb = @\n"}),
    amongValidLines({"a.b 1\n", "a = [,]\n[t\n", "= 1\n\n\na = 1979-05-27 # c\n"}),
    // Nothing of the document is walked.
    amongValidLines({"@ = 1\n", "a = 'x' 1\n[[t]]]\n", "b = {c = 1 d = 2}\n"}),
    // On the first line, and on the last, which has no break.
    "]\n" + amongValidLines({"a = {}\n", "a = 1.\n"}) + "a = [1, {b = 2",
    withCarriageReturns("a = [1 2]\n" + amongValidLines({"a = 07:32\n", "a.b 1\r"})) + "[[t]",
};

} // namespace test
