#pragma once

#include <locale>
#include <stdexcept>

namespace test
{

// The global C++ locale while this object lives; the classic one afterwards.
class GlobalLocale
{
public:
    explicit GlobalLocale(const std::locale& locale) { std::locale::global(locale); }
    GlobalLocale(const GlobalLocale&) = delete;
    GlobalLocale& operator=(const GlobalLocale&) = delete;
    ~GlobalLocale() { std::locale::global(std::locale::classic()); }
};

// Decimal commas, and points between groups of three digits.
inline std::locale germanLocale()
{
    try
    {
        return std::locale("de_DE.UTF-8");
    }
    catch (const std::runtime_error&)
    {
        throw std::runtime_error("there is no locale de_DE.UTF-8: the build makes one, and CTest "
                                 "sets LOCPATH to the directory that holds it");
    }
}

} // namespace test
