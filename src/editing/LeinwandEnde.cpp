#include "editing/Leinwand.h"
#include "editing/LeinwandSchritte.h"

#include "document/Zahlen.h"
#include "editing/Bildausschnitt.h"
#include "editing/Gruppe.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Legende.h"
#include "editing/Linien.h"
#include "editing/Marker.h"
#include "editing/Personen.h"
#include "editing/Pfeile.h"
#include "editing/Texte.h"

#include <cmath>

namespace kw {

namespace {} // namespace

void Leinwand::MouseUp(int taste, double x, double y) {
    struct Ende {
        kw::Aktion Aktion;
        void (*Loslassen)(Werkbank &, const Ereignis &);
    };
    static constexpr Ende Enden[] = {
        {Aktion::PersonSetzen, PersonGesetzt},         {Aktion::PersonGewählt, PersonLoslassen},
        {Aktion::TextGefasst, TextLoslassen},          {Aktion::PLinieGewählt, BalkenLoslassen},
        {Aktion::BeziehungGewählt, BezLinieLoslassen}, {Aktion::KindlinieGewählt, KindLinieLoslassen},
        {Aktion::RahmenZiehen, RahmenLoslassen},       {Aktion::GruppeGewählt, GruppeLoslassen},
        {Aktion::LegendeGefasst, LegendeLoslassen},    {Aktion::KreisGewählt, KreisLoslassen},
        {Aktion::KreisZeichnen, KreisSchließen},       {Aktion::PfeilZeichnen, PfeilGezogen},
        {Aktion::PfeilEnde1, PfeilEndeLoslassen},      {Aktion::PfeilEnde2, PfeilEndeLoslassen},
        {Aktion::PfeilGefasst, PfeilLoslassen},
    };
    if (!std::exchange(w.lage.Gedrückt, false)) return;
    for (Auflagenlinie &linie : w.auflagen.MarkLine) linie.Visible = false;
    if (w.lage.BildAuswahl) return BildLoslassen(w);
    w.auflagen.Line1.Visible = w.auflagen.Line5.Visible = false;
    w.lage.Zeiger = Mauszeiger::Pfeil;
    Gummi2Parken(w);
    w.fenster.UndoKnöpfeSetzen();
    const Ereignis e{taste, x, y};
    for (const Ende &ende : Enden) {
        if (ende.Aktion != w.lage.Aktion) continue;
        ende.Loslassen(w, e);
        return;
    }
}

void Leinwand::GesteAbbrechen() {
    LinkAbbrechen(w);
    if (std::exchange(w.lage.Gedrückt, false)) ZugAbbrechen(w);
}

void ZugAbbrechen(Werkbank &w) {
    w.auflagen.shpMask.Visible = w.auflagen.Line1.Visible = w.auflagen.Line5.Visible = false;
    w.lage.LinieVerschoben = false;
    w.lage.Zeiger = Mauszeiger::Pfeil;
    switch (w.lage.Aktion) {
    case Aktion::KreisGewählt: KreisLoslassen(w, {}); break;
    case Aktion::PersonSetzen: PersonGesetzt(w, {}); break; // it stands already
    case Aktion::TextGefasst: w.lage.Aktion = Aktion::TextGewählt; break;
    case Aktion::GruppeGewählt:
        w.auflagen.shpBox.Left = w.lage.AltX;
        w.auflagen.shpBox.Top = w.lage.AltY;
        break;
    case Aktion::RahmenZiehen:
    case Aktion::KreisZeichnen:
    case Aktion::PfeilZeichnen:
    case Aktion::LegendeGefasst:
        AuswahlrahmenParken(w);
        w.lage.PunktListe.clear();
        w.lage.BildAuswahl = false;
        w.lage.Aktion = Aktion::Nichts;
        break;
    default: break;
    }
}

} // namespace kw
