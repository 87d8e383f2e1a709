#pragma once

#include "editing/Werkbank.h"

// Selecting and unselecting, and putting the shapes over the page out of the way.
namespace kw {

/// Empties the five selection lists; no redraw.
void MarkierungsListBoxenLöschen(Auswahl &auswahl, Leinwandlage &lage);
/// Parks the marker of the single person or text box, and redraws. The lists stay.
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
/// The end of a link gesture, however it ends: rubber lines and marks of the target go.
void LinkAufräumen(Leinwandlage &lage, Auflagen &auflagen);
/// Ends a link gesture with nothing made, if there is one.
void LinkAbbrechen(Auswahl &auswahl, Leinwandlage &lage, Auflagen &auflagen);
/// What a tool begins with: what was selected or armed ends. Also redraws, without it.
void AuswahlAufgeben(Werkbank &w);
/// Forgets the positions of single selected elements: after records have gone or others are selected.
void PositionenVergessen(Leinwandlage &lage);
/// Nothing selected, no gesture, every shape out of the way; no redraw. Before other records come into the stores.
void AllesAbwählen(Auswahl &auswahl, Leinwandlage &lage, Auflagen &auflagen);

/// How the deleting of a single element ends: nothing selected, one snapshot, one redraw.
void LöschenAbschließen(Werkbank &w);

} // namespace kw
