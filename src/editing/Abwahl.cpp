#include "editing/Abwahl.h"

#include "editing/Marker.h"

#include <utility>

namespace kw {

void MarkierungsListBoxenLöschen(Auswahl &auswahl, Leinwandlage &lage) {
    auswahl = {};
    lage.Angebot.Zwillinge = false; // it was offered for what the lists held
    lage.Info.Visible = false;      // and the panel told of whom they held
}

void LinkAufräumen(Leinwandlage &lage, Auflagen &auflagen) {
    Gummi1Parken(auflagen);
    Gummi2Parken(auflagen);
    auflagen.Line1.Visible = auflagen.Line2.Visible = auflagen.shpPerson.Visible = false;
    for (Auflagenlinie &linie : auflagen.MarkLine) linie.Visible = false;
    lage.lblPersAuswahl.clear();
}

void LinkAbbrechen(Auswahl &auswahl, Leinwandlage &lage, Auflagen &auflagen) {
    if (!IstLink(lage.Aktion)) return;
    LinkAufräumen(lage, auflagen);
    MarkierungsListBoxenLöschen(auswahl, lage); // positions of the two, which nothing else must take for numbers
    lage.PLinieUnterMaus = false;
    lage.Aktion = Aktion::Nichts;
}

void AuswahlAufgeben(Werkbank &w) {
    w.lage.BildAuswahl = false;
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.lage.PersRecord.clear();
    AuswahlrahmenParken(w.auflagen);
    LinkAufräumen(w.lage, w.auflagen);
    MarkerEntfernen(w);
}

void PositionenVergessen(Leinwandlage &lage) {
    lage.PersAuswahl = lage.KreisAuswahl = 0;
    lage.TextAuswahl = lage.BezAuswahl = lage.PLinieAuswahl = lage.KindAuswahl = lage.PfeilAuswahl = -1;
    lage.PersRecord.clear();
}

void AllesAbwählen(Auswahl &auswahl, Leinwandlage &lage, Auflagen &auflagen) {
    MarkierungsListBoxenLöschen(auswahl, lage);
    const Leinwandlage vorher = std::exchange(lage, {});
    lage.Angebot = vorher.Angebot;
    lage.MausX = vorher.MausX; // the pointer stays where it is, and what was measured last remains so
    lage.MausY = vorher.MausY;
    lage.AuswahlGröße = vorher.AuswahlGröße;
    lage.TextRahmenUnten = vorher.TextRahmenUnten;
    auflagen = {};
}

void NichtsAuswählen(Werkbank &w) {
    AllesAbwählen(w.auswahl, w.lage, w.auflagen);
    w.lage.Angebot.Löschen = w.lage.Angebot.Ausschneiden = false;
}

bool WerkzeugWeglegen(Werkbank &w) {
    if (!EtwasInHand(w.lage)) return false;
    NichtsAuswählen(w);
    w.fenster.Vorschau();
    return true;
}

void LöschenAbschließen(Werkbank &w) {
    PositionenVergessen(w.lage);
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Sichern();
    w.lage.Angebot.Löschen = false;
    w.fenster.Vorschau();
}

} // namespace kw
