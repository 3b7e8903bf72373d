#include "conversion_surroundings.h"

#include <cfenv>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <locale>
#include <memory>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace test
{
namespace
{

// Names, a decimal comma and groups of digits of its own; it need not be installed.
class Punctuation : public std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
    std::string do_truename() const override { return "ja"; }
    std::string do_falsename() const override { return "nein"; }
};

Surroundings withLocale(std::string name, const std::locale& locale)
{
    const bool isClassic = locale == std::locale::classic();
    return {std::move(name), isClassic,
            [locale]
            {
                std::fesetround(FE_TONEAREST);
                std::locale::global(locale);
            }};
}

Surroundings withRounding(std::string name, int rounding)
{
    return {std::move(name), false,
            [rounding]
            {
                std::locale::global(std::locale::classic());
                std::fesetround(rounding);
            }};
}

struct Zone
{
    const char* name; // of a file that has to be there, or what TZ is set to
    const char* variable;
};

const std::vector<Zone> zones = {
    {"", "UTC0"},
    {"Europe/Berlin", "Europe/Berlin"},
    {"America/St_Johns", "America/St_Johns"}, // half an hour off, with daylight saving time
    {"Asia/Kolkata", "Asia/Kolkata"},         // without, after 1945
    {"", "NZST-12NZDT,M9.5.0,M4.1.0/3"},      // in the south
    {"Europe/Moscow", "Europe/Moscow"},       // whose rules have changed again and again
};

void requireZone(const Zone& zone)
{
    const std::string path = std::string("/usr/share/zoneinfo/") + zone.name;
    std::FILE* const file = std::fopen(path.c_str(), "r");
    if (file == nullptr)
    {
        throw std::runtime_error("there is no time zone " + path +
                                 "; it is in the Debian package tzdata");
    }
    std::fclose(file);
}

struct CLocale
{
    std::string name;
    bool isClassic;
    std::function<void()> enter;
};

void enterClassic()
{
    uselocale(LC_GLOBAL_LOCALE);
    std::setlocale(LC_ALL, "C");
}

void freeLocale(locale_t own)
{
    if (own != nullptr)
    {
        freelocale(own);
    }
}

std::vector<CLocale> cLocales()
{
    std::vector<CLocale> locales(3, {"C", true, enterClassic});
    for (const char* const name : {"de_DE.UTF-8", "C.UTF-8"})
    {
        const std::shared_ptr<std::remove_pointer_t<locale_t>> own(
            newlocale(LC_ALL_MASK, name, nullptr), freeLocale);
        if (own == nullptr)
        {
            std::printf("There is no C locale %s: it is left out.\n", name);
            continue;
        }
        const std::string other = name;
        locales.push_back({other, false,
                           [other]
                           {
                               enterClassic();
                               std::setlocale(LC_ALL, other.c_str());
                           }});
        locales.push_back({other + " for characters", true,
                           [other]
                           {
                               enterClassic();
                               std::setlocale(LC_CTYPE, other.c_str());
                           }});
        locales.push_back({other + " of the thread", false,
                           [own]
                           {
                               enterClassic();
                               uselocale(own.get());
                           }});
    }
    return locales;
}

} // namespace

std::vector<Surroundings> numberSurroundings()
{
    const std::locale& classic = std::locale::classic();
    std::vector<Surroundings> all = {
        withLocale("classic", classic), withLocale("classic", classic),
        withLocale("own punctuation", std::locale(classic, new Punctuation))};
    try
    {
        all.push_back(withLocale("de_DE.UTF-8", std::locale("de_DE.UTF-8")));
    }
    catch (const std::runtime_error&)
    {
        std::printf("There is no locale de_DE.UTF-8: it is left out.\n");
    }
    return all;
}

std::vector<Surroundings> floatSurroundings()
{
    std::vector<Surroundings> all = numberSurroundings();
    all.push_back(withLocale("classic", std::locale::classic()));
    all.push_back(withRounding("rounding up", FE_UPWARD));
    all.push_back(withRounding("rounding to zero", FE_TOWARDZERO));
    return all;
}

std::vector<Surroundings> dateTimeSurroundings()
{
    std::vector<Surroundings> all;
    for (const CLocale& locale : cLocales())
    {
        for (const Zone& zone : zones)
        {
            requireZone(zone);
            const std::string variable = zone.variable;
            const auto enterLocale = locale.enter;
            all.push_back({variable + ", " + locale.name, locale.isClassic,
                           [variable, enterLocale]
                           {
                               enterLocale();
                               setenv("TZ", variable.c_str(), 1);
                               tzset();
                           }});
        }
    }
    return all;
}

} // namespace test
