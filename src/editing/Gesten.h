#pragma once

#include "editing/Werkbank.h"

// What the gestures of all things share: the event, the raster, the context menu of a press.
namespace kw {

/// Mouse buttons as events carry them; 0 is none.
enum : int { TasteKeine = 0, TasteLinks = 1, TasteRechts = 2 };

/// A press, a move or a release, cm on the page.
struct Ereignis {
    int Taste;
    double X, Y;
    bool Links() const { return Taste == TasteLinks; }
    bool Rechts() const { return Taste == TasteRechts; }
};

double Raster(const Ansicht &ansicht, double wert);        ///< snapped
double RasterZehntel(const Ansicht &ansicht, double wert); ///< snapped and rounded to one decimal, as stored
/// The raster place nearest to `wert` on the page, across or down. Of what has a size its left or upper edge is given,
/// and `halb` of its extent: its centre stays on the page.
double RasterX(const Ansicht &ansicht, double wert, double halb = 0);
double RasterY(const Ansicht &ansicht, double wert, double halb = 0);
/// Whether the pointer has left the place of the press, by two decimals.
bool HatSichBewegt(const Leinwandlage &lage, const Ereignis &e);
/// Opens a context menu from a press: its release will end no gesture.
void PopupÖffnen(Werkbank &w, Befehlsname menü);

} // namespace kw
