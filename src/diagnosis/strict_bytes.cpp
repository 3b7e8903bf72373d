#include "strict_bytes.h"

#include <string>

#include "encoding_words.h"
#include "scan/character_run.h"
#include "scan/utf8.h"
#include "selection.h"
#include "strict_mistakes.h"

namespace vorn::parsers::toml::diagnosis
{
namespace
{

// What most of a document is made of.
struct Printable
{
    static constexpr bool has(char c) { return c >= ' ' && c <= '~'; }

    template <typename Block>
    static auto outside(Block block) noexcept
    {
        return block.notMarked(block.from(' ', '~'));
    }
};

// One forbidden byte, or an allowed character.
struct Classified
{
    const StrictRule* rule; // that forbids it; null: none
    const char* end;
};

Classified classify(const char* at, const char* end)
{
    switch (*at)
    {
    case '\t':
    case '\n':
        return {nullptr, at + 1};
    case '\r':
        return end - at > 1 && at[1] == '\n' ? Classified{nullptr, at + 2}
                                             : Classified{&loneCarriageReturn, at + 1};
    case '\0':
        return {&nul, at + 1};
    default:
        break;
    }
    if (Printable::has(*at))
    {
        return {nullptr, at + 1};
    }
    if (isAscii(*at))
    {
        return {&controlCharacter, at + 1};
    }
    const char* const stop = sequenceEnd(at, end, Utf8Range::whole);
    return stop != nullptr ? Classified{nullptr, stop} : Classified{&notUtf8, at + 1};
}

std::string hexNumber(unsigned char byte)
{
    constexpr char digits[] = "0123456789ABCDEF";
    return {digits[byte / 16], digits[byte % 16]};
}

// "the byte FF is", "the 3 bytes from FF on are"
std::string described(std::string_view run, const StrictRule& rule)
{
    const std::string number = hexNumber(static_cast<unsigned char>(run[0]));
    const std::string first = &rule == &notUtf8 ? number : "U+00" + number;
    const std::string noun = &rule == &notUtf8 ? "byte" : "control character";
    return run.size() == 1
               ? "the " + noun + ' ' + first + " is"
               : "the " + std::to_string(run.size()) + ' ' + noun + "s from " + first + " on are";
}

void addRun(std::string_view run, const StrictRule& rule, std::string_view text,
            StrictMistakes& mistakes)
{
    const auto begin = static_cast<std::size_t>(run.data() - text.data());
    const std::string encoding =
        &rule == &notUtf8 ? encodingHint(text, begin, run.size()) : std::string();
    const StrictRule said = {rule.code, rule.message,
                             encoding.empty() ? rule.hint : encoding.c_str()};
    mistakes.add(said, run, described(run, rule),
                 "00" + hexNumber(static_cast<unsigned char>(run[0])));
    mistakes.keepStatement();
}

} // namespace

std::vector<Mistake> findForbiddenBytes(std::string_view text, std::size_t max,
                                        const std::vector<Mistake>& told)
{
    ToldPlaces places(told);
    StrictMistakes mistakes(text, max);
    const char* const end = text.data() + text.size();
    const auto offset = [text](const char* place)
    { return static_cast<std::size_t>(place - text.data()); };
    const char* at = text.data();
    while (!mistakes.isFull() && (at = runEnd<Printable>(at, end)) != end)
    {
        const char* const begin = at;
        const Classified found = classify(begin, end);
        at = found.end;
        if (found.rule == nullptr)
        {
            continue;
        }
        const bool isTold = places.have(offset(begin));
        while (at != end && classify(at, end).rule == found.rule &&
               (isTold || !places.have(offset(at))))
        {
            ++at;
        }
        if (!isTold)
        {
            addRun({begin, static_cast<std::size_t>(at - begin)}, *found.rule, text, mistakes);
        }
    }
    return mistakes.take();
}

} // namespace vorn::parsers::toml::diagnosis
