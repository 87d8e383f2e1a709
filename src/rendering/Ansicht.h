#pragma once

#include "platform/Sprache.h"
#include "rendering/Farben.h"

namespace kw {

/// How the genogram is shown: what no project file holds. Owned by the main window, read by every layer.
struct Ansicht {
    kw::Sprache Sprache = kw::Sprache::Englisch;
    int Farbschema = SchemaFarbig; ///< 0 black and white, 1 grey scale, 2 colour
    int Altersanzeige = 0;         ///< 0 current age, 1 year of birth, 2 both
    int StrichFaktor = 1;          ///< base line width, device pixels
    int Glättungsgrad = 10;        ///< steps between two points of a circle line
    double Rasterweite = 0.3;      ///< snap step and grid width, cm
    bool bRasterAnzeigen = false;
    bool bDruckrandAnzeigen = false; ///< the frame of the printable area is shown
    double DruckrandLinks = 0;       ///< margins of the default printer, cm
    double DruckrandRechts = 0;
    double DruckrandOben = 0;
    double DruckrandUnten = 0;
    Farbe Markierfarbe = Rot; ///< overlay of a selected child line

    /// Colours of the lines, set when a scheme is chosen and not before: after the start they can belong
    /// to another scheme than `Farbschema`. Meant.
    ElementFarben Linienfarben = LinienfarbenFür(SchemaSchwarzWeiß);
    /// Colour of arrows and circle lines. The arrow layer sets it, and the circle line layer comes before
    /// it: circle lines follow a change of scheme one redraw later. Meant.
    Farbe Pfeilfarbe = Schwarz;

    double SeitenBreite = 29.7; ///< cm, derived when the page is set up
    double SeitenHöhe = 21.0;
    double Skalierung = 1; ///< displayed centimetres by paper centimetres, of the canvas

    bool PfeilMarkiert = false; ///< the last redraw showed an arrow with its handles
};

} // namespace kw
