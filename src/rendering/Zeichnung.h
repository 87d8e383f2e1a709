#pragma once

#include "document/Dokument.h"
#include "platform/Uhr.h"
#include "rendering/Ansicht.h"
#include "rendering/Auswahl.h"
#include "rendering/Legende.h"
#include "rendering/Zeichenflaeche.h"

namespace kw {

/// All that a redraw looks at. Drawing changes none of it but what is told at its place: the measures
/// of text boxes (with them the gesture that placed one ends, and the bottom of a selected one is kept), the legend's
/// place and size, a paper code below 1, and what `Ansicht` derives.
struct Zeichnung {
    Dokument &dokument;
    Ansicht &ansicht;
    const Auswahl &auswahl;
    Gestenlage &geste;
    Legendenblatt &legende;
    const Uhr &uhr;
};

/// Redraws the whole canvas: page setup, then every layer over the ones before it.
void VorschauZeichnen(Zeichenfläche &fläche, Zeichnung &z);

/// One print run on `fläche`, whose user units are centimetres already. No page setup, no grid, no
/// marks. Sets the printing flag for its length only, however it ends, and leaves the base line width at
/// 1, whatever the zoom wanted.
void DruckZeichnen(Zeichenfläche &fläche, Zeichnung &z);

} // namespace kw
