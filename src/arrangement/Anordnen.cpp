#include "arrangement/Anordnen.h"

#include "arrangement/Ordner.h"
#include "arrangement/Seitenplatz.h"
#include "arrangement/Umzug.h"
#include "document/Zahlen.h"
#include "editing/Absagen.h"
#include "editing/Abwahl.h"
#include "editing/Werkbank.h"
#include "platform/Benutzer.h"

#include <algorithm>
#include <optional>
#include <string>

namespace kw {

namespace {

bool KleinereErlaubt(Werkbank &w) {
    static constexpr Zweisprachig Frage{
        "Alle passen nur mit kleineren Symbolen auf die Seite. Die Symbole auf 9 mm verkleinern?",
        "All of them fit on the page only with smaller symbols. Make the symbols 9 mm wide?"};
    return w.benutzer.Fragen({"Kinwright", std::string(Frage.In(w.ansicht.Sprache)), Knöpfe::JaNein, Zeichen::Frage}) ==
           Antwort::Ja;
}

void PlatzFehlt(Werkbank &w, const Ordner::Platzbedarf &bedarf) {
    static constexpr Zweisprachig Bedarf{"Angeordnet brauchen sie mit den kleinsten Symbolen ",
                                         "Arranged with the smallest symbols they need "};
    static constexpr Zweisprachig Vorrat{"; frei sind auf dieser Seite ", "; on this page there are "};
    static constexpr Zweisprachig Rat{
        ". Es hilft ein größeres Blatt, die andere Lage des Papiers, oder nur einen Teil auszuwählen.",
        " free. A larger sheet helps, the paper's other orientation, or to select only a part."};
    static constexpr Zweisprachig Verstellt{"; so viel ist neben dem, was stehen bleibt, nirgends am Stück frei",
                                            "; beside what stays no place of that size is"};
    const Sprache s = w.ansicht.Sprache;
    const Ordner::Platzbedarf frei{w.ansicht.SeitenBreite - 2 * Ordner::Seitenrand,
                                   w.ansicht.SeitenHöhe - 2 * Ordner::Seitenrand};
    const bool zuGroß = Kleiner(frei.Breite, bedarf.Breite) || Kleiner(frei.Höhe, bedarf.Höhe);
    const std::string grund =
        zuGroß ? std::string(Vorrat.In(s)) + Maßangabe(frei.Breite, frei.Höhe, s) : std::string(Verstellt.In(s));
    w.benutzer.Fragen(
        {"Kinwright",
         std::string(Bedarf.In(s)) + Maßangabe(bedarf.Breite, bedarf.Höhe, s) + grund + std::string(Rat.In(s)),
         Knöpfe::Ok, Zeichen::Information});
}

/// As it is drawn, but for what has to change; else anew with the symbols as they are, as drawn by hand or closer; else
/// with smaller ones, if the user agrees. Nothing when it can't be, which was told.
std::optional<Umzug> Suchen(Werkbank &w, Ordner &ordner) {
    const double größe = ordner.GrößtesSymbol();
    if (auto umzug = ordner.Behalten(größe)) return umzug;
    for (const Luft &luft : {VonHand, Lesbar})
        if (auto umzug = ordner.Versuchen(größe, luft)) return umzug;
    auto umzug = ordner.Versuchen(std::min(größe, KleinstesSymbol), Lesbar);
    if (!umzug) PlatzFehlt(w, ordner.Bedarf());
    return umzug && KleinereErlaubt(w) ? umzug : std::nullopt;
}

} // namespace

void mnuAnordnen(Werkbank &w) {
    Ordner ordner(w);
    if (!ordner.HatFamilien()) {
        w.lage.Hinweis = ordner.HältWenFest() ? &Absage::PaarNurHalbGewählt : &Absage::NiemandVerbunden;
        return;
    }
    const auto umzug = Suchen(w, ordner);
    if (!umzug) return;
    const Dokument vorher = w.dokument;
    if (!Umziehen(w, *umzug)) {
        w.lage.Hinweis = &Absage::KreisImWegDerOrdnung;
        return;
    }
    NichtsAuswählen(w);
    w.fenster.Vorschau();
    if (!w.dokument.GleicheSätze(vorher)) w.fenster.Sichern();
    else w.lage.Hinweis = &Absage::SchonGeordnet;
}

} // namespace kw
