#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace test
{

// Texts by chance, the same in every run and on every platform.
class TextGenerator
{
public:
    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(engine_() % bound); }
    bool chance() { return below(2) == 0; }
    std::uint64_t bits() { return engine_(); }

    // Between `least` and `most` characters of an alphabet.
    std::string characters(std::string_view alphabet, std::size_t least, std::size_t most)
    {
        std::string text;
        for (std::size_t count = least + below(most - least + 1); count > 0; --count)
        {
            text += alphabet[below(alphabet.size())];
        }
        return text;
    }

    // The same with an underscore here and there between two of them.
    std::string digits(std::string_view alphabet, std::size_t most)
    {
        std::string text = characters(alphabet, 1, most);
        for (std::size_t at = text.size() - 1; at > 0; --at)
        {
            if (below(8) == 0)
            {
                text.insert(at, 1, '_');
            }
        }
        return text;
    }

    const std::string& oneOf(const std::vector<std::string>& texts)
    {
        return texts[below(texts.size())];
    }

    // At most `most` pieces in a row; now and then one is a byte of any value.
    std::string mixture(const std::vector<std::string>& pieces, std::size_t most)
    {
        std::string text;
        for (std::size_t count = below(most + 1); count > 0; --count)
        {
            text += below(16) == 0 ? std::string(1, static_cast<char>(below(256))) : oneOf(pieces);
        }
        return text;
    }

private:
    std::mt19937_64 engine_{20'190'527};
};

} // namespace test
