#pragma once

#include "document/Dokument.h"
#include "platform/Uhr.h"
#include "rendering/Ansicht.h"
#include "rendering/Auswahl.h"
#include "rendering/Legende.h"
#include "rendering/Zeichenbefund.h"
#include "rendering/Zeichenflaeche.h"

namespace kw {

/// All that a redraw looks at. Drawing changes none of it.
struct Zeichnung {
    const Dokument &dokument;
    const Ansicht &ansicht; ///< its page is set up
    const Auswahl &auswahl;
    const Gestenlage &geste;
    const Legendenblatt &legende;
    const Uhr &uhr;
    bool Druck = false; ///< a print run: nothing that is only for the screen, and lines of their own widths

    /// Widths of lines and arrows, and of symbols and the legend, device pixels.
    int Strichbreite() const { return Druck ? 3 : ansicht.StrichFaktor; }
    int Symbolstrich() const { return Druck ? 6 : ansicht.StrichFaktor; }
    /// Of a surface with that scale factor.
    double PixelJeCm(double faktor) const { return Druck ? DruckPixelJeCm : BildschirmPixelJeCm * faktor; }
};

/// Redraws the whole canvas: fits the page into it, then every layer over the ones before it.
Zeichenbefund VorschauZeichnen(Zeichenfläche &fläche, const Zeichnung &z);

/// The page as the screen has it, on a surface whose scale is set.
Zeichenbefund SeitenbildZeichnen(Zeichenfläche &fläche, const Zeichnung &z);

/// One print run on `fläche`, whose user units are centimetres already. No grid, no marks.
/// It leaves the base line width at 1, whatever the zoom wanted, until that changes next. Meant.
Zeichenbefund DruckZeichnen(Zeichenfläche &fläche, const Zeichnung &z);

} // namespace kw
