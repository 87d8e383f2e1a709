#include "description/Seitentext.h"

#include "description/Elementworte.h"
#include "description/Worte.h"
#include "description/Zeilenvergleich.h"
#include "document/Dokument.h"
#include "document/Texte.h"
#include "document/saetze/Person.h"
#include "rendering/Ansicht.h"

#include <algorithm>

namespace kw {

namespace {

constexpr Zweisprachig Inhalt{"Das Genogramm zeigt %.", "The genogram shows %."};
constexpr Zweisprachig OhneInhalt{"Das Genogramm ist leer.", "The genogram is empty."};
constexpr Zweisprachig EineIndexperson{"Indexperson ist %.", "The index person is %."};
constexpr Zweisprachig Indexpersonen{"Indexpersonen sind %.", "The index persons are %."};

std::string Indexsatz(const Dokument &dokument, const Personenworte &personen) {
    std::vector<std::string> namen;
    for (int i = 0; i < dokument.cboPersonen.Anzahl(); ++i)
        if (PersonSatz(dokument.cboPersonen.Satz(i), Lücken::Leer).IndexPerson() == "1")
            namen.push_back(personen.Ruf(i));
    if (namen.empty()) return {};
    return Eingesetzt(namen.size() == 1 ? EineIndexperson : Indexpersonen, personen.sprache,
                      {Aufgezählt(namen, personen.sprache)});
}

std::string Absatz(const std::string &name, const std::vector<std::string> &einzelheiten) {
    std::vector<std::string> sätze{AlsSatz(name)};
    for (const std::string &einzelheit : einzelheiten) sätze.push_back(AlsSatz(einzelheit));
    return FürTerminal(Verbunden(sätze, " ")) + '\n';
}

/// As one reads a page.
std::vector<Elementzeile> Lesefolge(std::vector<Elementzeile> zeilen) {
    const auto vor = [](const Elementzeile &a, const Elementzeile &b) {
        if (a.Element.Art != b.Element.Art) return a.Element.Art < b.Element.Art;
        const double höheA = a.Rahmen.Oben + a.Rahmen.Unten; // twice the centre's
        const double höheB = b.Rahmen.Oben + b.Rahmen.Unten;
        return Kleiner(höheA, höheB) || (!Kleiner(höheB, höheA) && Kleiner(a.Rahmen.Links, b.Rahmen.Links));
    };
    std::stable_sort(zeilen.begin(), zeilen.end(), vor);
    return zeilen;
}

/// Lines are told with the persons that they join.
bool StehtAllein(Elementart art) {
    return art == Elementart::Text || art == Elementart::Pfeil || art == Elementart::Kreis;
}

} // namespace

std::string Seitentext(const Seiteninhalt &s) {
    const Sprache sprache = s.ansicht.Sprache;
    const Elementworte worte(s.dokument, s.legende, s.ansicht.Glättungsgrad, sprache, s.uhr);
    const auto zeilen = Lesefolge(Elementzeilen(s));
    if (zeilen.empty()) return std::string(OhneInhalt.In(sprache)) + '\n';
    std::string text = Verbunden({Eingesetzt(Inhalt, sprache, {Überblick(zeilen, sprache)}),
                                  FürTerminal(Indexsatz(s.dokument, worte.personen))},
                                 " ") +
                       "\n\n";
    std::string übriges;
    for (const Elementzeile &zeile : zeilen) {
        if (zeile.Element.Art == Elementart::Person)
            text += Absatz(zeile.Name, worte.personen.Ausführlich(zeile.Element.Position));
        else if (StehtAllein(zeile.Element.Art)) übriges += Absatz(zeile.Name, worte.Einzelheiten(zeile.Element));
    }
    return übriges.empty() ? text : text + '\n' + übriges;
}

} // namespace kw
