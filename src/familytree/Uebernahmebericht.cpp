#include "familytree/Uebernahmebericht.h"

#include "familytree/Leerraum.h"
#include "familytree/Utf8.h"

#include <algorithm>

namespace kw {

namespace {

using enum Befundklasse;

struct Befundwort {
    Befundklasse Klasse;
    Zweisprachig Text;
};

/// In the order of the kinds.
constexpr std::array<Befundwort, Befundarten> Worte{{
    {Angenommen, {"Geschlecht nach der Rolle in der Familie", "sex taken from the role in the family"}},
    {Angenommen, {"Geschlecht unbekannt, nach der Vorgabe", "sex unknown, as chosen"}},
    {Geändert, {"vom Geburtsdatum bleibt das Jahr", "only the year of birth is kept"}},
    {Geändert, {"Geburtsdatum in unseren Kalender umgerechnet", "date of birth counted over into our calendar"}},
    {Weggelassen, {"Geburtsdatum", "date of birth"}},
    {Angenommen,
     {"Sterbealter aus den Jahreszahlen, eins zu viel ist möglich", "age at death from years, perhaps one too many"}},
    {Weggelassen, {"Sterbealter", "age at death"}},
    {Geändert, {"Sterbealter nach den Daten, nicht wie angegeben", "age at death by the dates, not as stated"}},
    {Weggelassen, {"Sterbedatum", "date of death"}},
    {Geändert, {"Zeichen im Namen ersetzt", "characters of the name replaced"}},
    {Geändert, {"Name gekürzt", "name shortened"}},
    {Weggelassen, {"weiterer Name", "another name"}},
    {Weggelassen, {"Totgeburt, denn die Person hat eine Familie", "stillbirth, since the person has a family"}},
    {Angenommen,
     {"vor über 110 Jahren geboren, kein Tod bekannt, nach der Vorgabe",
      "born over 110 years ago, no death told, as chosen"}},
    {Weggelassen, {"weitere Eltern", "other parents"}},
    {Angenommen, {"Eltern unter mehreren ausgewählt", "parents chosen among several"}},
    {Geändert, {"wird leibliches Kind", "becomes a natural child"}},
    {Angenommen, {"nur eine Seite nennt die Verbindung", "only one side tells of the bond"}},
    {Weggelassen,
     {"Eltern, denn die Person wäre ihr eigener Vorfahr", "parents, since the person would be their own ancestor"}},
    {Weggelassen, {"Verweis auf etwas, das nicht in der Datei steht", "pointer to what isn't in the file"}},
    {Angenommen, {"unbekannter Elternteil als \"?\"", "unknown parent as \"?\""}},
    {Angenommen,
     {"Elternteil dazugenommen, damit das Kind eine Linie hat", "parent taken too, so that the child has a line"}},
    {Weggelassen, {"weiterer Partner derselben Familie", "another partner of the same family"}},
    {Geändert, {"zwei Familien eines Paares sind eine Linie", "two families of a couple are one line"}},
    {Weggelassen, {"Familie ohne zweiten Partner und Kinder", "family without a second partner and children"}},
    {Angenommen,
     {"von einer Heirat ist nichts bekannt, Status nach der Vorgabe",
      "nothing is known of a marriage, state as chosen"}},
    {Geändert,
     {"mehrere Angaben zum Paar, der letzte Stand gilt", "several facts of the couple, the last state counts"}},
    {Angenommen, {"Zwillinge, denn die Geburtsdaten sind gleich", "twins, since the dates of birth are equal"}},
    {Weggelassen, {"gleiches Geburtsdatum, vielleicht Zwillinge", "same date of birth, perhaps twins"}},
    {Weggelassen, {"Mehrling: nur zwei können Zwillinge sein", "multiple birth: only two can be twins"}},
    {Weggelassen, {"Beziehung zu einer anderen Person", "relation to another person"}},
    {Weggelassen, {"Notiz", "note"}},
    {Weggelassen, {"Quelle", "source"}},
    {Weggelassen, {"Ort", "place"}},
    {Weggelassen, {"Ereignis oder Eigenschaft", "event or attribute"}},
    {Weggelassen, {"Angabe zur Verwaltung", "record keeping"}},
    {Weggelassen, {"eigene Angabe eines Programms", "a program's own fact"}},
    {Weggelassen, {"sonstige Angabe", "other fact"}},
}};

constexpr std::array<Zweisprachig, 3> Klassenworte{
    {{"Weggelassen", "Left out"}, {"Angenommen", "Taken for granted"}, {"Geändert", "Changed"}}};
constexpr Zweisprachig Datei{"Datei", "File"};
constexpr Zweisprachig Zeilenwort{"Zeile ", "Line "};

constexpr std::size_t Textlänge = 80; ///< bytes of a text that a report shows

/// A file's text as one short line: some are longer than a report should be.
std::string Gekürzt(std::string_view text) {
    const auto anfang = UnzerteilterAnfang(text, Textlänge);
    return Geglättet(anfang) + (anfang.size() < text.size() ? "..." : "");
}

struct Berichtszeile {
    std::uint32_t Zeile;
    std::string Text;
};

} // namespace

void Übernahmebericht::Hinzu(Befundart art, std::uint32_t zeile, std::string_view wer, std::string_view text) {
    ++anzahl_[static_cast<std::size_t>(art)];
    liste_.push_back({art, zeile, Gekürzt(wer), Gekürzt(text)});
}

std::size_t Übernahmebericht::Anzahl(Befundklasse klasse) const {
    std::size_t anzahl = 0;
    for (std::size_t i = 0; i < Befundarten; ++i) anzahl += Worte[i].Klasse == klasse ? anzahl_[i] : 0;
    return anzahl;
}

Befundklasse Klasse(Befundart art) { return Worte[static_cast<std::size_t>(art)].Klasse; }

std::string_view Befundtext(Befundart art, Sprache sprache) {
    return Worte[static_cast<std::size_t>(art)].Text.In(sprache);
}

std::string Berichtstext(const Übernahmebericht &bericht, const Warnungen &warnungen, Sprache sprache) {
    std::string text;
    for (const auto klasse : {Angenommen, Geändert, Weggelassen}) {
        if (bericht.Anzahl(klasse) == 0) continue;
        text.append(Klassenworte[static_cast<std::size_t>(klasse)].In(sprache)).append(":\n");
        for (std::size_t i = 0; i < Befundarten; ++i) {
            const auto art = static_cast<Befundart>(i);
            if (Worte[i].Klasse != klasse || bericht.Anzahl(art) == 0) continue;
            text.append("  ").append(std::to_string(bericht.Anzahl(art))).append("  ");
            text.append(Befundtext(art, sprache)).append("\n");
        }
    }
    std::vector<Berichtszeile> zeilen;
    for (const auto &warnung : warnungen.Liste())
        zeilen.push_back({warnung.Zeile, std::string(Datei.In(sprache)) + ": " + Warnungstext(warnung, sprache)});
    for (const auto &befund : bericht.Liste()) {
        auto zeile = befund.Wer + ": " + std::string(Befundtext(befund.Art, sprache));
        if (!befund.Text.empty()) zeile += ": " + befund.Text;
        zeilen.push_back({befund.Zeile, std::move(zeile)});
    }
    std::stable_sort(zeilen.begin(), zeilen.end(), [](const auto &a, const auto &b) { return a.Zeile < b.Zeile; });
    if (!text.empty() && !zeilen.empty()) text += "\n";
    for (const auto &zeile : zeilen)
        text.append(Zeilenwort.In(sprache)).append(std::to_string(zeile.Zeile)).append(": ").append(zeile.Text) += '\n';
    return text;
}

} // namespace kw
