#include "editing/Leinwand.h"

#include "document/Felder.h"
#include "document/Zahlen.h"
#include "editing/Marker.h"
#include "editing/Treffer.h"
#include "editing/Verbindungen.h"

#include <algorithm>
#include <cmath>

namespace kw {

namespace {

constexpr double StrichSchritt = 0.9; ///< a stroke takes a new point when the pointer has gone that far, cm

} // namespace

bool Leinwand::HatSichBewegt(const Ereignis &e) const {
    return Gerundet(e.X, 2) != lage.DownX || Gerundet(e.Y, 2) != lage.DownY;
}

/// Only shapes over the page move, so nothing is redrawn; a dragged circle line is the exception.
void Leinwand::MouseMove(int taste, double x, double y) {
    struct Zug {
        kw::Aktion Aktion;
        bool NurLinks; ///< only while the left button is down
        void (Leinwand::*Ziehen)(const Ereignis &);
    };
    static constexpr Zug Züge[] = {
        {Aktion::PfeilZeichnen, true, &Leinwand::PfeilAufziehen},
        {Aktion::PfeilGefasst, true, &Leinwand::PfeilZiehen},
        {Aktion::PfeilEnde2, true, &Leinwand::PfeilZiehen},
        {Aktion::PfeilEnde1, true, &Leinwand::PfeilZiehen},
        {Aktion::KreisGewählt, true, &Leinwand::KreisZiehen},
        {Aktion::KreisZeichnen, true, &Leinwand::KreisZeichnen},
        {Aktion::LegendeGefasst, true, &Leinwand::LegendeZiehen},
        {Aktion::GruppeGewählt, true, &Leinwand::GruppeZiehen},
        {Aktion::BeziehungZiehen, false, &Leinwand::LinkZiehen},
        {Aktion::PartnerschaftZiehen, false, &Leinwand::LinkZiehen},
        {Aktion::KindZiehen, false, &Leinwand::KindLinkZiehen},
        {Aktion::TextGefasst, false, &Leinwand::TextZiehen},
        {Aktion::PersonGewählt, true, &Leinwand::PersonZiehen},
        {Aktion::PLinieGewählt, true, &Leinwand::BalkenZiehen},
        {Aktion::RahmenZiehen, true, &Leinwand::RahmenZiehen},
    };
    lage.MausX = x;
    lage.MausY = y;
    const Ereignis e{taste, x, y};
    const auto zug = std::find_if(std::begin(Züge), std::end(Züge), [&](const Zug &z) {
        return z.Aktion == lage.Aktion && ((e.Links() && lage.Gedrückt) || !z.NurLinks);
    });
    if (zug != std::end(Züge)) (this->*zug->Ziehen)(e);
    if (lage.Aktion == Aktion::TextGesetzt) lage.Zeiger = Mauszeiger::Textfeld;
    if (lage.Aktion == Aktion::PersonSetzen) lage.Zeiger = Mauszeiger::Person;
}

void Leinwand::PfeilAufziehen(const Ereignis &e) {
    auflagen.Line5.Legen(lage.AnkerX, lage.AnkerY, Raster(e.X), Raster(e.Y));
}

/// The whole arrow, or the end in hand.
void Leinwand::PfeilZiehen(const Ereignis &e) {
    // The second end has a handle; without one on show it doesn't follow. The first end does. Meant.
    if (lage.Aktion == Aktion::PfeilEnde2 && !w.ansicht.PfeilMarkiert) return;
    const Felder feld(dokument.cboPfeile.Satz(lage.PfeilAuswahl));
    const double dx = Raster(e.X - lage.DownX);
    const double dy = Raster(e.Y - lage.DownY);
    const bool ende1 = lage.Aktion != Aktion::PfeilEnde2;
    const bool ende2 = lage.Aktion != Aktion::PfeilEnde1;
    auflagen.Line5.Legen(ZahlLesen(feld[PfeilFeld::PfeilX1]) + (ende1 ? dx : 0),
                         ZahlLesen(feld[PfeilFeld::PfeilY1]) + (ende1 ? dy : 0), lage.PfeilEndeX + (ende2 ? dx : 0),
                         lage.PfeilEndeY + (ende2 ? dy : 0));
    auflagen.Line5.Visible = true;
}

void Leinwand::KreisZiehen(const Ereignis &e) {
    const double schritt = w.ansicht.Rasterweite;
    if (!Kleiner(schritt, std::fabs(e.X - lage.DownX)) && !Kleiner(schritt, std::fabs(e.Y - lage.DownY))) return;
    if (lage.KreisAuswahl < 1 || lage.KreisAuswahl > dokument.cboFreehandlines.Anzahl()) return;
    auto punkte = lage.KreisPunkte;
    for (auto &[x, y] : punkte) {
        x += e.X - lage.LetztX;
        y += e.Y - lage.LetztY;
    }
    dokument.cboFreehandlines.Ersetzen(lage.KreisAuswahl - 1, KreisSatz(punkte));
    lage.DownX = Gerundet(e.X, 2);
    lage.DownY = Gerundet(e.Y, 2);
    w.fenster.Vorschau();
}

void Leinwand::KreisZeichnen(const Ereignis &e) {
    const double dx = e.X - lage.LetztX;
    const double dy = e.Y - lage.LetztY;
    if (lage.PunktListe.empty() || !Kleiner(StrichSchritt, std::hypot(dx, dy))) return;
    lage.PunktListe += ZahlSchreiben(e.X) + "^" + ZahlSchreiben(e.Y) + "_";
    // On the kept picture itself: the next redraw takes the finished line in its place.
    Zeichenfläche &f = w.picVorschau;
    const int breite = std::exchange(f.DrawWidth, 1);
    const int stil = std::exchange(f.DrawStyle, StilDurchgezogen);
    f.Line(LinieFarbig, lage.LetztX, lage.LetztY, e.X, e.Y, w.ansicht.Pfeilfarbe);
    f.DrawWidth = breite;
    f.DrawStyle = stil;
    lage.LetztX = Gerundet(e.X, 2);
    lage.LetztY = Gerundet(e.Y, 2);
}

void Leinwand::LegendeZiehen(const Ereignis &e) {
    auflagen.shpMask.Left = Raster(e.X - lage.VersatzX);
    auflagen.shpMask.Top = Raster(e.Y - lage.VersatzY);
}

void Leinwand::GruppeZiehen(const Ereignis &e) {
    auflagen.shpBox.Left = Raster(e.X - lage.VersatzX);
    auflagen.shpBox.Top = Raster(e.Y - lage.VersatzY);
}

void Leinwand::LinkZiehen(const Ereignis &e) { kw::LinkZiehen(w, e.X, e.Y); }

void Leinwand::KindLinkZiehen(const Ereignis &e) {
    auflagen.Line2.Legen(lage.GummiX, lage.GummiY - lage.SymbolGröße / 2, e.X, e.Y); // from the top of the symbol
    auflagen.Line2.Visible = true;
    const bool vorher = lage.PLinieUnterMaus;
    const int vorige = lage.PLinieAuswahl;
    lage.PLinieUnterMaus = PLinieTreffer(e.X, e.Y);
    if (lage.PLinieUnterMaus != vorher || (vorher && lage.PLinieAuswahl != vorige)) w.fenster.Vorschau();
}

void Leinwand::TextZiehen(const Ereignis &e) {
    Auflagenform &maske = auflagen.shpMask;
    const Felder feld(lage.TextRecord);
    maske.Legen(Raster(e.X - lage.VersatzX), Raster(e.Y - lage.VersatzY),
                ZahlLesen(feld.OderLeer(TextFeld::TextBreite)), ZahlLesen(feld.OderLeer(TextFeld::TextHoehe)));
    maske.Visible = true;
}

/// A small drag leaves the mask unshown; that is the whole threshold.
void Leinwand::PersonZiehen(const Ereignis &e) {
    const double schritt = w.ansicht.Rasterweite;
    Auflagenform &maske = auflagen.shpMask;
    if (!Kleiner(schritt, lage.VersatzX) && !Kleiner(schritt, lage.VersatzY)) maske.Visible = false;
    maske.Left = Raster(e.X - lage.VersatzX) - lage.SymbolGröße / 2;
    maske.Top = Raster(e.Y - lage.VersatzY) - lage.SymbolGröße / 2;
    if (Kleiner(schritt, std::fabs(e.X - lage.DownX)) || Kleiner(schritt, std::fabs(e.Y - lage.DownY)))
        maske.Visible = true;
}

/// A bar goes up and down only.
void Leinwand::BalkenZiehen(const Ereignis &e) {
    const Felder feld(dokument.cboPartnerschaftsLinien.Satz(lage.PLinieAuswahl));
    const double y = Raster(e.Y);
    auflagen.Line1.Legen(ZahlLesen(feld[PLinieFeld::BalkenX1]), y, ZahlLesen(feld[PLinieFeld::BalkenX2]), y);
    auflagen.Line1.Visible = true;
    lage.LinieVerschoben = true;
}

void Leinwand::RahmenZiehen(const Ereignis &e) {
    auflagen.shpBox.Legen(std::min(lage.AnkerX, e.X), std::min(lage.AnkerY, e.Y), std::fabs(e.X - lage.AnkerX),
                          std::fabs(e.Y - lage.AnkerY));
}

} // namespace kw
