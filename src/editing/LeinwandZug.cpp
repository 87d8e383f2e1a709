#include "editing/Leinwand.h"
#include "editing/LeinwandSchritte.h"

#include "document/Felder.h"
#include "document/Zahlen.h"
#include "editing/Gruppe.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Legende.h"
#include "editing/Linien.h"
#include "editing/Marker.h"
#include "editing/Personen.h"
#include "editing/Pfeile.h"
#include "editing/Texte.h"

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

void PersonVerknüpfen(Werkbank &w, const Ereignis &e) { LinkZiehen(w, PersonBei(w.dokument, e.X, e.Y), e.X, e.Y); }

} // namespace kw
