#include "description/Elementzeilen.h"

#include "description/Elementworte.h"
#include "description/Worte.h"
#include "document/Dokument.h"
#include "rendering/Ansicht.h"

namespace kw {

std::string Elementzeile::Zusatz(Sprache sprache) const {
    static constexpr Zweisprachig Markiert{"markiert", "selected"};
    return Verbunden({Gewählt ? std::string(Markiert.In(sprache)) : std::string(), Beschreibung}, "; ");
}

std::vector<Elementzeile> Elementzeilen(const Seiteninhalt &s) {
    const Elementworte worte(s.dokument, s.legende, s.ansicht.Glättungsgrad, s.ansicht.Sprache, s.uhr);
    std::vector<Elementzeile> zeilen;
    for (const Element element : AlleElemente(s.dokument))
        zeilen.push_back({element, Elementschlüssel(s.dokument, element), worte.Name(element), worte.Ruf(element),
                          Verbunden(worte.Einzelheiten(element), "; "), Elementrahmen(s.dokument, s.legende, element),
                          IstGewählt(s.dokument, s.auswahl, s.lage, element)});
    return zeilen;
}

} // namespace kw
