#include "editing/Leinwand.h"

#include "document/Zahlen.h"
#include "editing/Bewegen.h"
#include "editing/Marker.h"
#include "editing/Rahmenauswahl.h"
#include "editing/Satzbau.h"
#include "editing/Treffer.h"
#include "editing/Verbindungen.h"

#include <cmath>

namespace kw {

namespace {

constexpr double KürzesterPfeil = 0.5; ///< on either axis, cm
constexpr double LückenSchritt = 1.2;  ///< between the points that close a stroke, cm
constexpr int NachDemEreignis = 60;    ///< ms

/// The points between the last and the first one of a stroke. The last of them can lie up to half a step beyond
/// the first point. Meant.
std::vector<std::pair<double, double>> Lückenpunkte(std::pair<double, double> letzter,
                                                    std::pair<double, double> erster) {
    std::vector<std::pair<double, double>> punkte;
    const double dx = erster.first - letzter.first;
    const double dy = erster.second - letzter.second;
    const double länge = std::hypot(dx, dy);
    const int anzahl = static_cast<int>(std::floor(länge / LückenSchritt + 0.5));
    for (int i = 1; i <= anzahl; ++i)
        punkte.emplace_back(Gerundet(letzter.first + i * LückenSchritt * dx / länge, 2),
                            Gerundet(letzter.second + i * LückenSchritt * dy / länge, 2));
    return punkte;
}

} // namespace

void Leinwand::MouseUp(int taste, double x, double y) {
    struct Ende {
        kw::Aktion Aktion;
        void (Leinwand::*Loslassen)(const Ereignis &);
    };
    static constexpr Ende Enden[] = {
        {Aktion::PersonSetzen, &Leinwand::PersonGesetzt},
        {Aktion::PersonGewählt, &Leinwand::PersonLoslassen},
        {Aktion::TextGefasst, &Leinwand::TextLoslassen},
        {Aktion::PLinieGewählt, &Leinwand::BalkenLoslassen},
        {Aktion::BeziehungGewählt, &Leinwand::BezLinieLoslassen},
        {Aktion::KindlinieGewählt, &Leinwand::KindLinieLoslassen},
        {Aktion::RahmenZiehen, &Leinwand::RahmenLoslassen},
        {Aktion::GruppeGewählt, &Leinwand::GruppeLoslassen},
        {Aktion::LegendeGefasst, &Leinwand::LegendeLoslassen},
        {Aktion::KreisGewählt, &Leinwand::KreisLoslassen},
        {Aktion::KreisZeichnen, &Leinwand::KreisSchließen},
        {Aktion::PfeilZeichnen, &Leinwand::PfeilGezogen},
        {Aktion::PfeilEnde1, &Leinwand::PfeilEndeLoslassen},
        {Aktion::PfeilEnde2, &Leinwand::PfeilEndeLoslassen},
        {Aktion::PfeilGefasst, &Leinwand::PfeilLoslassen},
    };
    if (!std::exchange(lage.Gedrückt, false)) return;
    for (Auflagenlinie &linie : auflagen.MarkLine) linie.Visible = false;
    if (lage.BildAuswahl) return BildLoslassen();
    auflagen.Line1.Visible = auflagen.Line5.Visible = false;
    lage.Zeiger = Mauszeiger::Pfeil;
    Gummi2Parken(w);
    w.fenster.UndoKnöpfeSetzen();
    const Ereignis e{taste, x, y};
    for (const Ende &ende : Enden) {
        if (ende.Aktion != lage.Aktion) continue;
        (this->*ende.Loslassen)(e);
        return;
    }
}

/// A click, or a frame not much larger than one, is no region: it only puts the tool away.
void Leinwand::BildLoslassen() {
    constexpr double Kleinstes = 1.2; // cm, on both axes
    const Auflagenform &box = auflagen.shpBox;
    const Bildausschnitt region{box.Left, box.Top, box.Width, box.Height};
    if (Kleiner(Kleinstes, region.Width) && Kleiner(Kleinstes, region.Height))
        w.fenster.AusschnittAusgeben(region, lage.bAuswahlInDatei);
    AuswahlrahmenParken(w);
    lage.BildAuswahl = false;
    lage.Zeiger = Mauszeiger::Pfeil;
    lage.Aktion = Aktion::Nichts;
}

void Leinwand::GesteAbbrechen() {
    LinkAbbrechen();
    if (std::exchange(lage.Gedrückt, false)) ZugAbbrechen();
}

void Leinwand::LinkAbbrechen() {
    if (lage.Aktion != Aktion::BeziehungZiehen && lage.Aktion != Aktion::PartnerschaftZiehen &&
        lage.Aktion != Aktion::KindZiehen)
        return;
    LinkAufräumen(w);
    MarkierungsListBoxenLöschen(w); // positions of the two, which nothing else must take for numbers
    lage.PLinieUnterMaus = false;
    lage.Aktion = Aktion::Nichts;
}

void Leinwand::ZugAbbrechen() {
    auflagen.shpMask.Visible = auflagen.Line1.Visible = auflagen.Line5.Visible = false;
    lage.LinieVerschoben = false;
    lage.Zeiger = Mauszeiger::Pfeil;
    switch (lage.Aktion) {
    case Aktion::KreisGewählt: KreisLoslassen({}); break;
    case Aktion::PersonSetzen: PersonGesetzt({}); break; // it stands already
    case Aktion::TextGefasst: lage.Aktion = Aktion::TextGewählt; break;
    case Aktion::GruppeGewählt:
        auflagen.shpBox.Left = lage.AltX;
        auflagen.shpBox.Top = lage.AltY;
        break;
    case Aktion::RahmenZiehen:
    case Aktion::KreisZeichnen:
    case Aktion::PfeilZeichnen:
    case Aktion::LegendeGefasst:
        AuswahlrahmenParken(w);
        lage.PunktListe.clear();
        lage.BildAuswahl = false;
        lage.Aktion = Aktion::Nichts;
        break;
    default: break;
    }
}

void Leinwand::PersonGesetzt(const Ereignis &) {
    w.fenster.Sichern();
    lage.Aktion = Aktion::Nichts;
}

void Leinwand::PersonLoslassen(const Ereignis &e) {
    const int i = lage.PersAuswahl - 1;
    if (i < 0 || i >= dokument.cboPersonen.Anzahl()) return;
    const bool bewegt = HatSichBewegt(e);
    if (bewegt) { // back on the spot it stays where it was, off the raster too
        lage.AuswahlX = Gerundet(auflagen.shpMask.Left, 2);
        lage.AuswahlY = Gerundet(auflagen.shpMask.Top, 2);
    }
    lage.NeuX = Gerundet(lage.AuswahlX + lage.SymbolGröße / 2, 2);
    lage.NeuY = Gerundet(lage.AuswahlY + lage.SymbolGröße / 2, 2);
    lage.MarkerBreite = lage.MarkerHöhe = lage.SymbolGröße;
    Feldbau satz(dokument.cboPersonen.Satz(i), PersonFeld::Anzahl);
    dokument.cboPersonen.Ersetzen(i, satz.Text());
    const Dokument vorher = dokument;
    lage.PersRecord = satz.Setzen(PersonFeld::PosX, lage.NeuX).Setzen(PersonFeld::PosY, lage.NeuY).Text();
    dokument.cboPersonen.Ersetzen(i, lage.PersRecord);
    if (!bewegt) return;
    ElementeBewegen(w, Bezüge(dokument));
    lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    auflagen.shpMask.Parken();
    if (!dokument.GleicheSätze(vorher)) w.fenster.Sichern();
}

void Leinwand::TextLoslassen(const Ereignis &e) {
    w.bedienung["mnuLöschen1"].Enabled = w.bedienung["mnuAusschneiden"].Enabled = true;
    if (e.Rechts()) {
        lage.Aktion = Aktion::MenüOffen;
        w.fenster.PopupÖffnen("mnuTextBox");
        return;
    }
    Satzliste &boxen = dokument.cboTextboxen;
    const Auflagenform maske = std::exchange(auflagen.shpMask, {});
    lage.Aktion = Aktion::TextGewählt;
    if (!HatSichBewegt(e) || lage.TextAuswahl < 0 || lage.TextAuswahl >= boxen.Anzahl()) return;
    const std::string alt = boxen.Satz(lage.TextAuswahl);
    Feldbau satz(alt, std::min(Felder(alt).Anzahl(), Felder::Höchstzahl)); // its measures stay, if it has them
    satz.Setzen(TextFeld::TextX, RasterZehntel(maske.Left)).Setzen(TextFeld::TextY, RasterZehntel(maske.Top));
    lage.TextRecord = satz.Text();
    boxen.Ersetzen(lage.TextAuswahl, lage.TextRecord);
    if (lage.TextRecord != alt) w.fenster.Sichern();
    w.benutzer.ZeitgeberStarten("Timer4", NachDemEreignis); // redraws, once, behind the event
}

void Leinwand::BalkenLoslassen(const Ereignis &) {
    const bool verschoben = std::exchange(lage.LinieVerschoben, false) && BalkenBewegen(w);
    if (verschoben) {
        lage.Aktion = Aktion::Nichts;
        Gummi1Parken(w);
    }
    w.fenster.Vorschau();
    if (verschoben) w.fenster.Sichern();
    w.bedienung["mnuLöschen1"].Enabled = !verschoben;
}

void Leinwand::BezLinieLoslassen(const Ereignis &e) {
    if (e.Rechts()) w.fenster.PopupÖffnen("mnuBezLinie");
}

void Leinwand::KindLinieLoslassen(const Ereignis &) { w.bedienung["mnuLöschen1"].Enabled = true; }

void Leinwand::RahmenLoslassen(const Ereignis &) { RahmenAuswählen(w); }

void Leinwand::GruppeLoslassen(const Ereignis &) { GruppeBewegen(w); }

void Leinwand::LegendeLoslassen(const Ereignis &) {
    const double x = RasterZehntel(auflagen.shpMask.Left);
    const double y = RasterZehntel(auflagen.shpMask.Top);
    if (x != dokument.LegendeX || y != dokument.LegendeY) w.fenster.AlsGeändertMerken();
    dokument.LegendeX = x;
    dokument.LegendeY = y;
    LegendeAufbauen(dokument, w.legende);
    w.fenster.Vorschau();
    lage.Aktion = Aktion::Nichts;
    auflagen.shpMask.Parken();
    auflagen.shpMask.Visible = false;
}

/// The record has followed the pointer already. One that is as it was stays selected: that was a click.
void Leinwand::KreisLoslassen(const Ereignis &) {
    const int i = lage.KreisAuswahl - 1;
    if (i < 0 || i >= dokument.cboFreehandlines.Anzahl()) return;
    if (KreisPunkte(dokument.cboFreehandlines.Satz(i)) == lage.KreisPunkte) return;
    lage.Aktion = Aktion::Nichts;
    w.fenster.Sichern();
    w.fenster.Vorschau();
}

void Leinwand::KreisSchließen(const Ereignis &) {
    lage.Aktion = Aktion::Nichts;
    auto punkte = KreisPunkte(std::exchange(lage.PunktListe, {}));
    if (punkte.size() < 2) return; // nothing was drawn
    const auto lücke = Lückenpunkte(punkte.back(), punkte.front());
    punkte.insert(punkte.end(), lücke.begin(), lücke.end());
    punkte.push_back(punkte.front());
    dokument.cboFreehandlines.Anhängen(KreisSatz(punkte));
    w.fenster.Sichern();
    w.fenster.Vorschau();
}

void Leinwand::PfeilGezogen(const Ereignis &e) {
    lage.Aktion = Aktion::Nichts;
    if (Kleiner(std::fabs(e.X - lage.AnkerX), KürzesterPfeil) && Kleiner(std::fabs(e.Y - lage.AnkerY), KürzesterPfeil))
        return;
    Feldbau satz("", PfeilFeld::Anzahl);
    lage.PfeilEndeX = RasterZehntel(e.X);
    lage.PfeilEndeY = RasterZehntel(e.Y);
    satz.Setzen(PfeilFeld::Pfeilart, lage.PfeilArt);
    satz.Setzen(PfeilFeld::PfeilX1, Gerundet(lage.AnkerX, 1)).Setzen(PfeilFeld::PfeilY1, Gerundet(lage.AnkerY, 1));
    satz.Setzen(PfeilFeld::PfeilX2, lage.PfeilEndeX).Setzen(PfeilFeld::PfeilY2, lage.PfeilEndeY);
    dokument.cboPfeile.Anhängen(satz.Text());
    w.fenster.Sichern();
    lage.PfeilAuswahl = dokument.cboPfeile.Anzahl() - 1;
    w.auswahl.lstMovedPfeile.Anhängen(std::to_string(lage.PfeilAuswahl));
    w.bedienung["mnuLöschen1"].Enabled = w.bedienung["mnuAusschneiden"].Enabled = true;
    w.fenster.Vorschau();
    lage.Aktion = Aktion::PfeilGewählt;
}

/// `Aktion` stays: the end can be taken again.
void Leinwand::PfeilEndeLoslassen(const Ereignis &e) {
    if (lage.PfeilAuswahl < 0 || lage.PfeilAuswahl >= dokument.cboPfeile.Anzahl()) return;
    const bool zweites = lage.Aktion == Aktion::PfeilEnde2;
    const int feldX = zweites ? PfeilFeld::PfeilX2 : PfeilFeld::PfeilX1;
    const int feldY = zweites ? PfeilFeld::PfeilY2 : PfeilFeld::PfeilY1;
    Feldbau satz(dokument.cboPfeile.Satz(lage.PfeilAuswahl), PfeilFeld::Anzahl);
    const double x = RasterZehntel(zweites ? auflagen.Line5.X2 : auflagen.Line5.X1);
    const double y = RasterZehntel(zweites ? auflagen.Line5.Y2 : auflagen.Line5.Y1);
    if (!HatSichBewegt(e) || (satz.Zahl(feldX) == x && satz.Zahl(feldY) == y)) return;
    if (zweites) {
        lage.PfeilEndeX = x;
        lage.PfeilEndeY = y;
    }
    dokument.cboPfeile.Ersetzen(lage.PfeilAuswahl, satz.Setzen(feldX, x).Setzen(feldY, y).Text());

    w.fenster.Sichern();
    w.fenster.Vorschau();
}

void Leinwand::PfeilLoslassen(const Ereignis &e) {
    w.bedienung["mnuLöschen1"].Enabled = true;
    if (e.Rechts()) {
        w.fenster.PopupÖffnen("mnuPfeil1");
        return;
    }
    if (!HatSichBewegt(e) || lage.PfeilAuswahl < 0 || lage.PfeilAuswahl >= dokument.cboPfeile.Anzahl()) return;
    const Auflagenlinie &linie = auflagen.Line5;
    const std::string alt = dokument.cboPfeile.Satz(lage.PfeilAuswahl);
    Feldbau satz(alt, PfeilFeld::Anzahl);
    satz.Setzen(PfeilFeld::PfeilX1, RasterZehntel(linie.X1)).Setzen(PfeilFeld::PfeilY1, RasterZehntel(linie.Y1));
    satz.Setzen(PfeilFeld::PfeilX2, RasterZehntel(linie.X2)).Setzen(PfeilFeld::PfeilY2, RasterZehntel(linie.Y2));
    dokument.cboPfeile.Ersetzen(lage.PfeilAuswahl, satz.Text());
    lage.Aktion = Aktion::PfeilGewählt;
    if (satz.Text() == alt) return;
    w.fenster.Sichern();
    w.fenster.Vorschau();
}

} // namespace kw
