#include "editing/Leinwand.h"
#include "editing/LeinwandSchritte.h"

#include "document/Zahlen.h"
#include "editing/Bewegen.h"
#include "editing/Bildausschnitt.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Legende.h"
#include "editing/Linien.h"
#include "editing/Marker.h"
#include "editing/Pfeile.h"
#include "editing/Rahmenauswahl.h"
#include "editing/Satzbau.h"
#include "editing/Texte.h"
#include "editing/Treffer.h"
#include "editing/Verbindungen.h"

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

void PersonGesetzt(Werkbank &w, const Ereignis &) {
    w.fenster.Sichern();
    w.lage.Aktion = Aktion::Nichts;
}

void PersonLoslassen(Werkbank &w, const Ereignis &e) {
    const int i = w.lage.PersAuswahl - 1;
    if (i < 0 || i >= w.dokument.cboPersonen.Anzahl()) return;
    const bool bewegt = HatSichBewegt(w, e);
    if (bewegt) { // back on the spot it stays where it was, off the raster too
        w.lage.AuswahlX = Gerundet(w.auflagen.shpMask.Left, 2);
        w.lage.AuswahlY = Gerundet(w.auflagen.shpMask.Top, 2);
    }
    w.lage.NeuX = Gerundet(w.lage.AuswahlX + w.lage.SymbolGröße / 2, 2);
    w.lage.NeuY = Gerundet(w.lage.AuswahlY + w.lage.SymbolGröße / 2, 2);
    w.lage.MarkerBreite = w.lage.MarkerHöhe = w.lage.SymbolGröße;
    Feldbau satz(w.dokument.cboPersonen.Satz(i), PersonFeld::Anzahl);
    w.dokument.cboPersonen.Ersetzen(i, satz.Text());
    const Dokument vorher = w.dokument;
    w.lage.PersRecord = satz.Setzen(PersonFeld::PosX, w.lage.NeuX).Setzen(PersonFeld::PosY, w.lage.NeuY).Text();
    w.dokument.cboPersonen.Ersetzen(i, w.lage.PersRecord);
    if (!bewegt) return;
    ElementeBewegen(w, Bezüge(w.dokument));
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    w.auflagen.shpMask.Parken();
    if (!w.dokument.GleicheSätze(vorher)) w.fenster.Sichern();
}

void RahmenLoslassen(Werkbank &w, const Ereignis &) { RahmenAuswählen(w); }

void GruppeLoslassen(Werkbank &w, const Ereignis &) { GruppeBewegen(w); }

} // namespace kw
