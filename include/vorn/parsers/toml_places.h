// vorn_toml_config: where a document has what a visitor is called for.
//
// A visitor that derives from PlacedVisitor knows the line and the column of each text that it
// gets, for its messages:
//
//   #include <vorn/parsers/toml_config.h>
//
//   using namespace vorn::parsers::toml;
//
//   struct Ports : PlacedVisitor
//   {
//       void visitInteger(const char* text) override
//       {
//           if (integerValue(text).value_or(0) > 65535)
//           {
//               std::cerr << place().line << ':' << place().column << ": " << text
//                         << " is not a port\n";
//           }
//       }
//   };
//
//   Ports ports;
//   visitTomlTree("ssh = 22\nhttp = 80800\n", ports);   // 2:8: 80800 is not a port
//
// This is a part of libvorn_toml_config.
#ifndef VORN_PARSERS_TOML_PLACES_H
#define VORN_PARSERS_TOML_PLACES_H

#include <vorn/parsers/toml.h>

#include <cstddef>
#include <string>

#if !defined(VORN_TOML_CONFIG_API)
#if defined(__GNUC__)
#define VORN_TOML_CONFIG_API __attribute__((visibility("default")))
#else
#define VORN_TOML_CONFIG_API
#endif
#endif

namespace vorn::parsers::toml
{

namespace config
{
class PlacedReading;
}

// A place in a document, counted as in toml_diagnosis.h.
struct Place
{
    // Lines and columns count from 1: a line ends with its line feed, and a column is a
    // character, or a byte that is part of none.  A byte order mark has no column.  0: unknown.
    std::size_t line = 0;
    std::size_t column = 0;
    // Bytes from the start of the text, from 0; a byte order mark counts.
    std::size_t offset = 0;
};

// A visitor that knows where it is.  Derive from it and override operations, as with
// TomlTreeVisitor; call place() in them.
//
// The place is that of the text that the operation gets.  The other operations get these:
//
//   beginDocument                      the start of the document, after a byte order mark
//   endDocument                        the end of the document
//   beginTable, beginArrayTable        the first '['
//   endTable, endArrayTable            the last ']'
//   beginArray, endArray               the '[', the ']'
//   beginInlineTable, endInlineTable   the '{', the '}'
//   beginKeyValue                      the key, or its first part
//   endKeyValue                        the value; of an array or an inline table, its end
//   beginDottedKey, endDottedKey       the first part of the key, the last one
//
// Places are right for accepted documents.  Those of rejected ones are a guess, since some of
// what is there cannot be made out: diagnose() knows where the mistakes are.
//
// A visitor is placed by the overloads below, which the compiler prefers for it.  With a
// reference to one of its bases the reading is the same, but places are unknown.
// NOLINTNEXTLINE(cppcoreguidelines-special-member-functions): a copy is as good as one moved.
class VORN_TOML_CONFIG_API PlacedVisitor : public TomlTreeVisitor
{
public:
    PlacedVisitor() = default;
    // A copy is at the same place, and in no reading.  A visitor that is assigned to stays in its
    // own.
    PlacedVisitor(const PlacedVisitor& other) : TomlTreeVisitor(other), last_(other.place()) {}
    PlacedVisitor& operator=(const PlacedVisitor& other);
    ~PlacedVisitor() override;

    // Returns where the document has what the current operation is called for.
    //
    // If an operation throws, it stays the place of that operation; after any other reading, and
    // before the first, it is unknown, all 0.
    //
    // It counts from the place that was asked for last: to ask in every operation takes time in
    // proportion to the document, and not to ask takes none.  Throws and allocates nothing.
    Place place() const noexcept;

private:
    friend class config::PlacedReading;

    config::PlacedReading* reading_ = nullptr; // the current one
    Place last_;                               // outside of a reading
};

// Reads a document, as visitTomlTree() of toml.h does, and places the visitor: the calls, what is
// returned, logged and thrown are the same.  Throws and allocates nothing beyond that.
VORN_TOML_CONFIG_API bool visitTomlTree(const std::string& text, PlacedVisitor& visitor);

// The same for a document's file.  A file that cannot be read is left to visitTomlTree() of
// toml.h.
VORN_TOML_CONFIG_API bool visitTomlTree(const FilePath& path, PlacedVisitor& visitor);

} // namespace vorn::parsers::toml

#endif
