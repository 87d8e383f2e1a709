#include "description/Zeilenvergleich.h"

#include "description/Worte.h"
#include "document/Zahlen.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace kw {

namespace {

using Zeilen = std::vector<Elementzeile>;

/// Whether a kind's key stays when others go.
bool HatNummer(Elementart art) { return art <= Elementart::Kind || art == Elementart::Legende; }

bool AmSelbenOrt(const Umgebung &a, const Umgebung &b) {
    return a.Leer == b.Leer && a.Links == b.Links && a.Oben == b.Oben && a.Rechts == b.Rechts && a.Unten == b.Unten;
}

bool SagtDasselbe(const Elementzeile &a, const Elementzeile &b) {
    return a.Name == b.Name && a.Beschreibung == b.Beschreibung && AmSelbenOrt(a.Rahmen, b.Rahmen);
}

/// The rows of a kind stand together: from the first on, up to the one behind the last.
std::pair<int, int> Bereich(const Zeilen &zeilen, Elementart art) {
    const auto vor = [](const Elementzeile &z, Elementart a) { return z.Element.Art < a; };
    const auto hinter = [](Elementart a, const Elementzeile &z) { return a < z.Element.Art; };
    return {static_cast<int>(std::lower_bound(zeilen.begin(), zeilen.end(), art, vor) - zeilen.begin()),
            static_cast<int>(std::upper_bound(zeilen.begin(), zeilen.end(), art, hinter) - zeilen.begin())};
}

const Elementzeile &An(const Zeilen &zeilen, int stelle) { return zeilen[static_cast<size_t>(stelle)]; }

/// Damaged files have a number twice: the first goes with the first.
void NachNummer(const Zeilen &vorher, std::pair<int, int> alte, const Zeilen &nachher, std::pair<int, int> neue,
                std::vector<int> &herkunft) {
    std::multimap<std::string_view, int> stellen;
    for (int i = alte.first; i < alte.second; ++i) stellen.emplace(An(vorher, i).Schlüssel, i);
    for (int i = neue.first; i < neue.second; ++i) {
        const auto alt = stellen.find(An(nachher, i).Schlüssel);
        if (alt == stellen.end()) continue;
        herkunft[static_cast<size_t>(i)] = alt->second;
        stellen.erase(alt);
    }
}

void NachInhalt(const Zeilen &vorher, std::pair<int, int> alte, const Zeilen &nachher, std::pair<int, int> neue,
                std::vector<int> &herkunft) {
    auto [a, aEnde] = alte;
    auto [n, nEnde] = neue;
    const auto setzen = [&](int neu, int alt) { herkunft[static_cast<size_t>(neu)] = alt; };
    while (a < aEnde && n < nEnde && SagtDasselbe(An(vorher, a), An(nachher, n))) setzen(n++, a++);
    while (a < aEnde && n < nEnde && SagtDasselbe(An(vorher, aEnde - 1), An(nachher, nEnde - 1)))
        setzen(--nEnde, --aEnde);
    while (a < aEnde && n < nEnde) setzen(n++, a++);
}

struct Artwort {
    Elementart Art;
    Zählwort Zahl;
};
constexpr std::array<Artwort, 7> Artworte{{
    {Elementart::Person, {{"Person", "person"}, {"Personen", "persons"}}},
    {Elementart::Partnerschaft, {{"Partnerschaft", "partnership"}, {"Partnerschaften", "partnerships"}}},
    {Elementart::Kind, {{"Kindlinie", "child line"}, {"Kindlinien", "child lines"}}},
    {Elementart::Beziehung, {{"Beziehung", "relationship"}, {"Beziehungen", "relationships"}}},
    {Elementart::Text, {{"Text", "text"}, {"Texte", "texts"}}},
    {Elementart::Pfeil, {{"Pfeil", "arrow"}, {"Pfeile", "arrows"}}},
    {Elementart::Kreis, {{"Kreislinie", "circle line"}, {"Kreislinien", "circle lines"}}},
}};
constexpr Zweisprachig Leer{"leere Seite", "empty page"};
constexpr Zweisprachig Genogramm{"Genogramm: %", "Genogram: %"};
constexpr Zweisprachig Verknüpft{"verknüpft: %", "linked: %"};
constexpr Zweisprachig Eingefügt{"eingefügt: %", "inserted: %"};
constexpr Zweisprachig Gelöscht{"gelöscht: %", "deleted: %"};
constexpr Zweisprachig LegendeEin{"Legende eingeblendet", "legend shown"};
constexpr Zweisprachig LegendeAus{"Legende ausgeblendet", "legend hidden"};
constexpr Zweisprachig Ort{"% und % cm", "% and % cm"};
constexpr Zweisprachig EinesVerschoben{"verschoben, Mitte bei %", "moved, centre at %"};
constexpr Zweisprachig MehrereVerschoben{"% Elemente verschoben", "% elements moved"};
constexpr Zweisprachig Markiert{"% Elemente markiert", "% elements selected"};
constexpr Zweisprachig NichtsMarkiert{"nichts markiert", "nothing selected"};

bool Verknüpft_(const Elementzeile &zeile) {
    const Elementart art = zeile.Element.Art;
    return art == Elementart::Partnerschaft || art == Elementart::Kind || art == Elementart::Beziehung;
}

/// Few are named, of many it is told how many.
std::string Genannt(const Zeilen &zeilen, Sprache sprache) {
    constexpr size_t Wenige = 3;
    if (zeilen.size() > Wenige) return Bestand(zeilen, sprache);
    std::vector<std::string> namen;
    for (const Elementzeile &zeile : zeilen) namen.push_back(zeile.Ruf);
    return Aufgezählt(namen, sprache);
}

Zeilen Nur(const Zeilen &zeilen, bool verknüpfungen) {
    Zeilen davon;
    std::copy_if(zeilen.begin(), zeilen.end(), std::back_inserter(davon),
                 [&](const Elementzeile &z) { return Verknüpft_(z) == verknüpfungen; });
    return davon;
}

/// The legend is neither made nor deleted, and nothing of it comes with anything else.
bool NurLegende(const Zeilen &zeilen) {
    return zeilen.size() == 1 && zeilen.front().Element.Art == Elementart::Legende;
}

/// Lines come and go with their persons: they are named only when they are all.
std::string Gelöschtes(const Zeilen &zeilen, Sprache sprache) {
    if (NurLegende(zeilen)) return std::string(LegendeAus.In(sprache));
    const Zeilen dinge = Nur(zeilen, false);
    return zeilen.empty() ? std::string()
                          : Eingesetzt(Gelöscht, sprache, {Genannt(dinge.empty() ? zeilen : dinge, sprache)});
}

std::string Eingefügtes(const Zeilen &zeilen, Sprache sprache) {
    if (NurLegende(zeilen)) return std::string(LegendeEin.In(sprache));
    const Zeilen dinge = Nur(zeilen, false);
    const Zeilen linien = Nur(zeilen, true);
    return Verbunden({dinge.empty() ? std::string() : Eingesetzt(Eingefügt, sprache, {Genannt(dinge, sprache)}),
                      linien.empty() ? std::string() : Eingesetzt(Verknüpft, sprache, {Genannt(linien, sprache)})},
                     "; ");
}

std::string Zentimeter(double wert, Sprache sprache) {
    std::string zahl = ZahlSchreiben(Gerundet(wert, 1));
    if (sprache == Sprache::Deutsch) std::replace(zahl.begin(), zahl.end(), '.', ',');
    return zahl;
}

/// Lines follow what they join; only when nothing else has moved they did so themselves.
std::string Verschobenes(const Zeilen &zeilen, Sprache sprache) {
    const Zeilen dinge = Nur(zeilen, false);
    const Zeilen &bewegt = dinge.empty() ? zeilen : dinge;
    if (bewegt.empty()) return {};
    if (bewegt.size() > 1) return Eingesetzt(MehrereVerschoben, sprache, {std::to_string(bewegt.size())});
    const Umgebung &u = bewegt.front().Rahmen;
    return Eingesetzt(EinesVerschoben, sprache, {Ortstext((u.Links + u.Rechts) / 2, (u.Oben + u.Unten) / 2, sprache)});
}

std::string Auswahltext(const Zeilen &vorher, const Zeilen &nachher, Sprache sprache) {
    const auto gewählte = [](const Zeilen &zeilen) {
        return std::count_if(zeilen.begin(), zeilen.end(), [](const Elementzeile &z) { return z.Gewählt; });
    };
    const auto vor = gewählte(vorher);
    const auto nach = gewählte(nachher);
    if (nach > 1 && nach != vor) return Eingesetzt(Markiert, sprache, {std::to_string(nach)});
    return vor > 1 && nach == 0 ? std::string(NichtsMarkiert.In(sprache)) : std::string();
}

/// More new elements at once than old ones, or none of many left, are another document.
bool IstAndereSeite(size_t neue, size_t nachher, size_t vorher) {
    constexpr size_t Viele = 5;
    return nachher == 0 ? vorher > Viele : neue > Viele && neue > nachher / 2;
}

} // namespace

