// Places of an input: going over its text at once; going back where it lies in the middle of the
// address space, where addresses, read as signed numbers of 32 bits, turn negative.
#include <gtest/gtest.h>

#include <sys/mman.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <tuple>
#include <vector>

#include "grammar/lexer/input_position.h"
#include "support/text_generator.h"

// The parser has a token type of this name.
#undef NAN

#include "support/lexer.h"

namespace
{

constexpr std::uintptr_t middle = 0x80000000;
constexpr std::size_t half = 64 * 1024;

// Memory on both sides of the middle, or nothing.
class MiddleMemory
{
public:
    MiddleMemory()
    {
        void* const wanted = reinterpret_cast<void*>(middle - half);
        memory_ =
            mmap(wanted, 2 * half, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        isThere_ = memory_ == wanted;
    }
    MiddleMemory(const MiddleMemory&) = delete;
    MiddleMemory& operator=(const MiddleMemory&) = delete;
    ~MiddleMemory() { munmap(memory_, 2 * half); }

    bool isThere() const { return isThere_; }

    // Holds one text at a time, so many bytes of which come before the middle.
    pANTLR3_UINT8 hold(const std::string& text, std::size_t before)
    {
        char* const begin = static_cast<char*>(memory_) + half - before;
        std::memcpy(begin, text.data(), text.size());
        return reinterpret_cast<pANTLR3_UINT8>(begin);
    }

private:
    void* memory_;
    bool isThere_ = false;
};

unsigned steps = 0;
void (*consumeOne)(pANTLR3_INT_STREAM) = nullptr;

struct Reading
{
    std::vector<ANTLR3_UINT32> types;
    std::size_t length = 0; // from the text's begin to the last token
};

bool operator==(const Reading& one, const Reading& other)
{
    return one.types == other.types && one.length == other.length;
}

// The tokens from where the input is.
Reading tokensOf(pANTLR3_LEXER lexer, pANTLR3_UINT8 text)
{
    Reading reading;
    const pANTLR3_TOKEN_SOURCE source = lexer->rec->state->tokSource;
    for (auto* token = source->nextToken(source); token->type != ANTLR3_TOKEN_EOF;
         token = source->nextToken(source))
    {
        reading.types.push_back(token->type);
        reading.length =
            static_cast<std::size_t>(token->start) - reinterpret_cast<std::size_t>(text);
    }
    return reading;
}

// A text's tokens, after going back from its end.  The process ends where that takes too long.
Reading read(pANTLR3_UINT8 text, std::size_t size)
{
    const test::InputStream input(
        antlr3StringStreamNew(text, ANTLR3_ENC_UTF8, static_cast<ANTLR3_UINT32>(size), text));
    steps = 0;
    consumeOne = input->istream->consume;
    input->istream->consume = [](pANTLR3_INT_STREAM stream)
    {
        if (++steps > 10000)
        {
            std::abort();
        }
        consumeOne(stream);
    };
    const std::unique_ptr<TomlLexer, test::FreeRecogniser> lexer(TomlLexerNew(input.get()));
    lexer->pLexer->rec->displayRecognitionError = [](pANTLR3_BASE_RECOGNIZER, pANTLR3_UINT8*) {};
    const vorn::parsers::toml::InputPosition start(input.get());
    const Reading first = tokensOf(lexer->pLexer, text);
    start.goBack();
    const Reading second = tokensOf(lexer->pLexer, text);
    EXPECT_EQ(first, second);
    return second;
}

// All that an input knows of its place.
using Place = std::tuple<const void*, ANTLR3_UINT32, ANTLR3_INT32, const void*>;

Place placeOf(const ANTLR3_INPUT_STREAM& input)
{
    return {input.nextChar, input.line, input.charPositionInLine, input.currentLine};
}

} // namespace

TEST(InputPosition, isFoundAgainInTheMiddleOfTheAddressSpace)
{
    MiddleMemory memory;
    if (!memory.isThere())
    {
        GTEST_SKIP() << "the middle of the address space is taken";
    }
    std::string text = "a = [1970-01-01T00:00:0x, 'y\n, 12_]\n@ b.c = 0x\n\"z\\q\" = infinity\n";
    const Reading elsewhere = read(reinterpret_cast<pANTLR3_UINT8>(text.data()), text.size());
    EXPECT_GT(elsewhere.types.size(), 10u);
    for (std::size_t before = 0; before <= text.size(); ++before)
    {
        EXPECT_EQ(read(memory.hold(text, before), text.size()), elsewhere) << before;
    }
}

// Whole tokens and whole lines are passed over at once: afterwards the input must be as if the
// runtime had consumed their characters.
TEST(InputPosition, advancesAsIfEachCharacterWasConsumed)
{
    const std::vector<std::string> characters = {"a",
                                                 "b",
                                                 " ",
                                                 "\n",
                                                 "\r\n",
                                                 "\t",
                                                 std::string(1, '\0'),
                                                 "\xc3\xa9",
                                                 "\xe2\x82\xac",
                                                 "\xef\xbb\xbf",
                                                 "\xf0\x9f\x98\x80"};
    test::TextGenerator texts;
    for (int count = 0; count < 3000; ++count)
    {
        std::string text = "^"; // no byte order mark comes first
        std::vector<std::size_t> ends;
        for (std::size_t left = texts.below(40); left > 0; --left)
        {
            text += texts.oneOf(characters);
            if (texts.below(4) == 0)
            {
                ends.push_back(text.size());
            }
        }
        ends.push_back(text.size());
        SCOPED_TRACE(testing::PrintToString(text));
        const test::InputStream consumed = test::openInput(text);
        const test::InputStream advanced = test::openInput(text);
        for (const std::size_t end : ends)
        {
            while (consumed->nextChar != text.data() + end)
            {
                consumed->istream->consume(consumed->istream);
            }
            vorn::parsers::toml::advance(*advanced, text.data() + end);
            ASSERT_EQ(placeOf(*advanced), placeOf(*consumed)) << "at " << end;
        }
    }
}

TEST(InputPosition, staysWhereNothingIsPassed)
{
    const std::string text = "a\nbc";
    const test::InputStream input = test::openInput(text);
    for (const std::size_t end : {0u, 1u, 2u, 4u, 5u})
    {
        vorn::parsers::toml::advance(*input, text.data() + end);
        const Place before = placeOf(*input);
        vorn::parsers::toml::advance(*input, text.data() + end);
        EXPECT_EQ(placeOf(*input), before);
    }
}
