// vorn_parsers: an event reader for TOML.
//
// A client hands visitTomlTree() a document, as a text or as the path of a file,
// and a visitor.  The library checks the document and calls the visitor once for
// every header, key, array, inline table and scalar, in document order.  It keeps
// no document model and no state between calls.
//
// Units used below: a "text" is a NUL-terminated string of UTF-8 bytes.
#ifndef VORN_PARSERS_TOML_H
#define VORN_PARSERS_TOML_H

#include <string>
#include <utility>

#if defined(__GNUC__)
#define VORN_PARSERS_API __attribute__((visibility("default")))
#else
#define VORN_PARSERS_API
#endif

namespace vorn::parsers::toml
{

// The client's side of a reading: one operation for each thing that a document
// can hold.
//
// Order.  The calls come in document order, depth first:
//
//   # document                 # calls
//                              beginDocument
//   title = "TOML"             beginKeyValue, visitBareKey title,
//                              visitBasicString "TOML", endKeyValue
//   [owner]                    beginTable, visitBareKey owner, endTable
//   bench.x = [1, 0x1F]        beginKeyValue, beginDottedKey, visitBareKey bench,
//                              visitBareKey x, endDottedKey, beginArray,
//                              visitInteger 1, visitInteger 0x1F, endArray,
//                              endKeyValue
//                              endDocument
//
// A header does not enclose the pairs below it: endTable follows the header's
// key at once, and the pairs come after it, up to the next header.
//
// Texts.  A text is the scalar exactly as the document has it: delimiters,
// escapes, signs, prefixes and underscores included.  It is NUL-terminated UTF-8,
// never null, and lives for the duration of the call only; copy what you keep.
// (A NUL byte inside a string of the document ends the text early.)
//
// Rejected documents.  The calls are made while the document is read, before it
// is known whether all of it is right.  When visitTomlTree() answers false the
// visitor may have received any number of calls, and begin calls may lack their
// end calls: act on what you gathered only when the result is true.
//
// Exceptions.  An operation may throw.  The exception ends the reading and leaves
// visitTomlTree() after everything that it holds has been freed.  There is no
// other way to stop a reading.
//
// Threads.  All calls are made on the thread that called visitTomlTree().
//
// The order of the operations is part of the binary interface.
class VORN_PARSERS_API ITomlTreeVisitor
{
public:
    // Never called by the library, which does not own visitors.
    virtual ~ITomlTreeVisitor();

    // The first call of every reading, also of an empty document.
    virtual void beginDocument() = 0;
    // The last call; not made when the reading broke off before the document's end.
    virtual void endDocument() = 0;

    // A pair, `key = value`: encloses one key and one value.  Pairs stand at the
    // top level and in inline tables.
    virtual void beginKeyValue() = 0;
    virtual void endKeyValue() = 0;

    // A header, `[key]`: encloses its key.
    virtual void beginTable() = 0;
    virtual void endTable() = 0;

    // A header of an array of tables, `[[key]]`: encloses its key.
    virtual void beginArrayTable() = 0;
    virtual void endArrayTable() = 0;

    // A dotted key, `a."b".c`: encloses two or more calls of visitBareKey and
    // visitQuotedKey, one for each part.  A key of one part comes without these.
    virtual void beginDottedKey() = 0;
    virtual void endDottedKey() = 0;

    // A bare key or part of a key: letters, digits, '_' and '-'.
    // `server = 1` gives "server".
    virtual void visitBareKey(const char* text) = 0;

    // A quoted key or part of a key, with its quotes.
    // `"my key" = 1` gives "\"my key\"", `'k' = 1` gives "'k'".
    virtual void visitQuotedKey(const char* text) = 0;

    // An array, `[1, 2]`: encloses its elements, which may be of different kinds.
    virtual void beginArray() = 0;
    virtual void endArray() = 0;

