#include "block_generator.h"

namespace test
{
namespace
{

constexpr std::string_view names[] = {
    "name",        "port", "limits",  "log-level", "'the path'", "\"caf\xC3\xA9\"",
    "retry.count", "x",    "enabled", "_1"};

// What may stand on the lines of a comment or of a string of several lines.
constexpr std::string_view words[] = {
    "plain words",  "a = 1", "[t]",       "[[t]]",
    "b = [1,",      "]",     "# c",       "caf\xC3\xA9 \xE2\x82\xAC",
    "it's",         "}",     "",          "  exec $1",
    "\xEF\xBF\xBD", "tab\t", "1979-05-27"};

std::string withLineBreaks(const std::string& text, const std::string& lineBreak)
{
    std::string result;
    for (const char c : text)
    {
        result += c == '\n' ? lineBreak : std::string(1, c);
    }
    return result;
}

} // namespace

std::string BlockGenerator::block(const std::string& lineBreak)
{
    // Those of the generator have line breaks of their own.
    if (random_.oneIn(5))
    {
        std::string made;
        for (std::size_t count = random_.between(1, 5); count > 0; --count)
        {
            made += documents_.validLine();
        }
        return made;
    }
    return withLineBreaks(lines() + (random_.oneIn(2) ? "\n" : ""), lineBreak);
}

std::string BlockGenerator::lines()
{
    switch (random_.below(10))
    {
    case 0:
    case 1:
    case 2:
        return service();
    case 3:
    case 4:
        return table();
    case 5:
        return array();
    case 6:
        return tables();
    case 7:
        return text();
    case 8:
        return remarks();
    default:
        return longValue();
    }
}

std::string BlockGenerator::service()
{
    const std::string id = number(100000);
    std::string made = "[[service]]\nname = \"service-" + id + "\"\n";
    made += "command = \"/usr/bin/daemon --id " + id + "\"\n";
    made += "port = " + number(65536) + "\nenabled = true\ntimeout = 2.5\n";
    made += "args = [\"a\", \"bc\", \"def\"]\n\n";
    return made + "[service.limits]\nmemory = 1_000_000\nfiles = " + number(2000) + '\n';
}

std::string BlockGenerator::table()
{
    std::string made = "[settings." + std::string(random_.oneOf(names)) + "]\n";
    for (std::size_t count = random_.between(1, 12); count > 0; --count)
    {
        made += random_.oneIn(8) ? "\t" : "";
        made += std::string(random_.oneOf(names)) + " = ";
        switch (random_.below(4))
        {
        case 0:
            made += number(1000);
            break;
        case 1:
            made += random_.oneIn(2) ? "\"on\"" : "false";
            break;
        case 2:
            made += '[' + number(10) + ", " + number(10) + ']';
            break;
        default:
            // A date is not followed by a blank.
            made += random_.oneIn(2) ? "1979-05-27" : "{ soft = 1e6, hard = +inf }";
        }
        made += random_.oneIn(8) && made.back() != '7' ? " # " + number(100) + '\n' : "\n";
    }
    return made;
}

// An array of one element on each line.
std::string BlockGenerator::array()
{
    std::string made = std::string(random_.oneOf(names)) + " = [";
    const std::size_t count = random_.between(2, random_.oneIn(10) ? 200 : 10);
    for (std::size_t index = 0; index < count; ++index)
    {
        made += (index > 0 ? ",\n  " : "\n  ") + number(100000);
    }
    return made + (random_.oneIn(2) ? "\n]\n" : "]\n");
}

std::string BlockGenerator::tables()
{
    std::string made = "points = [{ x = 0, y = [1, 'a'] }";
    for (std::size_t count = random_.below(8); count > 0; --count)
    {
        made += random_.oneIn(2) ? ",\n" : ", ";
        made += "{ x = " + number(1000) + ", y.z = { w = -" + number(9) + ".5 } }";
    }
    return made + "]\n";
}

// A string of several lines.
std::string BlockGenerator::text()
{
    const std::string quotes = random_.oneIn(2) ? "\"\"\"" : "'''";
    std::string made = "text = " + quotes;
    for (std::size_t count = random_.below(random_.oneIn(10) ? 60 : 6); count > 0; --count)
    {
        made += '\n' + std::string(random_.oneOf(words));
    }
    return made + '\n' + quotes + '\n';
}

// Comments and blank lines.
std::string BlockGenerator::remarks()
{
    std::string made;
    for (std::size_t count = random_.between(1, 10); count > 0; --count)
    {
        made += random_.oneIn(3) ? "" : tokens_.blanks() + "# " + std::string(random_.oneOf(words));
        // Breaks with nothing between them are one, even so.
        made += '\n';
    }
    return made;
}

std::string BlockGenerator::longValue()
{
    const std::size_t length = random_.between(100, random_.oneIn(20) ? 9000 : 900);
    const std::string value(length, random_.oneOf("ab 0#[="));
    return random_.oneIn(2) ? "blob = \"" + value + "\"\n"
                            : "blob = '" + value + "' # " + value + '\n';
}

} // namespace test