Zeilenvergleich Verglichen(const Zeilen &vorher, const Zeilen &nachher) {
    Zeilenvergleich v;
    v.Herkunft.assign(nachher.size(), -1);
    for (int i = 0; i <= static_cast<int>(Elementart::Legende); ++i) {
        const auto art = static_cast<Elementart>(i);
        (HatNummer(art) ? NachNummer : NachInhalt)(vorher, Bereich(vorher, art), nachher, Bereich(nachher, art),
                                                   v.Herkunft);
    }
    std::vector<bool> bleibt(vorher.size());
    for (const int alt : v.Herkunft)
        if (alt >= 0) bleibt[static_cast<size_t>(alt)] = true;
    for (size_t i = 0; i < vorher.size(); ++i)
        if (!bleibt[i]) v.Gegangen.push_back(static_cast<int>(i));
    return v;
}

std::string Ergebnistext(const Zeilen &vorher, const Zeilen &nachher, Sprache sprache) {
    const Zeilenvergleich v = Verglichen(vorher, nachher);
    Zeilen neue;
    Zeilen bewegte;
    for (size_t i = 0; i < nachher.size(); ++i) {
        if (v.Herkunft[i] < 0) neue.push_back(nachher[i]);
        else if (!AmSelbenOrt(An(vorher, v.Herkunft[i]).Rahmen, nachher[i].Rahmen)) bewegte.push_back(nachher[i]);
    }
    Zeilen gegangene;
    for (const int alt : v.Gegangen) gegangene.push_back(An(vorher, alt));
    if (IstAndereSeite(neue.size(), nachher.size(), vorher.size()))
        return Eingesetzt(Genogramm, sprache, {Überblick(nachher, sprache)});
    if (!neue.empty() || !gegangene.empty())
        return Verbunden({Gelöschtes(gegangene, sprache), Eingefügtes(neue, sprache)}, "; ");
    if (!bewegte.empty()) return Verschobenes(bewegte, sprache);
    return Auswahltext(vorher, nachher, sprache);
}

std::string Überblick(Zeilen zeilen, Sprache sprache) {
    std::erase_if(zeilen, [](const Elementzeile &z) { return z.Element.Art == Elementart::Kind; });
    return Bestand(zeilen, sprache);
}

std::string Ortstext(double x, double y, Sprache sprache) {
    return Eingesetzt(Ort, sprache, {Zentimeter(x, sprache), Zentimeter(y, sprache)});
}

std::string Bestand(const Zeilen &zeilen, Sprache sprache) {
    std::vector<std::string> teile;
    for (const Artwort &wort : Artworte) {
        const auto [erste, ende] = Bereich(zeilen, wort.Art);
        if (ende > erste) teile.push_back(Gezählt(ende - erste, wort.Zahl, sprache));
    }
    return teile.empty() ? std::string(Leer.In(sprache)) : Aufgezählt(teile, sprache);
}

} // namespace kw
