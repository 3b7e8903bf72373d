#include "sources.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "json_twin.h"

namespace bench
{

std::vector<Source> sourcesFor(const std::vector<Reader>& readers, std::size_t size)
{
    const bool withJson =
        std::any_of(readers.begin(), readers.end(),
                    [](const Reader& reader) { return reader.input == Input::json; });
    std::vector<Source> all;
    for (Document& document : documents())
    {
        if (size == 0 || document.size == size)
        {
            std::string json = withJson ? jsonTwin(document.text) : "";
            all.push_back({std::move(document), std::move(json)});
        }
    }
    return all;
}

std::vector<Reader> readersNamed(const std::string& names)
{
    const std::vector<Reader> all = readers();
    std::vector<Reader> named;
    std::istringstream list(names);
    for (std::string name; std::getline(list, name, ',');)
    {
        const auto found = std::find_if(
            all.begin(), all.end(), [&name](const Reader& reader) { return reader.name == name; });
        if (found == all.end())
        {
            throw std::runtime_error("there is no reader '" + name + "'");
        }
        named.push_back(*found);
    }
    return named;
}

} // namespace bench
