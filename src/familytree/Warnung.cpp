#include "familytree/Warnung.h"

#include "document/Texte.h"

namespace kw {

namespace {

/// In the order of the kinds; "%1" is the record, "%2" the child.
constexpr std::array<Zweisprachig, Warnungsarten> Sätze{{
    {"Zeile ohne Ebene oder Marke, an die vorige angefügt", "line without level or tag, added to the one before it"},
    {"Die Datei beginnt nicht mit Ebene 0", "the file doesn't begin at level 0"},
    {"Ebene übersprungen", "a level is skipped"},
    {"Kennung %1 kommt zweimal vor, es gilt der spätere Datensatz", "%1 occurs twice, the later record counts"},
    {"Familie %1 nennt das Kind %2 zweimal, es wird einmal übernommen",
     "family %1 names the child %2 twice, taken once"},
    {"Das Kind %1 steht nicht in der Datei", "the child %1 isn't in the file"},
}};

} // namespace

void Warnungen::Hinzu(const Warnung &warnung) {
    if (++anzahl_[static_cast<std::size_t>(warnung.Art)] <= Höchstens) liste_.push_back(warnung);
}

std::string Warnungstext(const Warnung &warnung, Sprache sprache) {
    const std::string satz(Sätze[static_cast<std::size_t>(warnung.Art)].In(sprache));
    return Ersetzt(Ersetzt(satz, "%2", warnung.Kind), "%1", warnung.Kennung);
}

} // namespace kw
