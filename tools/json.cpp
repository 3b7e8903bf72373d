#include "commands.h"
#include "each_file.h"
#include "json_builder.h"
#include "shown_text.h"

namespace tool
{
namespace
{

// Says why an accepted document has no meaning.
void complain(const std::string& name, const JsonBuilder& builder)
{
    for (const std::string& complaint : builder.complaints())
    {
        std::fprintf(stderr, "%s: %s\n", printable(name).c_str(), printable(complaint).c_str());
    }
    if (builder.moreComplaints() != 0)
    {
        std::fprintf(stderr, "%s: and %zu more\n", printable(name).c_str(),
                     builder.moreComplaints());
    }
}

Status convert(const std::string& name, Progress& progress, const Options& options)
{
    const std::optional<std::string> text = readInput(name, progress);
    if (!text)
    {
        return unreadable;
    }
    progress.work(text->size());
    JsonBuilder builder;
    const Examination examination = examine(*text, builder);
    progress.clear();
    explain(name, *text, examination, options);
    if (examination.status != accepted)
    {
        return examination.status;
    }
    complain(name, builder);
    if (!builder.complaints().empty())
    {
        return rejected;
    }
    builder.tree().print();
    return accepted;
}

} // namespace

Status printJson(const Options& options)
{
    return eachFile(options, !isOutputTerminal(),
                    [&](const std::string& name, Progress& progress)
                    { return convert(name, progress, options); });
}

} // namespace tool
