#include "editing/Legende.h"

#include "editing/Absagen.h"
#include "editing/Abwahl.h"
#include "editing/Gesten.h"
#include "editing/Marker.h"
#include "platform/Befehlsnamen.h"

namespace kw {

namespace {

/// The legend goes to where its mask was dragged, on the raster.
void Ablegen(Werkbank &w) {
    const double x = RasterZehntel(w.ansicht, w.auflagen.shpMask.Left);
    const double y = RasterZehntel(w.ansicht, w.auflagen.shpMask.Top);
    if (x != w.dokument.LegendeX || y != w.dokument.LegendeY) w.fenster.AlsGeändertMerken();
    w.dokument.LegendeX = x;
    w.dokument.LegendeY = y;
    w.lage.Aktion = Aktion::Nichts;
}

} // namespace

bool LegendeUnterMaus(const Werkbank &w) {
    const Dokument &d = w.dokument;
    return d.LegendeSichtbar && Kleiner(d.LegendeX, w.lage.MausX) && Kleiner(d.LegendeY, w.lage.MausY) &&
           Kleiner(w.lage.MausX, d.LegendeX + w.legende.LegendeBreite) &&
           Kleiner(w.lage.MausY, d.LegendeY + w.legende.LegendeHoehe);
}

bool LegendeFassen(Werkbank &w, const Ereignis &e) {
    if (!LegendeUnterMaus(w)) return false;
    if (EtwasInHand(w.lage)) w.lage.Hinweis = &Absage::LegendeImWeg;
    LinkAbbrechen(w.auswahl, w.lage, w.auflagen);
    if (w.lage.Aktion == Aktion::GruppeGewählt) {
        AuswahlrahmenParken(w.auflagen);
        MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    }
    w.lage.Aktion = Aktion::LegendeGefasst;
    Auflagenform &maske = w.auflagen.shpMask;
    maske.Shape = Umriss::Rechteck;
    maske.Legen(w.dokument.LegendeX, w.dokument.LegendeY, w.legende.LegendeBreite, w.legende.LegendeHoehe);
    maske.Visible = e.Links();
    w.lage.VersatzX = e.X - maske.Left;
    w.lage.VersatzY = e.Y - maske.Top;
    if (!e.Rechts()) return true;
    PopupÖffnen(w, Name::mnuLegende);
    if (w.lage.Aktion == Aktion::LegendeGefasst) w.lage.Aktion = Aktion::Nichts;
    return true;
}

void LegendeZiehen(Werkbank &w, const Ereignis &e) {
    Auflagenform &maske = w.auflagen.shpMask;
    maske.Left = RasterX(w.ansicht, e.X - w.lage.VersatzX, maske.Width / 2);
    maske.Top = RasterY(w.ansicht, e.Y - w.lage.VersatzY, maske.Height / 2);
}

/// A click leaves the legend where it is, off the raster too: the redraw knows by the gesture that it is still held.
void LegendeLoslassen(Werkbank &w, const Ereignis &e) {
    if (HatSichBewegt(w.lage, e)) Ablegen(w);
    LegendeAufbauen(w.dokument, w.legende);
    w.fenster.Vorschau();
    w.lage.Aktion = Aktion::Nichts;
    w.auflagen.shpMask.Parken();
    w.auflagen.shpMask.Visible = false;
}

} // namespace kw
