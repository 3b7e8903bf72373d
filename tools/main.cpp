// vorn-toml: the library on the command line.
#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <map>
#include <new>
#include <sstream>
#include <string>

#include "commands.h"
#include "fix_help.h"
#include "help.h"
#include "standard_streams.h"

namespace
{

using tool::Options;
using tool::Status;
using Command = Status (*)(const Options& options);

// The subcommand to run, and its options.
struct Run
{
    Options options;
    Command command = nullptr;
};

// Adds a subcommand with the argument FILE...
CLI::App& addCommand(CLI::App& app, Run& run, Command command, const std::string& name,
                     const std::string& description, const char* example)
{
    CLI::App& subcommand = *app.add_subcommand(name, description);
    subcommand.add_option("FILE", run.options.files, "A document; - means standard input")
        ->required();
    subcommand.footer(std::string("Example:\n") + example);
    subcommand.callback([&run, command] { run.command = command; });
    return subcommand;
}

void addColour(CLI::App& subcommand, Run& run)
{
    static const std::map<std::string, tool::Colour> names = {{"auto", tool::Colour::automatic},
                                                              {"always", tool::Colour::always},
                                                              {"never", tool::Colour::never}};
    subcommand
        .add_option_function<std::string>(
            "--color", [&run](const std::string& name) { run.options.colour = names.at(name); },
            "Colours on standard error: auto (on a terminal, unless NO_COLOR is set), always or "
            "never")
        ->option_text("WHEN")
        ->check(CLI::IsMember({"auto", "always", "never"}));
}

void addFix(CLI::App& app, Run& run)
{
    CLI::App& fix =
        addCommand(app, run, tool::fixFiles, "fix",
                   "Rewrite documents of TOML 1.0 into what is accepted", tool::fixExample);
    fix.add_flag("--diff", run.options.fix.diff, "Print what would change, and write nothing");
    fix.add_flag("--check", run.options.fix.check,
                 "Write nothing, and exit with 1 if a file would change");
    fix.add_flag("--drop-comments", run.options.fix.dropComments,
                 "Remove comments that have characters above U+FFFF");
    addColour(fix, run);
}

void addCommands(CLI::App& app, Run& run)
{
    addCommand(app, run, tool::printEvents, "events",
               "Print the visitor calls of documents, one per line", tool::eventsExample);
    addCommand(app, run, tool::printValues, "values",
               "Print the visitor calls of documents, with the values of their texts",
               tool::valuesExample);
    CLI::App& check = addCommand(app, run, tool::check, "check",
                                 "Say whether documents are accepted, and explain their errors",
                                 tool::checkExample);
    check.add_flag("--json", run.options.json, "Print everything as one JSON array, for editors");
    addColour(check, run);
    CLI::App& tree = addCommand(app, run, tool::printTrees, "tree",
                                "Draw the syntax trees of documents", tool::treeExample);
    tree.add_flag("--dot", run.options.dot, "Print graphs for Graphviz");
    addColour(tree, run);
    addColour(addCommand(app, run, tool::printTokens, "tokens",
                         "List the tokens of documents with their positions", tool::tokensExample),
              run);
    addFix(app, run);
}

void print(const char* what, const char* why)
{
    std::fprintf(stderr, "vorn-toml: %s%s\n", what, why);
}

// The status of a run, raised if some of its output could not be written.
int ended(int status, const tool::StandardStreams& streams)
{
    if (const int reason = streams.outputFailure(); reason != 0)
    {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): the tool has one thread.
        print("standard output: ", std::strerror(reason));
        return std::max<int>(status, tool::unreadable);
    }
    return status;
}

// Prints the help that was asked for, or what is wrong with the arguments.
int explainUsage(const CLI::App& app, const CLI::ParseError& error,
                 const tool::StandardStreams& streams)
{
    std::ostringstream help;
    if (app.exit(error, help, std::cerr) != 0)
    {
        return tool::usage;
    }
    std::fputs(help.str().c_str(), stdout);
    return ended(tool::accepted, streams);
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): what is not caught is a lack of memory.
int main(int argc, char** argv)
{
    tool::StandardStreams streams;
    CLI::App app("Reads TOML documents the way the services of the device do.", "vorn-toml");
    app.require_subcommand(1);
    app.footer(tool::mainHelp);
    Run run;
    addCommands(app, run);
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        return explainUsage(app, error, streams);
    }
    int status = tool::unreadable;
    try
    {
        status = run.command(run.options);
    }
    catch (const std::bad_alloc&)
    {
        print("not enough memory", "");
    }
    return ended(status, streams);
}
