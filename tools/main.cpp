// vorn-toml: the library on the command line.
#include <CLI/CLI.hpp>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "commands.h"

namespace
{

using Command = tool::Status (*)(const std::string& name);

// Adds a subcommand that runs over FILE... and raises `status` to its worst outcome.
void addCommand(CLI::App& app, tool::Status& status, Command command, const std::string& name,
                const std::string& description, const std::string& example)
{
    CLI::App* const subcommand = app.add_subcommand(name, description);
    const auto files = std::make_shared<std::vector<std::string>>();
    subcommand->add_option("FILE", *files, "A document; - stands for standard input")->required();
    subcommand->footer("Example:\n" + example);
    subcommand->callback(
        [&status, command, files]
        {
            for (const std::string& file : *files)
            {
                status = std::max(status, command(file));
            }
        });
}

// What has been printed must have reached its place.
tool::Status flushOutput()
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
    {
        return tool::accepted;
    }
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the tool has one thread.
    std::fprintf(stderr, "vorn-toml: standard output: %s\n", std::strerror(errno));
    return tool::unreadable;
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): what is not caught is a lack of memory.
int main(int argc, char** argv)
{
    // Events and the log lines on standard error come out in the order they are made.
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);

    CLI::App app("Reads TOML documents the way the services of the device do.", "vorn-toml");
    app.require_subcommand(1);
    app.footer("Example:\n"
               "  $ vorn-toml check network.toml\n"
               "  network.toml: accepted\n"
               "\n"
               "Exit status: 0 accepted, 1 rejected, 2 wrong usage, 3 a file could not be read or\n"
               "the output not be written.\n"
               "What is wrong with a document is logged on standard error.");

    auto status = tool::accepted;
    addCommand(app, status, tool::printEvents, "events",
               "Print the visitor calls of documents, one a line",
               "  $ printf 'a = 1\\n' | vorn-toml events -\n"
               "  beginDocument\n"
               "  beginKeyValue\n"
               "  visitBareKey a\n"
               "  visitInteger 1\n"
               "  endKeyValue\n"
               "  endDocument\n");
    addCommand(app, status, tool::printValues, "values",
               "Print the visitor calls of documents, with the values of the texts",
               "  $ printf 'port = 0x1F\\nat = 1979-05-27T07:32:00\\n' |"
               " TZ=UTC0 vorn-toml values - | grep visit\n"
               "  visitBareKey port\n"
               "  visitInteger 0x1F -> 31\n"
               "  visitBareKey at\n"
               "  visitLocalDateTime 1979-05-27T07:32:00 -> 1979-05-27T07:32:00+00:00 (296638320)\n"
               "\n"
               "Values are what the library's conversions give.  Strings and quoted keys lose\n"
               "their quotes and keep their escapes; infinities and not-a-numbers give 0.\n"
               "Date-times are read as local time, in the zone TZ, and shown with its offset\n"
               "and the seconds since the epoch.  Bare keys, local dates and local times\n"
               "have no conversion and no arrow.  What a conversion throws is shown behind\n"
               "the arrow as \"error: ...\".\n");
    addCommand(app, status, tool::check, "check", "Tell whether documents are accepted",
               "  $ vorn-toml check network.toml\n"
               "  network.toml: accepted\n");
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        // Asking for help is no error.
        return app.exit(error) == 0 ? tool::accepted : tool::usage;
    }
    return std::max(status, flushOutput());
}
