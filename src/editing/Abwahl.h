#pragma once

#include "editing/Werkbank.h"

// How a selection, a link gesture and a deletion end, whatever the thing is.
namespace kw {

/// Empties the five selection lists; no redraw.
void MarkierungsListBoxenLöschen(Auswahl &auswahl, Leinwandlage &lage);
/// The end of a link gesture, however it ends: rubber lines and marks of the target go.
void LinkAufräumen(Leinwandlage &lage, Auflagen &auflagen);
/// Ends a link gesture with nothing made, if there is one.
void LinkAbbrechen(Auswahl &auswahl, Leinwandlage &lage, Auflagen &auflagen);
/// What a tool begins with: what was selected or armed ends. Redraws.
void AuswahlAufgeben(Werkbank &w);
/// Puts away what is armed: a tool, a link, the choice of a region of the picture. Nothing is selected then, nothing
/// made. False, and nothing done, when nothing is armed.
bool WerkzeugWeglegen(Werkbank &w);
/// Forgets the positions of single selected elements: after records have gone or others are selected.
void PositionenVergessen(Leinwandlage &lage);
/// Nothing selected, no gesture, every shape out of the way; no redraw. Before other records come into the stores.
void AllesAbwählen(Auswahl &auswahl, Leinwandlage &lage, Auflagen &auflagen);
/// The same for whoever has the whole: what needs a selection can't be pressed then.
void NichtsAuswählen(Werkbank &w);
/// How the deleting of a single element ends: nothing selected, one snapshot, one redraw.
void LöschenAbschließen(Werkbank &w);

} // namespace kw
