#include "familytree/Datumsschrift.h"

#include "document/Codepage.h"
#include "document/Texte.h"
#include "document/basAltersberechnung.h"
#include "familytree/Leerraum.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace kw {

namespace {

using namespace std::string_view_literals;

constexpr std::array Monate{"JAN"sv, "FEB"sv, "MAR"sv, "APR"sv, "MAY"sv, "JUN"sv,
                            "JUL"sv, "AUG"sv, "SEP"sv, "OCT"sv, "NOV"sv, "DEC"sv};

/// What people write before a date that isn't sure, in small letters, the longer of two with one beginning first.
struct Vorwort {
    std::string_view Wort, Marke;
};
constexpr Vorwort Vorworte[] = {
    {"um", "ABT"},    {"ca.", "ABT"},    {"ca", "ABT"},     {"circa", "ABT"},  {"etwa", "ABT"},
    {"about", "ABT"}, {"err.", "CAL"},   {"calc.", "CAL"},  {"gesch.", "EST"}, {"est.", "EST"},
    {"vor", "BEF"},   {"before", "BEF"}, {"nach", "AFT"},   {"after", "AFT"},  {"ab", "FROM"},
    {"seit", "FROM"}, {"from", "FROM"},  {"since", "FROM"}, {"bis", "TO"},     {"until", "TO"},
};
constexpr std::array VorChristus{" v. chr."sv, " bc"sv};

/// A number of so many digits and nothing else.
std::optional<int> Ziffern(std::string_view text, std::size_t von, std::size_t bis) {
    int zahl = 0;
    const auto *const ende = text.data() + text.size();
    if (text.size() < von || text.size() > bis ||
        !std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return {};
    return std::from_chars(text.data(), ende, zahl).ec == std::errc() ? std::optional(zahl) : std::nullopt;
}

std::string Monatsname(int monat) { return std::string(Monate.at(static_cast<std::size_t>(monat - 1))); }

std::string AlsTag(const Datum &tag) {
    return std::to_string(tag.Tag) + " " + Monatsname(tag.Monat) + " " + std::to_string(tag.Jahr);
}

/// "06.1984"
std::optional<std::string> MonatUndJahr(std::string_view text) {
    const auto trenner = text.find_first_of("./");
    if (trenner == std::string_view::npos) return {};
    const auto monat = Ziffern(text.substr(0, trenner), 1, 2), jahr = Ziffern(text.substr(trenner + 1), 4, 4);
    if (!monat || !jahr || *monat < 1 || *monat > 12 || *jahr == 0) return {};
    return Monatsname(*monat) + " " + std::to_string(*jahr);
}

/// A day, month or year without a word before it.
std::optional<std::string> Einzelnes(std::string_view text, Datumsfolge folge) {
    for (const auto ende : VorChristus)
        if (text.ends_with(ende))
            if (const auto jahr = Ziffern(text.substr(0, text.size() - ende.size()), 1, 4); jahr && *jahr > 0)
                return std::to_string(*jahr) + " BCE";
    if (const auto jahr = Ziffern(text, 3, 4); jahr && *jahr > 0) return std::to_string(*jahr);
    if (const auto tag = DatumLesen(text, folge)) return AlsTag(*tag);
    return MonatUndJahr(text);
}

std::optional<std::string> Spanne(std::string_view text, Datumsfolge folge) {
    for (const auto strich : {"-"sv, "–"sv}) {
        const auto mitte = text.find(strich);
        if (mitte == std::string_view::npos) continue;
        const auto von = Einzelnes(Getrimmt(text.substr(0, mitte)), folge);
        const auto bis = Einzelnes(Getrimmt(text.substr(mitte + strich.size())), folge);
        if (von && bis) return "BET " + *von + " AND " + *bis;
    }
    return {};
}

std::optional<std::string> Ungefähres(std::string_view text, Datumsfolge folge) {
    for (const auto &[wort, marke] : Vorworte) {
        if (!text.starts_with(wort) || text.substr(wort.size(), 1) != " ") continue;
        if (const auto datum = Einzelnes(text.substr(wort.size() + 1), folge)) return std::string(marke) + " " + *datum;
    }
    return {};
}

} // namespace

Datumsangabe GeburtAlsAngabe(std::string_view text, const Uhr &uhr) {
    if (Getrimmt(text).empty()) return {};
    Altersberechnung rechnung(uhr);
    rechnung.AlterAusDatum(text);
    const auto tag = DatumLesen(rechnung.strGebDatumText, uhr.Folge());
    if (rechnung.bDatumUngueltig || !tag) return {{}, std::string(text)};
    // A year alone goes into the rule as its first of January.
    const bool nurJahr = rechnung.strGebDatumText != text;
    return {nurJahr ? std::to_string(tag->Jahr) : AlsTag(*tag), {}};
}

Datumsangabe PaardatumAlsAngabe(std::string_view text, Datumsfolge folge) {
    const auto klein = Kleingeschrieben(Geglättet(text));
    if (klein.empty()) return {};
    auto datum = Einzelnes(klein, folge);
    if (!datum) datum = Ungefähres(klein, folge);
    if (!datum) datum = Spanne(klein, folge);
    return datum ? Datumsangabe{*datum, {}} : Datumsangabe{{}, std::string(text)};
}

} // namespace kw
