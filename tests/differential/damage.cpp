#include "damage.h"

#include <algorithm>

namespace test
{
namespace
{

using namespace std::string_view_literals;

// What says something to a recogniser.
constexpr std::string_view pieces[] = {
    "\n",    "\r",         "\r\n",        " ",     "\t",
    "\"",    "'",          "\"\"\"",      "'''",   "\"\"\"\"\"\"\"\"",
    "''''",  "[",          "]",           "[[",    "]]",
    "{",     "}",          ",",           ".",     "=",
    "#",     "\\",         "\\e",         "\\u12", "\\U1234567",
    "\\ \n", "@",          "$",           "+",     "-",
    ":",     "_",          "__",          "0",     "7",
    "e",     "e+",         "T",           "t",     "Z",
    "z",     "1.",         ".5",          "0x",    "0o8",
    "0b_",   "1979-05-27", "1979-05-27 ", "07:32", "07:32:00.",
    "+0100", "true",       "inf",         "nan",   "+a",
    "[]",    "{}",         ",]",          "\n]",   "=\n",
    "\0"sv,  "\0\0a"sv};

// Bytes that are no UTF-8, or UTF-8 of characters that the recognisers do not take.  The
// runtime computes a character from any bytes that a lead byte promises.
constexpr std::string_view encodings[] = {
    // Continuations alone.
    "\x80", "\xBF", "\x80\x80\x80",
    // Cut off.
    "\xC3", "\xE2", "\xE2\x82", "\xF0\x9F", "\xF0\x9F\x98", "\xC3\x41", "\xE2\x41\x41",
    "\xE2\x82\x41", "\xC3\xC3\xA9",
    // Longer than needed.
    "\xC0\x80", "\xC1\xBF", "\xC0\x8A", "\xE0\x80\x80", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF",
    // Surrogates.
    "\xED\xA0\x80", "\xED\xBF\xBF", "\xED\xA0\xBD\xED\xB8\x80",
    // Beyond U+FFFF.
    "\xF0\x90\x80\x80", "\xF0\x9F\x98\x80", "\xF4\x8F\xBF\xBF", "\xF4\x90\x80\x80",
    "\xF7\xBF\xBF\xBF", "\xF8\x88\x80\x80\x80", "\xFB\xBF\xBF\xBF\xBF", "\xFC\x84\x80\x80\x80\x80",
    "\xFD\xBF\xBF\xBF\xBF\xBF",
    // Never used.
    "\xFE", "\xFF", "\xFF\xFE", "\xFE\xFF",
    // Well-formed.
    "\xC3\xA9", "\xE2\x82\xAC", "\xEF\xBB\xBF", "\xEF\xBF\xBE"};

// A longer form of an ASCII character than the one byte that it takes.
std::string longForm(char c, Random& random)
{
    static constexpr std::string_view heads[] = {"\xC0", "\xE0\x80", "\xF0\x80\x80",
                                                 "\xF8\x80\x80\x80", "\xFC\x80\x80\x80\x80"};
    // Makes up for a last byte that lacks its high bit.
    static constexpr std::string_view plainHeads[] = {"\xC2", "\xE0\x82", "\xF0\x80\x82",
                                                      "\xF8\x80\x80\x82", "\xFC\x80\x80\x80\x82"};
    if (random.oneIn(3))
    {
        return std::string(random.oneOf(plainHeads)) + c;
    }
    std::string form(random.oneOf(heads));
    form.back() = static_cast<char>(form.back() | (c >> 6 & 1));
    return form + static_cast<char>(0x80 | (c & 0x3F));
}

} // namespace

void damage(std::string& document, Random& random)
{
    const std::size_t at = random.oneIn(20) ? 0 : random.below(document.size() + 1);
    const std::size_t length = std::min(random.below(4), document.size() - at);
    switch (random.below(12))
    {
    case 0:
    case 1:
        document.erase(at, length);
        break;
    case 2:
        document.insert(at, document.substr(at, random.oneIn(2) ? length : std::string::npos));
        break;
    case 3:
        document.resize(at);
        break;
    case 4:
        document.insert(at, 1, static_cast<char>(random.below(256)));
        break;
    case 5:
        document.replace(at, length, random.oneOf(pieces));
        break;
    case 6:
        // At the end it may be cut off, too.
        document.insert(random.oneIn(6) ? document.size() : at, random.oneOf(encodings));
        break;
    case 7:
        if (at < document.size())
        {
            document.replace(at, 1, longForm(document[at], random));
        }
        break;
    case 8:
        // The last line break, which must be there.
        document.erase(std::min(document.find_last_not_of("\r\n") + 1, document.size()));
        break;
    default:
        document.insert(at, random.oneOf(pieces));
    }
}

} // namespace test
