// vorn_parsers: an event reader for TOML.
//
// You hand visitTomlTree() a document, as a text or as the path of a file, and a
// visitor.  The library checks the document and calls the visitor for every
// header, key, array, inline table and scalar, in document order.  It builds no
// document model and keeps no state between calls.
//
// Units used below: a "text" is a NUL-terminated string of UTF-8 bytes.
//
// Your program may do without exceptions or type information (-fno-exceptions, -fno-rtti): it
// gets the same library, but for StrictTomlTreeVisitor.  What a function throws, such as
// std::bad_alloc, then ends the program.  On 32-bit ARM that is so wherever an exception comes
// to code that is compiled without them, even if other code would catch it; elsewhere it passes
// that code, which frees nothing.  Visitors of code without type information work like others,
// but nobody may use dynamic_cast or typeid on them.
#ifndef VORN_PARSERS_TOML_H
#define VORN_PARSERS_TOML_H

#include <sys/time.h>

#include <stdexcept>
#include <string>
#include <utility>

// The version of this header; version() returns that of the library.
#define VORN_PARSERS_VERSION_MAJOR 0
#define VORN_PARSERS_VERSION_MINOR 1
#define VORN_PARSERS_VERSION_PATCH 0

#if defined(__GNUC__)
#define VORN_PARSERS_API __attribute__((visibility("default")))
#else
#define VORN_PARSERS_API
#endif

namespace vorn::parsers::toml
{

// What you implement: one operation for each thing that a document can hold.
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
// A header does not enclose the pairs below it: endTable comes right after the
// header's key, and the pairs come after that, up to the next header.
//
// Texts.  A text is the scalar exactly as the document has it: delimiters,
// escapes, signs, prefixes and underscores included.  It is NUL-terminated UTF-8
// and never null.  It lives for the duration of the call only: copy what you keep.
// (A NUL byte inside a string of the document ends the text early.)
//
// Rejected documents.  A visitor gets calls for invalid documents, too: for what
// the library could make out.  When visitTomlTree() returns false, the visitor may
// have received any number of calls, and begin calls may lack their end calls.
// Act on what you gathered only if visitTomlTree() returns true.
//
// Exceptions.  An operation may throw.  The exception ends the reading and leaves
// visitTomlTree(), which frees everything that it holds first.  There is no other
// way to stop a reading.
//
// Threads.  All calls are made on the thread that called visitTomlTree().
//
// The order of the operations is part of the binary interface.
// NOLINTNEXTLINE(cppcoreguidelines-special-member-functions): whether one is copied is its own.
class VORN_PARSERS_API ITomlTreeVisitor
{
public:
    // Never called by the library, which does not own visitors.
    virtual ~ITomlTreeVisitor();

    // The first call of every reading, even of an empty document.
    virtual void beginDocument() = 0;
    // The last call; missing if the reading broke off before the document's end.
    virtual void endDocument() = 0;

    // A pair, `key = value`: encloses one key and one value.  Pairs occur at the
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
    // visitQuotedKey, one for each part.  A key with a single part is not enclosed.
    virtual void beginDottedKey() = 0;
    virtual void endDottedKey() = 0;

    // A bare key, or a bare part of a key: letters, digits, '_' and '-'.
    // `server = 1` gives "server".
    virtual void visitBareKey(const char* text) = 0;

    // A quoted key, or a quoted part of a key, with its quotes.
    // `"my key" = 1` gives "\"my key\"", `'k' = 1` gives "'k'".
    virtual void visitQuotedKey(const char* text) = 0;

    // An array, `[1, 2]`: encloses its elements, which may differ in kind.
    virtual void beginArray() = 0;
    virtual void endArray() = 0;

    // An inline table, `{ x = 1, y = 2 }`: encloses its pairs.
    virtual void beginInlineTable() = 0;
    virtual void endInlineTable() = 0;

    // Strings, with their delimiters.  Escapes stay as they are written.
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

