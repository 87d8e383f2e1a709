#include "editing/Gesten.h"

#include "document/Zahlen.h"

namespace kw {

double Raster(const Ansicht &ansicht, double wert) { return Gerastert(wert, ansicht.Rasterweite); }

double RasterZehntel(const Ansicht &ansicht, double wert) { return Gerundet(Raster(ansicht, wert), 1); }

double RasterX(const Ansicht &ansicht, double wert, double halb) {
    return RasterZwischen(wert, ansicht.Rasterweite, -halb, ansicht.SeitenBreite - halb);
}

double RasterY(const Ansicht &ansicht, double wert, double halb) {
    return RasterZwischen(wert, ansicht.Rasterweite, -halb, ansicht.SeitenHöhe - halb);
}

bool HatSichBewegt(const Leinwandlage &lage, const Ereignis &e) {
    return Gerundet(e.X, 2) != lage.DownX || Gerundet(e.Y, 2) != lage.DownY;
}

void PopupÖffnen(Werkbank &w, Befehlsname menü) {
    w.lage.Gedrückt = false; // what is picked there may arm a tool, which waits for the next press
    w.fenster.PopupÖffnen(menü);
}

} // namespace kw
