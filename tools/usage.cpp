#include "usage.h"

#include <algorithm>
#include <iterator>

#include "suggestion.h"

namespace tool
{
namespace
{

using Names = std::vector<std::string>;

Names subcommandsOf(const CLI::App& app)
{
    const auto all = app.get_subcommands([](const CLI::App* /*any*/) { return true; });
    Names names;
    std::transform(all.begin(), all.end(), std::back_inserter(names),
                   [](const CLI::App* one) { return one->get_name(); });
    return names;
}

Names optionsOf(const CLI::App& app)
{
    Names names;
    for (const CLI::Option* const option : app.get_options())
    {
        const Names& all = option->get_lnames();
        std::transform(all.begin(), all.end(), std::back_inserter(names),
                       [](const std::string& name) { return "--" + name; });
    }
    return names;
}

std::string ask(const std::string& word, const Names& names)
{
    const bool isName = std::find(names.begin(), names.end(), word) != names.end();
    const std::string meant = isName ? "" : suggestionFor(word, names);
    return meant.empty() ? "" : "Did you mean " + meant + " instead of " + word + "?";
}

} // namespace

std::string questionAbout(const std::vector<std::string>& words, const CLI::App& app)
{
    const std::vector<CLI::App*> subcommands = app.get_subcommands();
    const CLI::App& current = subcommands.empty() ? app : *subcommands.front();
    for (const std::string& word : words)
    {
        std::string question;
        if (word.rfind("--", 0) == 0 && word.size() > 2)
        {
            question = ask(word.substr(0, word.find('=')), optionsOf(current));
        }
        else if (subcommands.empty())
        {
            question = ask(word, subcommandsOf(app));
        }
        if (!question.empty())
        {
            return question;
        }
    }
    return "";
}

} // namespace tool
