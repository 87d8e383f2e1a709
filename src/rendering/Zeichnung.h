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
    bool Druck = false; ///< a print run: nothing that is only for the screen, and lines of their own widths

    /// Widths of lines and arrows, and of symbols and the legend, device pixels.
    int Strichbreite() const { return Druck ? 3 : ansicht.StrichFaktor; }
    int Symbolstrich() const { return Druck ? 6 : ansicht.StrichFaktor; }
    /// Of a surface with that scale factor.
    double PixelJeCm(double faktor) const { return Druck ? DruckPixelJeCm : BildschirmPixelJeCm * faktor; }
};

/// Redraws the whole canvas: page setup, then every layer over the ones before it.
void VorschauZeichnen(Zeichenfläche &fläche, Zeichnung &z);

/// One print run on `fläche`, whose user units are centimetres already. No page setup, no grid, no
/// marks. Leaves the base line width at 1, whatever the zoom wanted.
void DruckZeichnen(Zeichenfläche &fläche, Zeichnung &z);

} // namespace kw