    // Dates and times.  Only their form has been checked: the month 13 is accepted.
    // "1979-05-27T07:32:00Z", "1979-05-27 00:32:00.5-07:00"
    virtual void visitOffsetDateTime(const char* text) = 0;
    // "1979-05-27T07:32:00"
    virtual void visitLocalDateTime(const char* text) = 0;
    // "1979-05-27"
    virtual void visitLocalDate(const char* text) = 0;
    // "07:32:00", "00:32:00.999999"
    virtual void visitLocalTime(const char* text) = 0;
};

// A visitor whose operations do nothing: derive from it, and override what you need.
//
//   class Sum : public TomlTreeVisitor
//   {
//   public:
//       long long sum = 0;
//       void visitInteger(const char* text) override { sum += parseInteger(text); }
//   };
//
//   Sum visitor;
//   visitTomlTree("a = [1, 2]\nb = 0x10\n", visitor);   // visitor.sum is 19
//
// What you do not override is ignored without a word, even a table or a kind of value that
// you did not think of.  StrictTomlTreeVisitor tells you instead.
class VORN_PARSERS_API TomlTreeVisitor : public ITomlTreeVisitor
{
public:
    void beginDocument() override {}
    void endDocument() override {}
    void beginKeyValue() override {}
    void endKeyValue() override {}
    void beginTable() override {}
    void endTable() override {}
    void beginArrayTable() override {}
    void endArrayTable() override {}
    void beginDottedKey() override {}
    void endDottedKey() override {}
    void visitBareKey(const char*) override {}
    void visitQuotedKey(const char*) override {}
    void beginArray() override {}
    void endArray() override {}
    void beginInlineTable() override {}
    void endInlineTable() override {}
    void visitBasicString(const char*) override {}
    void visitMultilineBasicString(const char*) override {}
    void visitLiteralString(const char*) override {}
    void visitMultilineLiteralString(const char*) override {}
    void visitInteger(const char*) override {}
    void visitFloat(const char*) override {}
    void visitBoolean(const char*) override {}
    void visitOffsetDateTime(const char*) override {}
    void visitLocalDateTime(const char*) override {}
    void visitLocalDate(const char*) override {}
    void visitLocalTime(const char*) override {}
};

// A visitor whose operations all throw: a std::logic_error that names the operation,
// "visitFloat is not overridden".  Derive from it, and override everything that a document
// may hold, including beginDocument and endDocument.  Anything else ends the reading.
//
// The exception leaves visitTomlTree() like any other that a visitor throws.  (Code that is
// compiled without exceptions does not see this class.)
#if defined(__cpp_exceptions)
class VORN_PARSERS_API StrictTomlTreeVisitor : public ITomlTreeVisitor
{
public:
    void beginDocument() override { refuse("beginDocument"); }
    void endDocument() override { refuse("endDocument"); }
    void beginKeyValue() override { refuse("beginKeyValue"); }
    void endKeyValue() override { refuse("endKeyValue"); }
    void beginTable() override { refuse("beginTable"); }
    void endTable() override { refuse("endTable"); }
    void beginArrayTable() override { refuse("beginArrayTable"); }
    void endArrayTable() override { refuse("endArrayTable"); }
    void beginDottedKey() override { refuse("beginDottedKey"); }
    void endDottedKey() override { refuse("endDottedKey"); }
    void visitBareKey(const char*) override { refuse("visitBareKey"); }
    void visitQuotedKey(const char*) override { refuse("visitQuotedKey"); }
    void beginArray() override { refuse("beginArray"); }
    void endArray() override { refuse("endArray"); }
    void beginInlineTable() override { refuse("beginInlineTable"); }
    void endInlineTable() override { refuse("endInlineTable"); }
    void visitBasicString(const char*) override { refuse("visitBasicString"); }
    void visitMultilineBasicString(const char*) override { refuse("visitMultilineBasicString"); }
    void visitLiteralString(const char*) override { refuse("visitLiteralString"); }
    void visitMultilineLiteralString(const char*) override
    {
        refuse("visitMultilineLiteralString");
    }
    void visitInteger(const char*) override { refuse("visitInteger"); }
    void visitFloat(const char*) override { refuse("visitFloat"); }
    void visitBoolean(const char*) override { refuse("visitBoolean"); }
    void visitOffsetDateTime(const char*) override { refuse("visitOffsetDateTime"); }
    void visitLocalDateTime(const char*) override { refuse("visitLocalDateTime"); }
    void visitLocalDate(const char*) override { refuse("visitLocalDate"); }
    void visitLocalTime(const char*) override { refuse("visitLocalTime"); }

private:
    [[noreturn]] static void refuse(const char* operation)
    {
        throw std::logic_error(std::string(operation) + " is not overridden");
    }
};
#endif

// The path of a document's file.  It is a type of its own, so that nobody takes a
// text for a path:
//
//   visitTomlTree("a = 1\n", visitor);                   // a text
//   visitTomlTree(FilePath("/etc/app.toml"), visitor);   // a file
//
// The path is used as it is.  A relative path starts at the working directory.
class FilePath
{
public:
    // The path is copied.
    explicit FilePath(const char* path) : path_(path) {}
    explicit FilePath(std::string path) : path_(std::move(path)) {}

