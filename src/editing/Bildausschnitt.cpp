#include "editing/Bildausschnitt.h"

#include "editing/Absagen.h"
#include "editing/Abwahl.h"
#include "editing/Gesten.h"
#include "editing/Marker.h"
#include "platform/Bilder.h"

namespace kw {

void BildauswahlBeginnen(Werkbank &w, bool inDatei) {
    const bool weglegen = w.lage.BildAuswahl && w.lage.bAuswahlInDatei == inDatei;
    w.lage.Aktion = Aktion::Nichts;
    AuswahlAufgeben(w);
    PositionenVergessen(w.lage);
    w.lage.Zeiger = weglegen ? Mauszeiger::Pfeil : Mauszeiger::Kreuz;
    w.lage.BildAuswahl = !weglegen;
    w.lage.bAuswahlInDatei = inDatei;
}

bool BildBeginnen(Werkbank &w, const Ereignis &e) {
    if (!w.lage.BildAuswahl) return false;
    w.lage.Aktion = Aktion::RahmenZiehen;
    w.lage.AnkerX = Raster(w.ansicht, e.X);
    w.lage.AnkerY = Raster(w.ansicht, e.Y);
    return true;
}

void BildLoslassen(Werkbank &w) {
    constexpr double Kleinstes = 1.2; // cm, on both axes
    const Auflagenform &box = w.auflagen.shpBox;
    const Bildausschnitt region{box.Left, box.Top, box.Width, box.Height};
    if (Kleiner(Kleinstes, region.Width) && Kleiner(Kleinstes, region.Height))
        w.fenster.AusschnittAusgeben(region, w.lage.bAuswahlInDatei);
    else w.lage.Hinweis = &Absage::KleinesBild;
    AuswahlrahmenParken(w.auflagen);
    w.lage.BildAuswahl = false;
    w.lage.Zeiger = Mauszeiger::Pfeil;
    w.lage.Aktion = Aktion::Nichts;
}

} // namespace kw
