#pragma once

#include "editing/Werkbank.h"

// The marker of the selected person or text box, and the other shapes over the page put out of the way.
namespace kw {

/// Parks the marker and redraws. The selection lists stay.
void MarkerEntfernen(Werkbank &w);
/// The same without the redraw, for routines that redraw once at their end.
void MarkerParken(Leinwandlage &lage, Auflagen &auflagen);
/// `MarkerEntfernen`, then no action.
void KeineAktion(Werkbank &w);
/// Nothing but `Aktion::Nichts`: what the forms call when they are left.
void Aktion_Nichts(Leinwandlage &lage);
void Gummi1Parken(Auflagen &auflagen);
void Gummi2Parken(Auflagen &auflagen);
void AuswahlrahmenParken(Auflagen &auflagen);

} // namespace kw
