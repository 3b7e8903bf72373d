#include "word_kind.h"

#include "characters.h"

namespace tool::fixing
{
namespace
{

using IsDigit = bool (*)(char c);

// Reads a word from its start.
class Word
{
public:
    explicit Word(std::string_view word) : rest_(word) {}

    bool isDone() const { return rest_.empty(); }

    bool take(char c)
    {
        const bool isThere = !rest_.empty() && rest_.front() == c;
        rest_.remove_prefix(isThere ? 1 : 0);
        return isThere;
    }

    bool takeAny(std::string_view characters)
    {
        return !rest_.empty() && characters.find(rest_.front()) != std::string_view::npos &&
               take(rest_.front());
    }

    bool takeText(std::string_view text)
    {
        const bool isThere = rest_.substr(0, text.size()) == text;
        rest_.remove_prefix(isThere ? text.size() : 0);
        return isThere;
    }

    // So many decimal digits.
    bool takeDigits(int count)
    {
        for (; count > 0 && !rest_.empty() && isDigit(rest_.front()); --count)
        {
            rest_.remove_prefix(1);
        }
        return count == 0;
    }

    // One or more digits, with single underscores between them.
    bool takeNumber(IsDigit isOne)
    {
        do
        {
            if (rest_.empty() || !isOne(rest_.front()))
            {
                return false;
            }
            while (!rest_.empty() && isOne(rest_.front()))
            {
                rest_.remove_prefix(1);
            }
        } while (take('_'));
        return true;
    }

private:
    std::string_view rest_;
};

bool isOctalDigit(char c)
{
    return c >= '0' && c <= '7';
}

bool isBinaryDigit(char c)
{
    return c == '0' || c == '1';
}

bool isWhole(Word word, IsDigit isOne)
{
    return word.takeNumber(isOne) && word.isDone();
}

// Takes a decimal integer, which has no leading zeros.
bool takeInteger(Word& word)
{
    word.takeAny("+-");
    return word.take('0') || word.takeNumber(isDigit);
}

bool takeExponent(Word& word)
{
    if (!word.takeAny("eE"))
    {
        return false;
    }
    word.takeAny("+-");
    return word.takeNumber(isDigit);
}

std::optional<PieceKind> kindOfNumber(std::string_view text)
{
    Word word(text);
    if (word.takeText("0x") || word.takeText("0o") || word.takeText("0b"))
    {
        const IsDigit isOne = text[1] == 'x'   ? isHexDigit
                              : text[1] == 'o' ? isOctalDigit
                                               : isBinaryDigit;
        return isWhole(word, isOne) ? std::optional(PieceKind::integer) : std::nullopt;
    }
    if (!takeInteger(word))
    {
        return std::nullopt;
    }
    if (word.isDone())
    {
        return PieceKind::integer;
    }
    const bool hasFraction = word.take('.');
    if (hasFraction && !word.takeNumber(isDigit))
    {
        return std::nullopt;
    }
    const bool isFloat = (hasFraction && word.isDone()) || (takeExponent(word) && word.isDone());
    return isFloat ? std::optional(PieceKind::floatingPoint) : std::nullopt;
}

bool takeDate(Word& word)
{
    return word.takeDigits(4) && word.take('-') && word.takeDigits(2) && word.take('-') &&
           word.takeDigits(2);
}

bool takeTime(Word& word)
{
    const bool isTime = word.takeDigits(2) && word.take(':') && word.takeDigits(2) &&
                        word.take(':') && word.takeDigits(2);
    if (!isTime || !word.take('.'))
    {
        return isTime;
    }
    if (!word.takeDigits(1))
    {
        return false;
    }
    while (word.takeDigits(1))
    {
    }
    return true;
}

bool takeOffset(Word& word)
{
    return word.takeAny("Zz") ||
           (word.takeAny("+-") && word.takeDigits(2) && word.take(':') && word.takeDigits(2));
}

std::optional<PieceKind> kindOfDateTime(std::string_view text)
{
    Word time(text);
    if (takeTime(time))
    {
        return time.isDone() ? std::optional(PieceKind::localTime) : std::nullopt;
    }
    Word word(text);
    if (!takeDate(word))
    {
        return std::nullopt;
    }
    if (word.isDone())
    {
        return PieceKind::localDate;
    }
    if (!word.takeAny("Tt ") || !takeTime(word))
    {
        return std::nullopt;
    }
    if (word.isDone())
    {
        return PieceKind::localDateTime;
    }
    const bool isWithOffset = takeOffset(word) && word.isDone();
    return isWithOffset ? std::optional(PieceKind::offsetDateTime) : std::nullopt;
}

bool isWordCharacter(char c)
{
    return isBareKeyCharacter(c) || c == '+' || c == '.' || c == ':';
}

std::size_t runEnd(std::string_view text, std::size_t at)
{
    while (at < text.size() && isWordCharacter(text[at]))
    {
        ++at;
    }
    return at;
}

} // namespace

std::size_t wordEnd(std::string_view text, std::size_t at)
{
    const std::size_t end = runEnd(text, at);
    const bool hasTime = end + 1 < text.size() && text[end] == ' ' && isDigit(text[end + 1]) &&
                         kindOfWord(text.substr(at, end - at)) == PieceKind::localDate;
    return hasTime ? runEnd(text, end + 1) : end;
}

std::optional<PieceKind> kindOfWord(std::string_view word)
{
    if (word == "true" || word == "false")
    {
        return PieceKind::boolean;
    }
    Word special(word);
    special.takeAny("+-");
    if ((special.takeText("inf") || special.takeText("nan")) && special.isDone())
    {
        return PieceKind::floatingPoint;
    }
    const std::optional<PieceKind> number = kindOfNumber(word);
    return number ? number : kindOfDateTime(word);
}

} // namespace tool::fixing
