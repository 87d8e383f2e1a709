#include "editing/Marker.h"

#include "document/Felder.h"
#include "document/Zahlen.h"

namespace kw {

void MarkierungsListBoxenLöschen(Werkbank &w) {
    w.auswahl = {};
    w.lage.Angebot.Zwillinge = false; // it was offered for what the lists held
    w.lage.Info.Visible = false;      // and the panel told of whom they held
}

void MarkerParken(Werkbank &w) {
    w.lage.AuswahlX = w.lage.AuswahlY = Geparkt;
    w.lage.MarkerBreite = w.lage.MarkerHöhe = 0.01;
    w.auflagen.shpMask.Visible = false;
}

void MarkerEntfernen(Werkbank &w) {
    MarkerParken(w);
    w.fenster.Vorschau();
}

void KeineAktion(Werkbank &w) {
    MarkerEntfernen(w);
    w.lage.Aktion = Aktion::Nichts;
}

void Aktion_Nichts(Werkbank &w) { w.lage.Aktion = Aktion::Nichts; }

void Gummi1Parken(Werkbank &w) { w.auflagen.Line1.Parken(); }

void Gummi2Parken(Werkbank &w) { w.auflagen.Line2.Parken(); }

void AuswahlrahmenParken(Werkbank &w) { w.auflagen.shpBox.Legen(Geparkt, Geparkt, 0, 0); }

void LinkAufräumen(Werkbank &w) {
    Gummi1Parken(w);
    Gummi2Parken(w);
    w.auflagen.Line1.Visible = w.auflagen.Line2.Visible = w.auflagen.shpPerson.Visible = false;
    for (Auflagenlinie &linie : w.auflagen.MarkLine) linie.Visible = false;
    w.lage.lblPersAuswahl.clear();
}

void LinkAbbrechen(Werkbank &w) {
    if (w.lage.Aktion != Aktion::BeziehungZiehen && w.lage.Aktion != Aktion::PartnerschaftZiehen &&
        w.lage.Aktion != Aktion::KindZiehen)
        return;
    LinkAufräumen(w);
    MarkierungsListBoxenLöschen(w); // positions of the two, which nothing else must take for numbers
    w.lage.PLinieUnterMaus = false;
    w.lage.Aktion = Aktion::Nichts;
}

void AuswahlAufgeben(Werkbank &w) {
    w.lage.BildAuswahl = false;
    MarkierungsListBoxenLöschen(w);
    w.lage.PersRecord.clear();
    AuswahlrahmenParken(w);
    LinkAufräumen(w);
    MarkerEntfernen(w);
}

void PositionenVergessen(Leinwandlage &lage) {
    lage.PersAuswahl = lage.KreisAuswahl = 0;
    lage.TextAuswahl = lage.BezAuswahl = lage.PLinieAuswahl = lage.KindAuswahl = lage.PfeilAuswahl = -1;
    lage.PersRecord.clear();
}

void AllesAbwählen(Werkbank &w) {
    MarkierungsListBoxenLöschen(w);
    const Leinwandlage vorher = std::exchange(w.lage, {});
    w.lage.Angebot = vorher.Angebot;
    w.lage.MausX = vorher.MausX; // the pointer stays where it is, and what was measured last remains so
    w.lage.MausY = vorher.MausY;
    w.lage.AuswahlGröße = vorher.AuswahlGröße;
    w.lage.TextRahmenUnten = vorher.TextRahmenUnten;
    w.auflagen = {};
}

void LöschenAbschließen(Werkbank &w) {
    PositionenVergessen(w.lage);
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Sichern();
    w.lage.Angebot.Löschen = false;
    w.fenster.Vorschau();
}

} // namespace kw
