#include "editing/Marker.h"

namespace kw {

void MarkerParken(Leinwandlage &lage, Auflagen &auflagen) {
    lage.AuswahlX = lage.AuswahlY = Geparkt;
    lage.Spur.MarkerBreite = lage.Spur.MarkerHöhe = 0.01;
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

} // namespace kw
