#include "document/Texte.h"
#include "document/saetze/Person.h"
#include "editing/Absagen.h"
#include "editing/Marker.h"
#include "editing/Personen.h"
#include "editing/Werkbank.h"

#include <algorithm>
#include <optional>

namespace kw {

namespace {

struct Familie {
    double Kleinste;
    double Größte;
    /// Size at which enlarging from the context menu disables itself. Of the large family it lies beyond what the
    /// command can reach: the entry stays enabled until the next selection. Meant.
    double MenüEnde;
};
constexpr Familie Kleine{0.3, 1.2, 1.2};
constexpr Familie Große{0.9, 1.8, 2.4};

const Familie &FamilieVon(std::string_view symboltyp) {
    const double typ = ZahlLesen(symboltyp);
    return typ >= TypSchwangerschaft && typ < TypInstitution ? Kleine : Große;
}

struct Maß {
    Familie Grenzen;
    double Größe;
};

/// Family and size of the selected person.
std::optional<Maß> Gewählte(const Werkbank &w) {
    const int i = PersonMitNr(w.dokument, w.lage.PersNr);
    if (i < 0) return std::nullopt;
    const PersonSatz person(w.dokument.cboPersonen.Satz(i), Lücken::Leer);
    return Maß{FamilieVon(person.Symboltyp()), person.Groesse()};
}

} // namespace

void GrößeÄndern(Werkbank &w, double delta) {
    Satzliste &personen = w.dokument.cboPersonen;
    const Satzliste vorher = personen;
    for (const auto &eintrag : w.auswahl.lstMovedPers) {
        const int i = PersonMitNr(w.dokument, Getrimmt(eintrag));
        if (i < 0 || !PersonSatz(personen.Satz(i)).Vollständig()) continue;
        PersonBau person(personen.Satz(i));
        const Familie &familie = FamilieVon(person.Stand().Symboltyp());
        person.Groesse(std::clamp(person.Stand().Groesse() + delta, familie.Kleinste, familie.Größte));
        personen.Ersetzen(i, person.Text());
    }
    AuswahlrahmenParken(w.auflagen);
    w.fenster.Vorschau();
    w.lage.Aktion = Aktion::Nichts;
    if (personen != vorher) w.fenster.Sichern();
    else if (w.auswahl.lstMovedPers.Leer()) w.lage.Hinweis = &Absage::KeinePersonGewählt;
    else w.lage.Hinweis = delta > 0 ? &Absage::GrößtesSymbol : &Absage::KleinstesSymbol;
}

void mnuSymbolVergrößern(Werkbank &w) {
    GrößeÄndern(w, GrößenSchritt);
    const auto maß = Gewählte(w);
    if (!maß) return;
    w.lage.Angebot.Vergrößern = Kleiner(maß->Größe, maß->Grenzen.MenüEnde);
    w.lage.Angebot.Verkleinern = true;
}

void mnuSymbolVerkleinern(Werkbank &w) {
    GrößeÄndern(w, -GrößenSchritt);
    const auto maß = Gewählte(w);
    if (!maß) return;
    w.lage.Angebot.Verkleinern = Kleiner(maß->Grenzen.Kleinste, maß->Größe);
    w.lage.Angebot.Vergrößern = true;
}

void GrößeMenüsPrüfen(Werkbank &w) {
    const auto maß = Gewählte(w);
    if (!maß) return;
    w.lage.Angebot.Vergrößern = Kleiner(maß->Größe, maß->Grenzen.Größte);
    w.lage.Angebot.Verkleinern = Kleiner(maß->Grenzen.Kleinste, maß->Größe);
}

} // namespace kw
