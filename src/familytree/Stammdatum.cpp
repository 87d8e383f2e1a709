#include "familytree/Stammdatum.h"

#include "familytree/Leerraum.h"
#include "familytree/Marken.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string>

namespace kw {

namespace {

using namespace std::string_view_literals;

enum class Kalenderart { Gregorianisch, Julianisch, Französisch, Hebräisch };

struct Kalendername {
    std::string_view Früher; ///< what begins the word between "@#D" and "@"
    std::string_view Heute;
    Kalenderart Art;
};
constexpr std::array<Kalendername, 4> Kalendernamen{{{"GREGORIAN", "GREGORIAN", Kalenderart::Gregorianisch},
                                                     {"JULIAN", "JULIAN", Kalenderart::Julianisch},
                                                     {"FRENCH", "FRENCH_R", Kalenderart::Französisch},
                                                     {"HEBREW", "HEBREW", Kalenderart::Hebräisch}}};

using Monatsnamen = std::array<std::string_view, 13>;
constexpr Monatsnamen Monate{"JAN", "FEB", "MAR", "APR", "MAY", "JUN", "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
constexpr Monatsnamen Französische{"VEND", "BRUM", "FRIM", "NIVO", "PLUV", "VENT", "GERM",
                                   "FLOR", "PRAI", "MESS", "THER", "FRUC", "COMP"};
constexpr Monatsnamen Hebräische{"TSH", "CSH", "KSL", "TVT", "SHV", "ADR", "ADS",
                                 "NSN", "IYR", "SVN", "TMZ", "AAV", "ELL"};

const Monatsnamen &Namen(Kalenderart art) {
    if (art == Kalenderart::Französisch) return Französische;
    return art == Kalenderart::Hebräisch ? Hebräische : Monate;
}

/// A date of one calendar.
struct Einzeldatum {
    Kalendertag Tag;
    bool AndererKalender = false;
    bool Doppeljahr = false;
};

bool SindZiffern(std::string_view text, std::size_t höchstens) {
    return !text.empty() && text.size() <= höchstens &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

int Zahl(std::string_view ziffern) {
    int wert = 0;
    std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), wert);
    return wert;
}

/// The calendar that a date names before itself; nothing for one that isn't known.
std::optional<Kalenderart> KalenderNehmen(std::string_view &text) {
    constexpr auto Früher = "@#D"sv;
    if (text.starts_with(Früher)) {
        const auto ende = text.find('@', Früher.size());
        if (ende == std::string_view::npos) return {};
        const auto name = Randlos(text.substr(Früher.size(), ende - Früher.size()));
        text = Randlos(text.substr(ende + 1));
        for (const auto &k : Kalendernamen)
            if (name == k.Früher || (k.Art == Kalenderart::Französisch && name == "FRENCH R")) return k.Art;
        return {};
    }
    for (const auto &k : Kalendernamen) {
        if (!text.starts_with(k.Heute) || text.substr(k.Heute.size(), 1) != " ") continue;
        text.remove_prefix(k.Heute.size() + 1);
        return k.Art;
    }
    return Kalenderart::Gregorianisch;
}

/// "BC" in its forms at the end of a date.
bool VorChristusNehmen(std::string_view &text) {
    for (const auto ende : {"BCE"sv, "B.C."sv, "BC."sv, "B.C"sv, "BC"sv}) {
        if (!text.ends_with(ende)) continue;
        text.remove_suffix(ende.size());
        if (text.ends_with(' ')) text.remove_suffix(1);
        return true;
    }
    return false;
}

std::optional<int> MonatLesen(std::string_view name, Kalenderart art) {
    if (name.ends_with('.')) name.remove_suffix(1);
    const auto &namen = Namen(art);
    const auto *const monat = std::find(namen.begin(), namen.end(), name);
    if (name.empty() || monat == namen.end()) return {};
    return static_cast<int>(monat - namen.begin()) + 1;
}

Kalendertag Gregorianisch(Kalenderart art, const Kalendertag &tag) {
    switch (art) {
    case Kalenderart::Gregorianisch: break;
    case Kalenderart::Julianisch: return AusJulianisch(tag.Jahr, tag.Monat, tag.Tag);
    case Kalenderart::Französisch: return AusFranzösisch(tag.Jahr, tag.Monat, tag.Tag);
    case Kalenderart::Hebräisch: return AusHebräisch(tag.Jahr, tag.Monat, tag.Tag);
    }
    return tag;
}

/// Takes the last word of `text`, which is parted by single blanks.
std::string_view LetztesWort(std::string_view &text) {
    const auto blank = text.rfind(' ');
    const auto wort = blank == std::string_view::npos ? text : text.substr(blank + 1);
    text = blank == std::string_view::npos ? std::string_view() : text.substr(0, blank);
    return wort;
}

std::optional<Einzeldatum> EinzelnLesen(std::string_view text) {
    text = Randlos(text);
    const auto art = KalenderNehmen(text);
    if (!art) return {};
    const bool vorChristus = VorChristusNehmen(text);
    auto jahr = LetztesWort(text);
    Einzeldatum datum;
    if (const auto strich = jahr.find('/'); strich != std::string_view::npos) {
        if (!SindZiffern(jahr.substr(strich + 1), 4)) return {};
        jahr = jahr.substr(0, strich);
        datum.Doppeljahr = *art == Kalenderart::Gregorianisch || *art == Kalenderart::Julianisch;
    }
    if (!SindZiffern(jahr, 4)) return {};
    // Where the year once began in March, the second of the two is the one that began in January.
    datum.Tag.Jahr = Zahl(jahr) + (datum.Doppeljahr ? 1 : 0);
    if (vorChristus) datum.Tag.Jahr = 1 - datum.Tag.Jahr;
    if (!text.empty()) {
        const auto monat = MonatLesen(LetztesWort(text), *art);
        if (!monat || (!text.empty() && !SindZiffern(text, 2))) return {};
        datum.Tag.Monat = *monat;
        datum.Tag.Tag = Zahl(text);
    }
    datum.Tag = Gregorianisch(*art, datum.Tag);
    datum.AndererKalender = *art != Kalenderart::Gregorianisch;
    return datum;
}

Stammdatum Aus(Datumsart art, const Einzeldatum &datum, const Kalendertag &zweites = {}) {
    return {art, datum.Tag, zweites, datum.AndererKalender, datum.Doppeljahr};
}

/// "INT date (phrase)"; the phrase may be missing.
std::optional<Stammdatum> Gedeutet(std::string_view text) {
    if (!text.starts_with("INT ")) return {};
    text.remove_prefix(4);
    if (text.ends_with(')')) text = text.substr(0, text.find('('));
    const auto datum = EinzelnLesen(text);
    return datum ? std::optional(Aus(Datumsart::Gedeutet, *datum)) : std::nullopt;
}

/// "BET date AND date", "FROM date TO date".
std::optional<Stammdatum> Doppelt(std::string_view text) {
    const bool zwischen = text.starts_with("BET ");
    if (!zwischen && !text.starts_with("FROM ")) return {};
    text.remove_prefix(text.find(' ') + 1);
    const auto und = text.rfind(" AND "), bis = text.rfind(" TO ");
    const bool hatBis = und == std::string_view::npos || (bis != std::string_view::npos && bis > und);
    const auto mitte = hatBis ? bis : und;
    if (mitte == std::string_view::npos) return {};
    const auto erstes = EinzelnLesen(text.substr(0, mitte));
    const auto zweites = EinzelnLesen(text.substr(mitte + (hatBis ? 4 : 5)));
    if (!erstes || !zweites) return {};
    return Aus(zwischen ? Datumsart::Zwischen : Datumsart::Zeitraum, *erstes, zweites->Tag);
}

struct Vorwort {
    std::string_view Text;
    Datumsart Art;
};
constexpr std::array<Vorwort, 7> Vorworte{{{"ABT", Datumsart::Um},
                                           {"CAL", Datumsart::Berechnet},
                                           {"EST", Datumsart::Geschätzt},
                                           {"BEF", Datumsart::Vor},
                                           {"AFT", Datumsart::Nach},
                                           {"FROM", Datumsart::Von},
                                           {"TO", Datumsart::Bis}}};

Datumsart VorwortNehmen(std::string_view &text) {
    for (const auto &[vorwort, art] : Vorworte) {
        if (!text.starts_with(vorwort)) continue;
        auto rest = text.substr(vorwort.size());
        if (rest.starts_with('.')) rest.remove_prefix(1);
        if (!rest.starts_with(' ')) continue;
        text = rest.substr(1);
        return art;
    }
    return Datumsart::Genau;
}

} // namespace

Stammdatum StammdatumLesen(std::string_view text) {
    const std::string groß = InGroßbuchstaben(Geglättet(text));
    if (const auto gedeutet = Gedeutet(groß)) return *gedeutet;
    if (const auto doppelt = Doppelt(groß)) return *doppelt;
    std::string_view rest = groß;
    const auto art = VorwortNehmen(rest);
    const auto datum = EinzelnLesen(rest);
    return datum ? Aus(art, *datum) : Stammdatum();
}

} // namespace kw
