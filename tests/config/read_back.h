// What is wrong with documents that a schema describes.
#pragma once

#include <vorn/parsers/toml_config.h>

#include <string>
#include <vector>

inline std::vector<std::string> textsOf(const std::vector<vorn::parsers::toml::Problem>& problems)
{
    std::vector<std::string> texts;
    for (const vorn::parsers::toml::Problem& problem : problems)
    {
        texts.push_back(problem.path + ": " + problem.message);
    }
    return texts;
}

template <typename Struct>
std::vector<std::string> problemsOf(const std::string& text,
                                    const vorn::parsers::toml::Schema<Struct>& schema,
                                    Struct& config)
{
    return textsOf(vorn::parsers::toml::readConfig(text, schema, config));
}

// The schema's own document, read back into what is given.
template <typename Struct>
std::vector<std::string> readBack(const vorn::parsers::toml::Schema<Struct>& schema, Struct& config)
{
    return problemsOf(vorn::parsers::toml::describe(schema, vorn::parsers::toml::Format::toml),
                      schema, config);
}

inline const std::vector<std::string> nothing;
