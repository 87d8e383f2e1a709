#include "familytree/Kalender.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <numeric>

namespace kw {

namespace {

// Days are counted as astronomers do.
using Tageszahl = std::int64_t;

constexpr Tageszahl ErsterDerRepublik = 2375840;
constexpr int JahrVorDerRepublik = 1792;
constexpr Tageszahl VorDerWelt = 347997;

// Before the year 0 too: downwards, and what is left isn't negative.
constexpr Tageszahl Abgerundet(Tageszahl a, Tageszahl b) { return a / b - (a % b < 0 ? 1 : 0); }
constexpr Tageszahl Rest(Tageszahl a, Tageszahl b) { return a - b * Abgerundet(a, b); }

Kalendertag AusTageszahl(Tageszahl zahl) {
    // The year begins in March here, so that the leap day is its last one.
    const Tageszahl a = zahl + 32044;
    const Tageszahl jahrhundert = Abgerundet(4 * a + 3, 146097);
    const Tageszahl c = a - Abgerundet(146097 * jahrhundert, 4);
    const Tageszahl jahr = Abgerundet(4 * c + 3, 1461);
    const Tageszahl e = c - Abgerundet(1461 * jahr, 4);
    const Tageszahl monat = Abgerundet(5 * e + 2, 153);
    return {static_cast<int>(100 * jahrhundert + jahr - 4800 + monat / 10),
            static_cast<int>(monat + 3 - 12 * (monat / 10)), static_cast<int>(e - Abgerundet(153 * monat + 2, 5) + 1)};
}

Tageszahl JulianischeTageszahl(int jahr, int monat, int tag) {
    const int a = (14 - monat) / 12;
    const Tageszahl y = Tageszahl{jahr} + 4800 - a;
    const int m = monat + 12 * a - 3;
    return tag + (153 * m + 2) / 5 + 365 * y + Abgerundet(y, 4) - 32083;
}

/// Days before the new moon that begins a year of the world, moved off the days that it mustn't fall on.
Tageszahl Neujahr(Tageszahl jahr) {
    const Tageszahl monate = Abgerundet(235 * jahr - 234, 19);
    const Tageszahl teile = 12084 + 13753 * monate;
    const Tageszahl tag = 29 * monate + Abgerundet(teile, 25920);
    return tag + (Rest(3 * (tag + 1), 7) < 3 ? 1 : 0);
}

/// What a year begins later so that it and its neighbours have a length that years have.
Tageszahl Aufschub(Tageszahl jahr) {
    const Tageszahl vor = Neujahr(jahr - 1), dies = Neujahr(jahr), nach = Neujahr(jahr + 1);
    if (nach - dies == 356) return 2;
    return dies - vor == 382 ? 1 : 0;
}

Tageszahl HebräischeTageszahl(int jahr, int monat, int tag) {
    const Tageszahl anfang = Neujahr(jahr) + Aufschub(jahr);
    const Tageszahl länge = Neujahr(jahr + 1) + Aufschub(jahr + 1) - anfang;
    const bool schaltjahr = Rest(7 * Tageszahl{jahr} + 1, 19) < 7;
    const std::array<int, 13> längen{30,
                                     Rest(länge, 10) == 5 ? 30 : 29,
                                     Rest(länge, 10) == 3 ? 29 : 30,
                                     29,
                                     30,
                                     schaltjahr ? 30 : 29,
                                     schaltjahr ? 29 : 0,
                                     30,
                                     29,
                                     30,
                                     29,
                                     30,
                                     29};
    return VorDerWelt + anfang + std::accumulate(längen.begin(), längen.begin() + monat - 1, 0) + tag;
}

} // namespace

bool GibtEs(const Kalendertag &tag) {
    using namespace std::chrono;
    return year_month_day{year{tag.Jahr}, month{static_cast<unsigned>(tag.Monat)}, day{static_cast<unsigned>(tag.Tag)}}
        .ok();
}

Kalendertag AusJulianisch(int jahr, int monat, int tag) {
    return tag > 0 ? AusTageszahl(JulianischeTageszahl(jahr, monat, tag)) : Kalendertag{jahr, monat, 0};
}

Kalendertag AusFranzösisch(int jahr, int monat, int tag) {
    if (monat == 0) return {jahr + JahrVorDerRepublik, 0, 0};
    int schaltjahre = 0;
    for (const int schaltjahr : {3, 7, 11}) schaltjahre += schaltjahr < jahr ? 1 : 0;
    const Tageszahl erster =
        ErsterDerRepublik + Tageszahl{365} * (jahr - 1) + schaltjahre + Tageszahl{30} * (monat - 1);
    const auto g = AusTageszahl(erster + (tag > 0 ? tag : 1) - 1);
    return tag > 0 ? g : Kalendertag{g.Jahr, g.Monat, 0};
}

Kalendertag AusHebräisch(int jahr, int monat, int tag) {
    const auto g = AusTageszahl(HebräischeTageszahl(jahr, monat > 0 ? monat : 1, tag > 0 ? tag : 1));
    return tag > 0 ? g : Kalendertag{g.Jahr, 0, 0};
}

} // namespace kw
