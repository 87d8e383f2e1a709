#include "editing/Leinwand.h"
#include "editing/LeinwandSchritte.h"

#include "document/Felder.h"
#include "document/Zahlen.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Legende.h"
#include "editing/Linien.h"
#include "editing/Marker.h"
#include "editing/Pfeile.h"
#include "editing/Texte.h"
#include "editing/Treffer.h"
#include "editing/Verbindungen.h"

#include <algorithm>
#include <cmath>

namespace kw {

namespace {} // namespace

/// Only shapes over the page move, so nothing is redrawn; a dragged circle line is the exception.
void Leinwand::MouseMove(int taste, double x, double y) {
    struct Zug {
        kw::Aktion Aktion;
        bool NurLinks; ///< only while the left button is down
        void (*Ziehen)(Werkbank &, const Ereignis &);
    };
    static constexpr Zug Züge[] = {
        {Aktion::PfeilZeichnen, true, PfeilAufziehen},
        {Aktion::PfeilGefasst, true, PfeilZiehen},
        {Aktion::PfeilEnde2, true, PfeilZiehen},
        {Aktion::PfeilEnde1, true, PfeilZiehen},
        {Aktion::KreisGewählt, true, KreisZiehen},
        {Aktion::KreisZeichnen, true, KreisZeichnen},
        {Aktion::LegendeGefasst, true, LegendeZiehen},
        {Aktion::GruppeGewählt, true, GruppeZiehen},
        {Aktion::BeziehungZiehen, false, PersonVerknüpfen},
        {Aktion::PartnerschaftZiehen, false, PersonVerknüpfen},
        {Aktion::KindZiehen, false, KindLinkZiehen},
        {Aktion::TextGefasst, false, TextZiehen},
        {Aktion::PersonGewählt, true, PersonZiehen},
        {Aktion::PLinieGewählt, true, BalkenZiehen},
        {Aktion::RahmenZiehen, true, RahmenZiehen},
    };
    w.lage.MausX = x;
    w.lage.MausY = y;
    const Ereignis e{taste, x, y};
    const auto zug = std::find_if(std::begin(Züge), std::end(Züge), [&](const Zug &z) {
        return z.Aktion == w.lage.Aktion && ((e.Links() && w.lage.Gedrückt) || !z.NurLinks);
    });
    if (zug != std::end(Züge)) zug->Ziehen(w, e);
    if (w.lage.Aktion == Aktion::TextGesetzt) w.lage.Zeiger = Mauszeiger::Textfeld;
    if (w.lage.Aktion == Aktion::PersonSetzen) w.lage.Zeiger = Mauszeiger::Person;
}

void GruppeZiehen(Werkbank &w, const Ereignis &e) {
    w.auflagen.shpBox.Left = Raster(w, e.X - w.lage.VersatzX);
    w.auflagen.shpBox.Top = Raster(w, e.Y - w.lage.VersatzY);
}

void PersonVerknüpfen(Werkbank &w, const Ereignis &e) { LinkZiehen(w, PersonBei(w.dokument, e.X, e.Y), e.X, e.Y); }

/// A small drag leaves the mask unshown; that is the whole threshold.
void PersonZiehen(Werkbank &w, const Ereignis &e) {
    const double schritt = w.ansicht.Rasterweite;
    Auflagenform &maske = w.auflagen.shpMask;
    if (!Kleiner(schritt, w.lage.VersatzX) && !Kleiner(schritt, w.lage.VersatzY)) maske.Visible = false;
    maske.Left = Raster(w, e.X - w.lage.VersatzX) - w.lage.SymbolGröße / 2;
    maske.Top = Raster(w, e.Y - w.lage.VersatzY) - w.lage.SymbolGröße / 2;
    if (Kleiner(schritt, std::fabs(e.X - w.lage.DownX)) || Kleiner(schritt, std::fabs(e.Y - w.lage.DownY)))
        maske.Visible = true;
}

void RahmenZiehen(Werkbank &w, const Ereignis &e) {
    w.auflagen.shpBox.Legen(std::min(w.lage.AnkerX, e.X), std::min(w.lage.AnkerY, e.Y), std::fabs(e.X - w.lage.AnkerX),
                            std::fabs(e.Y - w.lage.AnkerY));
}

} // namespace kw
