#include "document/basAltersberechnung.h"

#include "document/Texte.h"
#include "document/Zahlen.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <vector>

namespace kw {

namespace {

constexpr int KleinstesJahr = 100;
constexpr Zweisprachig Altersangabe{"Alter ", "Age "}; ///< either is read, whatever the language

struct Teil {
    int Wert;
    size_t Ziffern;
};

/// The calendar keeps month and day in a byte each: they have at most two digits here.
bool IstTag(const Datum &d) {
    using namespace std::chrono;
    return year_month_day{year{d.Jahr}, month{static_cast<unsigned>(d.Monat)}, day{static_cast<unsigned>(d.Tag)}}.ok();
}

std::optional<std::array<Teil, 3>> Zerlegt(std::string_view text) {
    std::array<Teil, 3> teile{};
    for (size_t i = 0; i < teile.size(); ++i) {
        const auto ende = text.find_first_of(".-/");
        if ((ende == std::string_view::npos) != (i == 2)) return {};
        const auto teil = text.substr(0, ende);
        if (teil.empty() || teil.size() > 4) return {};
        if (!std::all_of(teil.begin(), teil.end(), [](char c) { return c >= '0' && c <= '9'; })) return {};
        std::from_chars(teil.data(), teil.data() + teil.size(), teile[i].Wert);
        teile[i].Ziffern = teil.size();
        if (i < 2) text.remove_prefix(ende + 1);
    }
    return teile;
}

int VollesJahr(Teil jahr) {
    if (jahr.Ziffern > 2) return jahr.Wert;
    return jahr.Wert < 30 ? 2000 + jahr.Wert : 1900 + jahr.Wert;
}

std::optional<Datum> Gültig(Teil jahr, Teil monat, Teil tag) {
    if (monat.Ziffern > 2 || tag.Ziffern > 2) return {};
    const Datum datum{VollesJahr(jahr), monat.Wert, tag.Wert};
    if (datum.Jahr < KleinstesJahr || !IstTag(datum)) return {};
    return datum;
}

/// Where year, month and day stand among the three numbers.
struct Anordnung {
    size_t Jahr, Monat, Tag;
};

/// All orders that may count, the likeliest first.
std::vector<Anordnung> Anordnungen(bool jahrVorn, Datumsfolge folge) {
    if (jahrVorn) return {{0, 1, 2}, {0, 2, 1}};
    switch (folge) {
    case Datumsfolge::MonatTagJahr: return {{2, 0, 1}, {2, 1, 0}};
    case Datumsfolge::TagMonatJahr: return {{2, 1, 0}, {2, 0, 1}};
    // A year at the end is foreign to this locale; day first is how the person dialog checks such a date.
    case Datumsfolge::JahrMonatTag: return {{0, 1, 2}, {0, 2, 1}, {2, 1, 0}, {2, 0, 1}};
    }
    return {};
}

std::string Vierstellig(int jahr) {
    const auto ziffern = std::to_string(jahr);
    return std::string(4 - std::min<size_t>(ziffern.size(), 4), '0') + ziffern;
}

} // namespace

std::string AltersangabeFür(std::string_view jahre, Sprache sprache) {
    return std::string(Altersangabe.In(sprache)).append(jahre);
}

std::optional<std::string_view> AlterAusAngabe(std::string_view text) {
    constexpr std::size_t MeisteZiffern = 3;
    for (const std::string_view wort : {Altersangabe.Deutsch, Altersangabe.Englisch}) {
        if (!text.starts_with(wort)) continue;
        const auto jahre = text.substr(wort.size());
        const bool zahl = std::all_of(jahre.begin(), jahre.end(), [](char c) { return c >= '0' && c <= '9'; });
        if (zahl && !jahre.empty() && jahre.size() <= MeisteZiffern) return jahre;
    }
    return {};
}

std::optional<Datum> DatumLesen(std::string_view text, Datumsfolge folge) {
    const auto teile = Zerlegt(Getrimmt(text));
    if (!teile) return {};
    const auto &t = *teile;
    for (const auto &a : Anordnungen(t[0].Ziffern > 2, folge)) {
        if (const auto datum = Gültig(t[a.Jahr], t[a.Monat], t[a.Tag])) return datum;
    }
    return {};
}

void Altersberechnung::AlterAusDatum(std::string_view text) {
    if (Getrimmt(text).empty()) return;
    bDatumUngueltig = false;
    if (Zeichenzahl(text) < 4) {
        bDatumUngueltig = true;
        return;
    }
    if (const auto jahre = AlterAusAngabe(text)) {
        strGebDatumText = text;
        strGebJahrText.clear();
        strAlterText = *jahre;
        return;
    }
    const double wert = ZahlLesen(text);
    // Refused, and computed all the same: "2500" shows its negative age beside the warning.
    if (wert > 2100) bDatumUngueltig = true;
    // A bare year counts from its first of January, in a form that every order of dates reads alike. The
    // test is one of value, so "1.5." is taken for a year too and then is no date.
    const bool nurJahr = Zeichenzahl(text) == 4 && wert >= 0 && wert < 3000;
    strGebDatumText = (nurJahr ? "01-01-" : "") + std::string(text);
    AlterBerechnen();
}

void Altersberechnung::AlterBerechnen() {
    strGebJahrText.clear();
    const auto datum = DatumLesen(strGebDatumText, uhr_.Folge());
    if (!datum) {
        bDatumUngueltig = true;
        return;
    }
    strAlterText = std::to_string(AlterInJahren(*datum));
    strGebJahrText = Vierstellig(datum->Jahr);
}

int Altersberechnung::AlterInJahren(Datum geboren) const {
    const auto heute = uhr_.Heute();
    const bool nochNicht = geboren.Monat > heute.Monat || (geboren.Monat == heute.Monat && geboren.Tag > heute.Tag);
    return heute.Jahr - geboren.Jahr - (nochNicht ? 1 : 0);
}

} // namespace kw
