// Valid documents of any size.
#pragma once

#include <cstddef>
#include <string>

namespace test
{

// These make a text in place, so that nothing but the text takes memory on the way.
inline void append(std::string& text, const std::string& part, std::size_t count)
{
    for (std::size_t index = 0; index < count; ++index)
    {
        text += part;
    }
}

inline std::string enclosed(const std::string& before, const std::string& repeated,
                            std::size_t count, const std::string& after)
{
    std::string text;
    text.reserve(before.size() + repeated.size() * count + after.size());
    text += before;
    append(text, repeated, count);
    text += after;
    return text;
}

inline std::string repeated(const std::string& part, std::size_t count)
{
    return enclosed("", part, count, "");
}

// Lines of all kinds, at least `size` bytes of them.
inline std::string mixedDocument(std::size_t size)
{
    const std::string lines = "[[service]] # a service\n"
                              "name = \"logger\\t\\u00e9\"\n"
                              "enabled = true\n"
                              "'the ports' = [\n  8080, 0x1F90,\n  0o17, 0b1, 1_000\n]\n\n"
                              "limit.cpu = 0.75\n"
                              "limit.memory = { soft = 1e6, hard = +inf }\n"
                              "started = 1979-05-27T07:32:00.5-07:00\n"
                              "script = '''\n  exec \"$1\"\n'''\n"
                              "note = \"\"\"caf\xc3\xa9 \\\n  \"quoted\" \"\"\"\n\n";
    return repeated(lines, size / lines.size() + 1);
}

// A pair whose value is nested `levels` deep: each of the levels opens with `opening`.
inline std::string nestedDocument(const std::string& opening, const std::string& closing,
                                  std::size_t levels)
{
    std::string text;
    text.reserve((opening.size() + closing.size()) * levels + 8);
    text += "a = ";
    append(text, opening, levels);
    text += '1';
    append(text, closing, levels);
    text += '\n';
    return text;
}

} // namespace test
