#include "editing/Marker.h"

namespace kw {

void MarkierungsListBoxenLöschen(Auswahl &auswahl, Leinwandlage &lage) {
    auswahl = {};
    lage.Angebot.Zwillinge = false; // it was offered for what the lists held
    lage.Info.Visible = false;      // and the panel told of whom they held
}

void MarkerParken(Leinwandlage &lage, Auflagen &auflagen) {
    lage.AuswahlX = lage.AuswahlY = Geparkt;
    lage.MarkerBreite = lage.MarkerHöhe = 0.01;
    auflagen.shpMask.Visible = false;
}

void MarkerEntfernen(Werkbank &w) {
    MarkerParken(w.lage, w.auflagen);
    w.fenster.Vorschau();
}

void KeineAktion(Werkbank &w) {
    MarkerEntfernen(w);
    w.lage.Aktion = Aktion::Nichts;
}

void Aktion_Nichts(Leinwandlage &lage) { lage.Aktion = Aktion::Nichts; }

void Gummi1Parken(Auflagen &auflagen) { auflagen.Line1.Parken(); }

void Gummi2Parken(Auflagen &auflagen) { auflagen.Line2.Parken(); }

void AuswahlrahmenParken(Auflagen &auflagen) { auflagen.shpBox.Legen(Geparkt, Geparkt, 0, 0); }

void LinkAufräumen(Leinwandlage &lage, Auflagen &auflagen) {
    Gummi1Parken(auflagen);
    Gummi2Parken(auflagen);
    auflagen.Line1.Visible = auflagen.Line2.Visible = auflagen.shpPerson.Visible = false;
    for (Auflagenlinie &linie : auflagen.MarkLine) linie.Visible = false;
    lage.lblPersAuswahl.clear();
}

void LinkAbbrechen(Auswahl &auswahl, Leinwandlage &lage, Auflagen &auflagen) {
    if (lage.Aktion != Aktion::BeziehungZiehen && lage.Aktion != Aktion::PartnerschaftZiehen &&
        lage.Aktion != Aktion::KindZiehen)
        return;
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

void LöschenAbschließen(Werkbank &w) {
    PositionenVergessen(w.lage);
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Sichern();
    w.lage.Angebot.Löschen = false;
    w.fenster.Vorschau();
}

} // namespace kw
