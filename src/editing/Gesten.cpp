#include "editing/Gesten.h"

#include "document/Zahlen.h"

namespace kw {

double Raster(const Werkbank &w, double wert) { return Gerastert(wert, w.ansicht.Rasterweite); }

double RasterZehntel(const Werkbank &w, double wert) { return Gerundet(Raster(w, wert), 1); }

bool HatSichBewegt(const Werkbank &w, const Ereignis &e) {
    return Gerundet(e.X, 2) != w.lage.DownX || Gerundet(e.Y, 2) != w.lage.DownY;
}

void PopupÖffnen(Werkbank &w, Befehlsname menü) {
    w.lage.Gedrückt = false; // what is picked there may arm a tool, which waits for the next press
    w.fenster.PopupÖffnen(menü);
}

} // namespace kw
