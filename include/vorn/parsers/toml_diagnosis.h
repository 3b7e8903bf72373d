// vorn_toml_diagnosis: what is wrong with a TOML document, and where.
//
// visitTomlTree() of vorn_parsers says whether a document is accepted.  If it is
// not, or to know beforehand, ask diagnose(): it returns each mistake as a value
// with its place, a code, a message, and a hint how to fix it.
//
//   #include <vorn/parsers/toml_diagnosis.h>
//
//   namespace toml = vorn::parsers::toml;
//
//   for (const toml::Finding& finding : toml::diagnose(document))
//   {
//       std::cerr << name << ':' << finding.line << ':' << finding.column << ": "
//                 << finding.message << '\n'
//                 << toml::excerpt(document, finding);
//   }
//
// For a document whose line 12 is `names = []` that prints
//
//   config.toml:12:10: the array is empty
//      12 | names = []
//         |          ^
//
// A program without exceptions ends where a function would throw; toml.h says more about these.
//
// This is a library of its own, libvorn_toml_diagnosis: a device that does not
// explain mistakes leaves it out.
#ifndef VORN_PARSERS_TOML_DIAGNOSIS_H
#define VORN_PARSERS_TOML_DIAGNOSIS_H

#include <cstddef>
#include <string>
#include <vector>

#if defined(__GNUC__)
#define VORN_TOML_DIAGNOSIS_API __attribute__((visibility("default")))
#else
#define VORN_TOML_DIAGNOSIS_API
#endif

namespace vorn::parsers::toml
{

class ITomlTreeVisitor; // of toml.h

// How bad a finding is.
enum class Severity
{
    error,   // the document is rejected; with `strict`: or is not TOML 1.0
    warning, // it is accepted, but perhaps not read as it was meant
};

// Offsets count bytes from 0, from the start of the text; a byte order mark counts.
// Lines and columns count from 1, as editors do: a line ends with its line feed,
// and a column is a character, or a byte that is part of none.  A byte order mark
// has no column.

// Another place that a finding is about, such as the first definition of a key.
struct RelatedPlace
{
    // Its bytes, lines and columns, as those of a finding.
    std::size_t begin = 0;
    std::size_t end = 0; // after the last byte
    std::size_t line = 1;
    std::size_t column = 1;
    std::size_t endLine = 1;
    std::size_t endColumn = 1; // after the last character
    // What is there, as "the array was opened here".
    std::string message;
};

// What there is to say about one place of a document.
struct Finding
{
    // Whether it is an error.
    Severity severity = Severity::error;
    // The bytes that it is about.  begin and end are the same where something is
    // missing: there it belongs.  Both are at most the size of the document.
    std::size_t begin = 0;
    std::size_t end = 0; // after the last byte
    // Where these are for editors.
    std::size_t line = 1;
    std::size_t column = 1;
    std::size_t endLine = 1;
    std::size_t endColumn = 1; // after the last character
    // Which kind of mistake it is, as "empty-array": stable, to tell findings
    // apart in a program.  docs/errors.md lists the codes, with examples.
    std::string code;
    // What is wrong, and how to put it right; each a line of printable UTF-8 for
    // whoever wrote the document.  They may change from version to version.
    std::string message;
    std::string hint; // may be empty
    // Other places that have to do with it.
    std::vector<RelatedPlace> related;
};

// What diagnose() looks for.
struct DiagnosisOptions
{
    // Whether what the library accepts and TOML 1.0 forbids is an error, too: keys
    // and tables that are defined twice, dates that do not exist, integers beyond
    // 64 bits, bytes that are not UTF-8, and the like.
    bool strict = false;
    // There are at most so many findings; 0: no limit.  The first errors come
    // before all warnings when there are too many.
    std::size_t maxFindings = 20;
};

// Returns what there is to say about a document, in the order of the places.  What
// only follows from an earlier mistake is left out.  Of a statement of more than
// 16 KB, or one that is nested too deeply for the stack of the thread, only the first
// mistake is told.  After a mistake in a string of several lines nothing is told: any
// quote may be the one that ends it.
//
// Without `strict` there is an error exactly if visitTomlTree() returns false for
// the text on the same thread: for any bytes, of any size, on any stack.  With
// `strict` there may be errors for accepted documents, too.  Forbidden bytes are then
// found in the whole text, even where nothing else is told any more, and after bytes
// that are read as the end of the text.
//
// It never logs, never writes to standard error, and keeps nothing between calls; it
// may be called on any number of threads.  It takes time in proportion to the text,
// and little memory beyond the findings: some megabytes for lines with mistakes, and
// with `strict` some 40 bytes for each key.
//
// Throws std::bad_alloc if there is not enough memory, and nothing else.
//
// Example: diagnose("names = []\n") returns one finding with line 1, column 10,
// code "empty-array", message "the array is empty".
VORN_TOML_DIAGNOSIS_API std::vector<Finding> diagnose(const std::string& document,
                                                      const DiagnosisOptions& options = {});

// Calls a visitor for an accepted document, as visitTomlTree() does, or returns why it is
// not accepted: then the findings have an error, and the visitor is not called at all.
// With `strict`, that is so for documents that are not TOML 1.0, too.
//
// Other than visitTomlTree() it never logs and never writes to standard error.  An accepted
// document takes the same time (with `strict` some five times that); another one takes what
// diagnose() takes.
//
// Throws std::bad_alloc if there is not enough memory, and what the visitor throws.
//
// Example: with a visitor of toml.h, visitOrDiagnose("a = 1\n", visitor) makes its calls and
// returns nothing; visitOrDiagnose("a = []\n", visitor) returns one finding.
VORN_TOML_DIAGNOSIS_API std::vector<Finding> visitOrDiagnose(const std::string& document,
                                                             ITomlTreeVisitor& visitor,
                                                             const DiagnosisOptions& options = {});

// Returns the source line of a finding with its number, and a line of marks below
// it, each ended by a line feed; then the same for the related places, with their
// messages.  The part of a long line that is shown is at most 100 columns wide, and is
// safe to print: control characters, invisible ones and bytes that are not UTF-8 are
// shown as \x1B or \u202E.
//
// The document is the one that the finding is about; for any other one the
// excerpt says nothing useful, but the call is safe.  Throws std::bad_alloc if
// there is not enough memory.
//
// Example: for "names = []\n" and its finding,
//
//       1 | names = []
//         |          ^
VORN_TOML_DIAGNOSIS_API std::string excerpt(const std::string& document, const Finding& finding);

} // namespace vorn::parsers::toml

#endif
