#pragma once

#include "rendering/Zeichnung.h"

namespace kw {

/// Replaces a paper code below 1 by 9, and derives the page's width and height (cm) from paper and
/// orientation. A code that is no paper leaves both as they were.
void SeiteBestimmen(Dokument &dokument, Ansicht &ansicht);

/// Fits the page into the surface's box: shrinks the surface on one side to the page's proportions, sets
/// its user units to the page's centimetres and clears it. Gives the scale factor: displayed by paper centimetres.
double SeiteEinpassen(Zeichenfläche &fläche, const Ansicht &ansicht);

/// The snap grid; not in print.
void RasterZeichnen(Zeichenfläche &fläche, const Zeichnung &z);

/// The frame of the printable area, when it is switched on; not in print.
void DruckrandZeichnen(Zeichenfläche &fläche, const Zeichnung &z);

} // namespace kw
