// vorn-toml: the library on the command line.
#include <CLI/CLI.hpp>

#include <vorn/parsers/toml.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <map>
#include <new>
#include <sstream>
#include <string>
#include <vector>

#include "commands.h"
#include "fix_help.h"
#include "help.h"
#include "shown_text.h"
#include "standard_streams.h"
#include "usage.h"

namespace
{

using tool::Options;
using tool::Status;
using Words = std::vector<std::string>;
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

void addFormat(CLI::App& check, tool::CheckOptions& options)
{
    static const std::map<std::string, tool::Format> names = {{"text", tool::Format::text},
                                                              {"json", tool::Format::json},
                                                              {"sarif", tool::Format::sarif},
                                                              {"github", tool::Format::github}};
    CLI::Option* const format =
        check
            .add_option_function<std::string>(
                "--format", [&](const std::string& name) { options.format = names.at(name); },
                "How everything is printed: text, json, sarif (2.1.0) or github (annotations)")
            ->option_text("FORMAT")
            ->check(CLI::IsMember({"text", "json", "sarif", "github"}));
    check
        .add_flag_callback(
            "--json", [&] { options.format = tool::Format::json; }, "The same as --format json")
        ->excludes(format);
}

void addCheck(CLI::App& app, Run& run)
{
    CLI::App& check = addCommand(app, run, tool::check, "check",
                                 "Say whether documents are accepted, and explain their errors",
                                 tool::checkExample);
    check.get_option("FILE")->description(
        "A document, or a directory with *.toml files; - means standard input");
    tool::CheckOptions& options = run.options.check;
    check.add_flag("--strict", options.strict,
                   "Reject what the library accepts and TOML 1.0 forbids, too");
    check.add_flag("--all", options.all, "Explain all errors, not only the first 20 of each file");
    check.add_flag("-q,--quiet", options.quiet,
                   "Print no lines that say what is accepted or rejected, and no sum");
    check.add_option("--stdin-name", options.standardInput, "What standard input is called")
        ->option_text("NAME");
    addFormat(check, options);
    addColour(check, run);
}

void addCommands(CLI::App& app, Run& run)
{
    addCommand(app, run, tool::printEvents, "events",
               "Print the visitor calls of documents, one per line", tool::eventsExample);
    addCommand(app, run, tool::printValues, "values",
               "Print the visitor calls of documents, with the values of their texts",
               tool::valuesExample);
    addCheck(app, run);
    CLI::App& tree = addCommand(app, run, tool::printTrees, "tree",
                                "Draw the syntax trees of documents", tool::treeExample);
    tree.add_flag("--dot", run.options.dot, "Print graphs for Graphviz");
    addColour(tree, run);
    addColour(addCommand(app, run, tool::printTokens, "tokens",
                         "List the tokens of documents with their positions", tool::tokensExample),
              run);
    CLI::App& json = addCommand(app, run, tool::printJson, "json", "Print a document as JSON",
                                tool::jsonExample);
    json.get_option("FILE")->expected(1);
    addColour(json, run);
    addFix(app, run);
}

std::string versions()
{
    return "vorn-toml " VORN_TOML_VERSION "\nlibvorn_parsers " +
           std::string(vorn::parsers::toml::version()) +
           "\nlibvorn_toml_diagnosis " VORN_TOML_VERSION;
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
int explainUsage(const CLI::App& app, const CLI::ParseError& error, const Words& words,
                 const tool::StandardStreams& streams)
{
    std::ostringstream help;
    if (app.exit(error, help, std::cerr) != 0)
    {
        if (const std::string question = tool::questionAbout(words, app); !question.empty())
        {
            std::cerr << tool::printable(question) << '\n';
        }
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
    app.set_version_flag("--version", versions, "Print the versions of the tool and its libraries");
    app.footer(tool::mainHelp);
    Run run;
    addCommands(app, run);
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        return explainUsage(app, error, Words(argv + 1, argv + argc), streams);
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