    // The path, NUL-terminated.  It is valid as long as this object is unchanged.
    const char* c_str() const noexcept { return path_.c_str(); }
    // The path, as you gave it.
    const std::string& string() const noexcept { return path_; }

private:
    // The library reads the path through this first member, which starts with a
    // pointer to NUL-terminated characters.
    std::string path_;
};

// Reads a document from memory.
//
// `text` is the whole document in UTF-8.  It is read in place and may hold any bytes.
// `visitor` is borrowed for the duration of the call.
//
// Returns true if the document is valid.  Otherwise it returns false and logs what is
// wrong, one line for each error.  An error does not end the reading: the visitor is
// still called for what could be made out.  A text of 4 GiB or more is rejected without
// a call.
//
// Every pair and header must end with a line break, including the last one:
//
//   visitTomlTree("a = 1\n", visitor);   // true
//   visitTomlTree("a = 1", visitor);     // false, after the calls for the pair
//   visitTomlTree("", visitor);          // true: beginDocument, endDocument
//
// In valid lines arrays and inline tables may nest without limit.  An invalid document gets
// no calls, and a log line that says why, in two cases:
//
//   - A statement with a mistake nests too deeply to be diagnosed on the thread's stack.  A
//     stack that is not the thread's own (of a coroutine, or of makecontext()) counts as
//     32 KB, so the limit is lower there.
//   - There is not enough memory to diagnose it: some megabytes and a few times its size,
//     and for a statement with a mistake some hundred times that statement's size, two
//     thousand times in the worst case.
//
// Throws nothing of its own but std::bad_alloc, where memory ends all the same.  What the
// visitor or the logger throws passes through.  If the thread is cancelled
// (pthread_cancel()) while the library displays an error, the cancellation waits until
// the display has returned.
//
// Reading a valid document takes at most three allocations, and none for a small one: at
// most 512 KB, an eighth of the document's size, and its longest scalar once more.
// Nothing is kept.  Calls on different threads do not disturb each other.
VORN_PARSERS_API bool visitTomlTree(const std::string& text, ITomlTreeVisitor& visitor);

// Reads a document from a file: first the whole file, then as above.
//
// Returns false, with one log line and without a call, if there is no such file, or if it
// cannot be opened or read to its end.
//
//   visitTomlTree(FilePath("/etc/app.toml"), visitor);
//
// Throws and allocates like the other overload.  The file's content stays in memory until
// the call returns; if there is no memory for it, std::bad_alloc is thrown.
VORN_PARSERS_API bool visitTomlTree(const FilePath& path, ITomlTreeVisitor& visitor);

// ---------------------------------------------------------------------------------
// Values of scalar texts
//
// Functions for your visitor: each turns the text of a scalar into a value.  Nothing in
// the library calls them.  They do not check their argument, since a visitor's texts have
// been checked.  What they make of other texts is stated all the same.
//
// All take the text as the document has it, delimiters, prefixes and underscores
// included.  All may allocate and throw std::bad_alloc.
// ---------------------------------------------------------------------------------

// Takes one quote off each end: the value of a basic or a literal string, or the name
// in a quoted key.
//
// Escapes stay as they are written: your visitor resolves them.  A text whose ends are
// not the same quote (' or ") is returned unchanged.
//
//   unquote("\"red\"")        // red
//   unquote("'C:\\temp'")     // C:\temp
//   unquote("\"a\\tb\"")      // a\tb, four characters: the escape stays
//   unquote("\"it's'")        // "it's', unchanged: the ends differ
//   unquote("\"")             // empty: the one quote is both ends
VORN_PARSERS_API std::string unquote(std::string text);

// Takes a delimiter off both ends if both have it; otherwise returns the text unchanged.
// Where the two overlap, the end goes first, then what is left of the start.
//
//   unquote("'''x'''", "'''")   // x
//   unquote("--x-", "--")       // --x-, unchanged
//   unquote("''''", "'''")      // empty
VORN_PARSERS_API std::string unquote(std::string text, const std::string& delimiter);

// Puts a delimiter on both ends.  Nothing inside the text is escaped.
//
//   enquote("x", "'")      // 'x'
//   enquote("it's", "'")   // 'it's'
VORN_PARSERS_API std::string enquote(const std::string& text, const std::string& delimiter);

// The content of a multi-line basic string.
//
// Removes the delimiters, then a line feed right after the opening one, then every
// line-ending backslash with its line feed and the blanks and line breaks that follow.
// Other escapes stay as they are written.  Three things to know:
//
//   - Lines end with line feeds.  A carriage return right after the delimiter stays,
//     and a backslash before a carriage return does not count as line-ending.
//   - An escaped backslash at the end of a line counts as line-ending.
//   - Of two line-ending backslashes with only blanks between them, the second stays.
//
//   processMultilineString("\"\"\"\none\\\n   two\"\"\"")   // onetwo
//   processMultilineString("\"\"\"a\\tb\"\"\"")             // a\tb, the escape stays
//   processMultilineString("\"\"\"\r\nx\"\"\"")             // CR, LF, x
VORN_PARSERS_API std::string processMultilineString(std::string text);

// The content of a multi-line literal string: without the delimiters, and without a line
// feed right after the opening one.
//
//   processMultilineLiteralString("'''\nC:\\temp\\\n'''")   // C:\temp\ and a line feed
VORN_PARSERS_API std::string processMultilineLiteralString(std::string text);

// The functions parseBoolean(), parseInteger() and parseFloat() read as a string stream does
// in the global C++ locale, which is the classic one unless your program has set another.
// If that locale has its own names for true and false, decimal comma or digit grouping, they
// apply:
//
//   std::locale::global(std::locale("de_DE.UTF-8"));
//   parseFloat("3.5")       // 35: the point is German digit grouping
//
// Blanks before a value are skipped, and what follows it is ignored.  A text that does not
// convert, such as an empty or a blank one, yields false, 0 or 0.0.

// The value of a boolean.
//
//   parseBoolean("true")    // true
//   parseBoolean("True")    // false: the names are in lower case
VORN_PARSERS_API bool parseBoolean(const std::string& text);

// The value of an integer, with a sign or a prefix, and underscores anywhere.
//
// Decimal, hexadecimal and octal values beyond 64 bits yield the nearest long long.
// Binary values are limited to 32 bits on every platform.  Of the digits after "0b" the
// first 64 are read.  One that is neither 0 nor 1 throws std::invalid_argument
// ("bitset::_M_copy_from_ptr"), and a value above 4294967295 throws std::overflow_error
// ("_Base_bitset::_M_do_to_ulong").  Nothing else is thrown.  A document may have such a value:
// without exceptions, use integerValue() of toml_values.h.
//
//   parseInteger("-1_000")                // -1000
//   parseInteger("0xDEAD_beef")           // 3735928559
//   parseInteger("0o755")                 // 493
//   parseInteger("0b1101_0101")           // 213
//   parseInteger("9223372036854775808")   // 9223372036854775807
//   parseInteger("0x8000000000000000")    // 9223372036854775807
//   parseInteger("-0x1")                  // 0: a prefix stands at the start only
//   parseInteger("")                      // 0
VORN_PARSERS_API long long parseInteger(std::string text);

// The value of a float, with underscores anywhere.
//
// Infinities and not-a-numbers yield 0.0: recognise them by their text.  A magnitude
// beyond the range of double yields the largest finite one.
//
//   parseFloat("6.626e-34")   // 6.626e-34
//   parseFloat("1_000.5")     // 1000.5
//   parseFloat("-inf")        // 0.0
//   parseFloat("1e400")       // 1.7976931348623157e308
//   parseFloat("1e")          // 0.0: an exponent has digits
VORN_PARSERS_API double parseFloat(std::string text);

// The point in time of an offset or a local date-time: seconds since the epoch.
// Microseconds are always 0.
//
// The date and time are always read as local time, in the zone of the process (TZ):
//
//   - A zone letter or an offset is not applied.
//   - The fraction of a second is dropped.
//   - Daylight saving time is taken into account only where a zone letter follows the
//     seconds.  The other forms, including a fraction with a letter, are read as standard
//     time.
//
// With TZ=UTC:
//
//   parseDateTime("1979-05-27T07:32:00Z")          // 296638320
//   parseDateTime("1979-05-27T07:32:00-07:00")     // 296638320: the offset is ignored
//   parseDateTime("1979-05-27 07:32:00.999999")    // 296638320: so is the fraction
//   parseDateTime("1979-02-30T07:32:00Z")          // 289207920: March 2
//   parseDateTime("1979-05-27T25:00:00Z")          // 296611200: the day's midnight
//   parseDateTime("1979-13-01T07:32:00Z")          // -2209075200: 1899-12-31 00:00:00
//
// The last one gives -1 where time_t has 32 bits, as on 32-bit ARM.
//
// A text without a date and a time, joined by 'T' or a blank, yields zero and the log line
// "Failed to parse date-time: ...".  Local dates, local times and date-times with a
// lower-case 't' are such texts.  Any other text is read from its start, as far as it fits.
//
// A day up to 31 that the month does not have is carried over, and so are the seconds 60 and
// 61.  If another field is out of range, a time is read as midnight, and a date with its time
// as the midnight of 1899-12-31.  There are two exceptions: of a day from 40 on and of a second
// from 70 on, the first digit is taken (the time of such a day is midnight).  The result is
// what mktime() returns: -1 also stands for a time that time_t cannot hold.
VORN_PARSERS_API timeval parseDateTime(const std::string& text);

// The version of the library that your program runs with, "0.1.0".  It may be newer than the
// header that the program was compiled with.
VORN_PARSERS_API const char* version() noexcept;

} // namespace vorn::parsers::toml

#endif
