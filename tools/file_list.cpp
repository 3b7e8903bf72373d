#include "file_list.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "shown_text.h"

namespace tool
{
namespace
{

namespace fs = std::filesystem;

bool isDirectory(const fs::path& path)
{
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

class Search
{
public:
    explicit Search(const fs::path& directory) : pending_{directory}
    {
        while (!pending_.empty())
        {
            const fs::path next = std::move(pending_.back());
            pending_.pop_back();
            look(next);
        }
        std::sort(found_.begin(), found_.end());
    }

    const std::vector<std::string>& found() const { return found_; }

private:
    void look(const fs::path& directory)
    {
        std::error_code error;
        for (fs::directory_iterator entry(directory, error);
             !error && entry != fs::directory_iterator(); entry.increment(error))
        {
            add(*entry);
        }
        if (error)
        {
            found_.push_back(directory.string());
        }
    }

    void add(const fs::directory_entry& entry)
    {
        std::error_code ignored;
        const fs::path& path = entry.path();
        if (!entry.is_directory(ignored))
        {
            if (path.extension() == ".toml")
            {
                found_.push_back(path.string());
            }
        }
        else if (!entry.is_symlink(ignored) && path.filename().string().front() != '.')
        {
            pending_.push_back(path);
        }
    }

    std::vector<fs::path> pending_;
    std::vector<std::string> found_;
};

} // namespace

std::vector<std::string> filesOf(const std::vector<std::string>& arguments)
{
    std::vector<std::string> files;
    for (const std::string& argument : arguments)
    {
        if (argument == "-" || !isDirectory(argument))
        {
            files.push_back(argument);
            continue;
        }
        const Search search(argument);
        if (search.found().empty())
        {
            std::fprintf(stderr, "vorn-toml: %s: there is no *.toml file in this directory\n",
                         printable(argument).c_str());
        }
        files.insert(files.end(), search.found().begin(), search.found().end());
    }
    return files;
}

} // namespace tool