    // An inline table, `{ x = 1, y = 2 }`: encloses its pairs.
    virtual void beginInlineTable() = 0;
    virtual void endInlineTable() = 0;

    // Strings, with their delimiters; escapes stay as they are written.
    // `"a\tb"` gives the six characters between these backquotes.
    virtual void visitBasicString(const char* text) = 0;
    // `"""..."""`, line breaks included.
    virtual void visitMultilineBasicString(const char* text) = 0;
    // `'...'`; a backslash is an ordinary character.
    virtual void visitLiteralString(const char* text) = 0;
    // `'''...'''`, line breaks included.
    virtual void visitMultilineLiteralString(const char* text) = 0;

    // An integer: decimal with an optional sign, or 0x, 0o, 0b.
    // `+1_000` gives "+1_000", `0xDEAD_beef` gives "0xDEAD_beef".
    virtual void visitInteger(const char* text) = 0;
    // A float, infinity or not-a-number: "6.626e-34", "-inf", "nan".
    virtual void visitFloat(const char* text) = 0;
    // "true" or "false".
    virtual void visitBoolean(const char* text) = 0;

    // Dates and times.  Only their form has been checked: a month 13 passes.
    // "1979-05-27T07:32:00Z", "1979-05-27 00:32:00.5-07:00"
    virtual void visitOffsetDateTime(const char* text) = 0;
    // "1979-05-27T07:32:00"
    virtual void visitLocalDateTime(const char* text) = 0;
    // "1979-05-27"
    virtual void visitLocalDate(const char* text) = 0;
    // "07:32:00", "00:32:00.999999"
    virtual void visitLocalTime(const char* text) = 0;
};

// The path of a document's file.  It is a type of its own so that a text and a
// path cannot be mistaken for each other:
//
//   visitTomlTree("a = 1\n", visitor);                   // a text
//   visitTomlTree(FilePath("/etc/app.toml"), visitor);   // a file
//
// The path is used as it is: relative paths start at the working directory.
class FilePath
{
public:
    explicit FilePath(const char* path) : path_(path) {}
    explicit FilePath(std::string path) : path_(std::move(path)) {}

    // The path, NUL-terminated; lives as long as this object is unchanged.
    const char* c_str() const noexcept { return path_.c_str(); }
    // The path as it was given.
    const std::string& string() const noexcept { return path_; }

private:
    // The library reads the path through this first member, which begins with a
    // pointer to NUL-terminated characters.
    std::string path_;
};

// Reads a document from memory.
//
// `text` holds the whole document as UTF-8; it is read in place and may hold any
// bytes.  `visitor` is borrowed for the duration of the call.
//
// Answers true if the document is right in full.  Otherwise the answer is false,
// and what is wrong is logged, one line for each error.  An error does not end the
// reading: the visitor is still called for what could be made out.  A text of
// 4 GiB or more is refused without a call.
//
// Every pair and header must end with a line break, the last one too:
//
//   visitTomlTree("a = 1\n", visitor);   // true
//   visitTomlTree("a = 1", visitor);     // false, after the calls for the pair
//   visitTomlTree("", visitor);          // true: beginDocument, endDocument
//
// Throws nothing of its own; what the visitor throws and std::bad_alloc pass
// through.  Allocates while it runs and keeps nothing.  Calls on different threads
// do not disturb each other.
VORN_PARSERS_API bool visitTomlTree(const std::string& text, ITomlTreeVisitor& visitor);

// Reads a document from a file: the whole file first, then as above.
//
// Answers false, with one log line and no call of the visitor, if there is no such
// file, or if it cannot be opened or read to its end.
//
//   visitTomlTree(FilePath("/etc/app.toml"), visitor);
//
// Throws and allocates like the other overload; the file's content is held in
// memory until the call returns.
VORN_PARSERS_API bool visitTomlTree(const FilePath& path, ITomlTreeVisitor& visitor);

} // namespace vorn::parsers::toml

#endif
