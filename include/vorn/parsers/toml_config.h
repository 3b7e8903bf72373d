// vorn_toml_config: a struct, filled from a TOML file and checked, or what is wrong with the
// file, each with its place.
//
//   struct Config { std::string name; double timeout = 2.5; };
//
//   const Schema<Config>& configSchema()
//   {
//       static const Schema<Config> schema = Schema<Config>()
//           .required("name", &Config::name)
//           .optional("dns.timeout", &Config::timeout, range(0.1, 60.0));
//       return schema;
//   }
//
//   Config config;
//   for (const Problem& problem : readConfig(FilePath("app.toml"), configSchema(), config))
//   {
//       std::cerr << problem << '\n';   // app.toml:4:11: dns.timeout: 99 is not in 0.1 to 60
//   }
//
// A program without exceptions ends where a function would throw; toml.h says more about these.
//
// This is a library of its own, libvorn_toml_config, on top of libvorn_parsers and
// libvorn_toml_diagnosis.  It builds no document model.
#ifndef VORN_PARSERS_TOML_CONFIG_H
#define VORN_PARSERS_TOML_CONFIG_H

#include <iosfwd>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <vorn/parsers/toml.h>
#include <vorn/parsers/toml_diagnosis.h>
#include <vorn/parsers/toml_places.h>
#include <vorn/parsers/toml_schema.h>
#include <vorn/parsers/toml_values.h>

namespace vorn::parsers::toml
{

// What is wrong with a configuration.
struct Problem
{
    // Where it is.  Line 0 if it has no place: a file that cannot be read.
    Place place;
    // The key that it is about, "listener[1].port"; elements count from 0.  Empty for mistakes of
    // the document.
    std::string path;
    // What is wrong, and how to put it right, each a line of printable UTF-8 for whoever wrote the
    // file.  They may change from version to version.
    std::string message;
    std::string hint; // may be empty
    // A warning does not keep the configuration from being filled.
    Severity severity = Severity::error;
    // The file, as its path was given; empty if a text was read.
    std::string file;
};

// Writes "app.toml:13:8: listener[1].port: 80800 is not in 1 to 65535", without what there is
// not; "warning: " comes before the path.  A hint follows in parentheses.
VORN_TOML_CONFIG_API std::ostream& operator<<(std::ostream& stream, const Problem& problem);

namespace config
{

// What there is to read, one after the other: texts without a name, or files.
VORN_TOML_CONFIG_API std::vector<Problem> readText(const std::string& text, const Table& table,
                                                   void* object);
VORN_TOML_CONFIG_API std::vector<Problem>
readFiles(const std::vector<FilePath>& files, bool mayBeMissing, const Table& table, void* object);
VORN_TOML_CONFIG_API bool haveErrors(const std::vector<Problem>& problems) noexcept;

// `read` fills a copy, which becomes the configuration if there is no error.
template <typename Struct, typename Read>
std::vector<Problem> readInto(Struct& config, Read read)
{
    static_assert(std::is_copy_constructible_v<Struct> && std::is_move_assignable_v<Struct>,
                  "the struct can be copied, and assigned to");
    Struct draft = config;
    std::vector<Problem> problems = read(&draft);
    if (!haveErrors(problems))
    {
        config = std::move(draft);
    }
    return problems;
}

} // namespace config

// Reads a file into a struct.
//
// Returns all problems in the order of the document; keys that are missing come last.  They are:
//
//   - mistakes of the document, as diagnose() tells them; keys and tables that TOML 1.0 does not
//     let be defined twice, with the place of the first definition
//   - keys that are missing, or that the schema does not have
//   - values of the wrong kind, out of range, or which a check does not accept
//   - a file that cannot be read
//
// `config` is filled if none of them is an error; otherwise it is untouched.  Members of keys that
// the file does not have keep their values, so what `config` holds before are the defaults.
// A list in the file takes the place of the whole list; a map keeps the elements that the file
// does not have.
//
// After 1,000 problems no further ones are told.
//
// Nothing is logged, and nothing is kept between calls: any number of threads may read by one
// schema.  Throws std::bad_alloc if there is not enough memory, and what your checks throw.
// Struct has to be copyable, and made by Struct{}.
//
//   Config config;
//   readConfig(FilePath("app.toml"), configSchema(), config).empty()   // true: config is filled
template <typename Struct>
std::vector<Problem> readConfig(const FilePath& file, const Schema<Struct>& schema, Struct& config)
{
    return config::readInto(
        config,
        [&](void* draft) { return config::readFiles({file}, false, *schema.internals(), draft); });
}

// The same for a document in memory.
//
//   readConfig("name = 5\n", configSchema(), config)   // 1:8: name: should be a string, is an
//   integer
template <typename Struct>
std::vector<Problem> readConfig(const std::string& text, const Schema<Struct>& schema,
                                Struct& config)
{
    return config::readInto(config, [&](void* draft)
                            { return config::readText(text, *schema.internals(), draft); });
}

// Reads several files, of which later ones override earlier ones: defaults, then the
// administrator's, then a folder to drop files in.
//
//   readConfigs({FilePath("/usr/share/app/app.toml"), FilePath("/etc/app.toml"),
//                FilePath("/etc/app.d")}, configSchema(), config)
//
// Of a folder all files *.toml are read, in the order of their names as bytes.  What does not exist
// is passed over.  A key is missing if no file has it.  A problem names its file.
template <typename Struct>
std::vector<Problem> readConfigs(const std::vector<FilePath>& files, const Schema<Struct>& schema,
                                 Struct& config)
{
    return config::readInto(config, [&](void* draft)
                            { return config::readFiles(files, true, *schema.internals(), draft); });
}

// How describe() writes.
enum class Format
{
    // A table of the keys for each table: what they take, their defaults, what they are for.
    markdown,
    // A configuration with the defaults, to begin with.  Comments say what each key takes and is
    // for.  Keys that are required or have no default, and tables that are not there, are examples
    // in comments; so is what this TOML cannot say, such as an empty array.
    toml,
    // For editors, which complete and check by it (draft 7).
    jsonSchema,
};

namespace config
{
VORN_TOML_CONFIG_API std::string describeTable(const Table& table, Format format);
} // namespace config

// Returns the reference of a configuration: its keys, with their types, limits, defaults and
// descriptions.  The defaults are those of a Struct{}.
//
// A configuration with the defaults is read by readConfig() without a problem, but for the required
// keys, which are missing, and gives the defaults.  Only checks of the whole Struct are left out.
//
// Your checks are asked about the defaults: one that they do not accept is not set.  Throws
// std::bad_alloc if there is not enough memory, and what your checks throw.
//
//   describe(configSchema(), Format::toml)   // ... # a number, 0.1 to 60
//                                            //     timeout = 2.5 ...
template <typename Struct>
std::string describe(const Schema<Struct>& schema, Format format = Format::markdown)
{
    return config::describeTable(*schema.internals(), format);
}

} // namespace vorn::parsers::toml

#endif
