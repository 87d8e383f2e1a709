#include "editing/Pfeile.h"

#include "document/Nachschlagen.h"
#include "document/saetze/Pfeil.h"
#include "editing/Absagen.h"
#include "editing/Abwahl.h"
#include "editing/Gesten.h"
#include "platform/Befehlsnamen.h"

#include <algorithm>
#include <cmath>

namespace kw {

namespace {

constexpr double EndeToleranz = 0.2;   ///< on either axis, cm
constexpr double KürzesterPfeil = 0.5; ///< on either axis, cm

/// Lays the arrow's overlay over it: where it stands at the release is what is stored.
void InHandNehmen(Werkbank &w) {
    const PfeilSatz pfeil(w.dokument.cboPfeile.Satz(w.lage.PfeilAuswahl));
    w.lage.PfeilArt = Ganzzahl16(ZahlLesen(pfeil.Pfeilart()));
    w.lage.PfeilEndeX = pfeil.X2();
    w.lage.PfeilEndeY = pfeil.Y2();
    w.auflagen.Line5.Legen(pfeil.X1(), pfeil.Y1(), w.lage.PfeilEndeX, w.lage.PfeilEndeY);
}

struct Mitte {
    double X, Y;
};

/// What of an arrow in hand stays on the page: the end that was taken, or its middle.
Mitte FassOrt(Aktion aktion, const PfeilSatz &pfeil) {
    if (aktion == Aktion::PfeilEnde1) return {pfeil.X1(), pfeil.Y1()};
    if (aktion == Aktion::PfeilEnde2) return {pfeil.X2(), pfeil.Y2()};
    return {(pfeil.X1() + pfeil.X2()) / 2, (pfeil.Y1() + pfeil.Y2()) / 2};
}

void LöschenUndAusschneidenAnbieten(Werkbank &w) { w.lage.Angebot.Ausschneiden = w.lage.Angebot.Löschen = true; }

/// Whether a sample of the arrow lies in the box. Samples begin at the first end, of an upright arrow at the upper
/// one, and step by the raster along the longer axis.
bool ImKasten(std::string_view satz, const Auswahlkasten &kasten, double raster) {
    constexpr double HöchstProben = 32767; // longer arrows are damage
    const PfeilSatz pfeil(satz);
    if (!pfeil.Vollständig()) return false;
    const double dx = pfeil.X2() - pfeil.X1();
    const double dy = pfeil.Y2() - pfeil.Y1();
    const double anfangY = dx == 0 ? std::min(pfeil.Y1(), pfeil.Y1() + dy) : pfeil.Y1();
    const double länge = std::max(std::fabs(dx), std::fabs(dy));
    const int proben = static_cast<int>(std::min(std::floor(Gerundet(länge / raster, 6)), HöchstProben));
    const double wegX = länge > 0 ? dx / länge * raster : 0;
    const double wegY = dx == 0 ? raster : dy / länge * raster;
    for (int i = 0; i <= proben; ++i)
        if (kasten.Enthält(pfeil.X1() + i * wegX, anfangY + i * wegY)) return true;
    return false;
}

std::string Verschoben(std::string_view satz, double dx, double dy) {
    return PfeilBau(satz).Verschieben(dx, dy).Text();
}

void Umgeben(std::string_view satz, Umgebung &umgebung) {
    const PfeilSatz pfeil(satz, Lücken::Leer);
    umgebung.Aufnehmen(pfeil.X1(), pfeil.Y1());
    umgebung.Aufnehmen(pfeil.X2(), pfeil.Y2());
}

} // namespace

const Gruppenart PfeileInGruppen{
    &Dokument::cboPfeile, &Auswahl::lstMovedPfeile, 0, &Zwischenablage::ZA_Pfeile, ImKasten, Verschoben, Umgeben};

int PfeilBei(const Dokument &d, double x, double y) {
    for (int i = 0; i < d.cboPfeile.Anzahl(); ++i) {
        const PfeilSatz pfeil(d.cboPfeile.Satz(i));
        if (pfeil.Vollständig() && SegmentGetroffen(pfeil.X1(), pfeil.Y1(), pfeil.X2(), pfeil.Y2(), x, y)) return i;
    }
    return -1;
}

int PfeilEndeBei(const Dokument &d, int position, double x, double y) {
    if (!Gültig(d.cboPfeile, position)) return 0;
    const PfeilSatz pfeil(d.cboPfeile.Satz(position));
    if (!pfeil.Vollständig()) return 0;
    const auto nahe = [&](double endeX, double endeY) {
        return Kleiner(std::fabs(x - endeX), EndeToleranz) && Kleiner(std::fabs(y - endeY), EndeToleranz);
    };
    if (nahe(pfeil.X2(), pfeil.Y2())) return 2;
    return nahe(pfeil.X1(), pfeil.Y1()) ? 1 : 0;
}

bool PfeilBeginnen(Werkbank &w, const Ereignis &e) {
    if (w.lage.Aktion != Aktion::PfeilZeichnen) return false;
    w.lage.AnkerX = RasterX(w.ansicht, e.X);
    w.lage.AnkerY = RasterY(w.ansicht, e.Y);
    w.auflagen.Line5.Legen(w.lage.AnkerX, w.lage.AnkerY, w.lage.AnkerX, w.lage.AnkerY); // not where the last arrow was
    w.auflagen.Line5.Visible = true;
    return true;
}

bool PfeilTreffer(Werkbank &w, double x, double y) {
    const int i = PfeilBei(w.dokument, x, y);
    if (i >= 0) PfeilFassen(w, i, 0);
    return i >= 0;
}

bool PfeilEndeTreffer(Werkbank &w, double x, double y) {
    const auto bei = [&](int position) { return PfeilEndeBei(w.dokument, position, x, y); };
    int pfeil = w.lage.PfeilAuswahl; // the one in hand first
    int ende = bei(pfeil);
    for (int i = 0; ende == 0 && i < w.dokument.cboPfeile.Anzahl(); ++i)
        if ((ende = bei(i)) != 0) pfeil = i;
    if (ende != 0) PfeilFassen(w, pfeil, ende);
    return ende != 0;
}

void PfeilFassen(Werkbank &w, int position, int ende) {
    w.lage.PfeilAuswahl = position;
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.auswahl.lstMovedPfeile.Anhängen(std::to_string(position));
    LöschenUndAusschneidenAnbieten(w);
    InHandNehmen(w);
    w.lage.Aktion = ende == 0 ? Aktion::PfeilGefasst : ende == 2 ? Aktion::PfeilEnde2 : Aktion::PfeilEnde1;
    w.fenster.Vorschau();
}

void PfeilAufziehen(Werkbank &w, const Ereignis &e) {
    w.auflagen.Line5.Legen(w.lage.AnkerX, w.lage.AnkerY, RasterX(w.ansicht, e.X), RasterY(w.ansicht, e.Y));
}

void PfeilZiehen(Werkbank &w, const Ereignis &e) {
    // The second end has a handle; without one on show it doesn't follow. The first end does. Meant.
    if (w.lage.Aktion == Aktion::PfeilEnde2 && !w.ansicht.PfeilMarkiert) return;
    const PfeilSatz pfeil(w.dokument.cboPfeile.Satz(w.lage.PfeilAuswahl));
    const Ansicht &a = w.ansicht;
    const Mitte ort = FassOrt(w.lage.Aktion, pfeil);
    const double dx = RasterZwischen(e.X - w.lage.DownX, a.Rasterweite, -ort.X, a.SeitenBreite - ort.X);
    const double dy = RasterZwischen(e.Y - w.lage.DownY, a.Rasterweite, -ort.Y, a.SeitenHöhe - ort.Y);
    const bool ende1 = w.lage.Aktion != Aktion::PfeilEnde2;
    const bool ende2 = w.lage.Aktion != Aktion::PfeilEnde1;
    w.auflagen.Line5.Legen(pfeil.X1() + (ende1 ? dx : 0), pfeil.Y1() + (ende1 ? dy : 0),
                           w.lage.PfeilEndeX + (ende2 ? dx : 0), w.lage.PfeilEndeY + (ende2 ? dy : 0));
    w.auflagen.Line5.Visible = true;
}

void PfeilGezogen(Werkbank &w, const Ereignis &e) {
    w.lage.Aktion = Aktion::Nichts;
    if (Kleiner(std::fabs(e.X - w.lage.AnkerX), KürzesterPfeil) &&
        Kleiner(std::fabs(e.Y - w.lage.AnkerY), KürzesterPfeil)) {
        w.lage.Hinweis = &Absage::KurzerPfeil;
        return;
    }
    w.lage.PfeilEndeX = Gerundet(RasterX(w.ansicht, e.X), 1);
    w.lage.PfeilEndeY = Gerundet(RasterY(w.ansicht, e.Y), 1);
    PfeilBau pfeil;
    pfeil.Pfeilart(w.lage.PfeilArt).Ende1(Gerundet(w.lage.AnkerX, 1), Gerundet(w.lage.AnkerY, 1));
    w.dokument.cboPfeile.Anhängen(pfeil.Ende2(w.lage.PfeilEndeX, w.lage.PfeilEndeY).Text());
    w.fenster.Sichern();
    w.lage.PfeilAuswahl = w.dokument.cboPfeile.Anzahl() - 1;
    w.auswahl.lstMovedPfeile.Anhängen(std::to_string(w.lage.PfeilAuswahl));
    LöschenUndAusschneidenAnbieten(w);
    w.fenster.Vorschau();
    w.lage.Aktion = Aktion::PfeilGewählt;
}

/// `Aktion` stays: the end can be taken again.
void PfeilEndeLoslassen(Werkbank &w, const Ereignis &e) {
    if (!Gültig(w.dokument.cboPfeile, w.lage.PfeilAuswahl)) return;
    const bool zweites = w.lage.Aktion == Aktion::PfeilEnde2;
    PfeilBau pfeil(w.dokument.cboPfeile.Satz(w.lage.PfeilAuswahl));
    const PfeilSatz alt = pfeil.Stand();
    const double x = Gerundet(RasterX(w.ansicht, zweites ? w.auflagen.Line5.X2 : w.auflagen.Line5.X1), 1);
    const double y = Gerundet(RasterY(w.ansicht, zweites ? w.auflagen.Line5.Y2 : w.auflagen.Line5.Y1), 1);
    const bool dort = zweites ? alt.X2() == x && alt.Y2() == y : alt.X1() == x && alt.Y1() == y;
    if (!HatSichBewegt(w.lage, e) || dort) return;
    if (zweites) {
        w.lage.PfeilEndeX = x;
        w.lage.PfeilEndeY = y;
    }
    w.dokument.cboPfeile.Ersetzen(w.lage.PfeilAuswahl, (zweites ? pfeil.Ende2(x, y) : pfeil.Ende1(x, y)).Text());
    w.fenster.Sichern();
    w.fenster.Vorschau();
}

void PfeilLoslassen(Werkbank &w, const Ereignis &e) {
    w.lage.Angebot.Löschen = true;
    if (e.Rechts()) {
        w.fenster.PopupÖffnen(Name::mnuPfeil1);
        return;
    }
    if (!HatSichBewegt(w.lage, e) || !Gültig(w.dokument.cboPfeile, w.lage.PfeilAuswahl)) return;
    const Auflagenlinie &linie = w.auflagen.Line5;
    const std::string alt = w.dokument.cboPfeile.Satz(w.lage.PfeilAuswahl);
    PfeilBau pfeil(alt);
    pfeil.Ende1(RasterZehntel(w.ansicht, linie.X1), RasterZehntel(w.ansicht, linie.Y1));
    pfeil.Ende2(RasterZehntel(w.ansicht, linie.X2), RasterZehntel(w.ansicht, linie.Y2));
    w.dokument.cboPfeile.Ersetzen(w.lage.PfeilAuswahl, pfeil.Text());
    w.lage.Aktion = Aktion::PfeilGewählt;
    if (pfeil.Text() == alt) return;
    w.fenster.Sichern();
    w.fenster.Vorschau();
}

void PfeilLöschen(Werkbank &w) {
    if (!Gültig(w.dokument.cboPfeile, w.lage.PfeilAuswahl)) return;
    w.dokument.cboPfeile.Entfernen(w.lage.PfeilAuswahl);
    w.auswahl.lstMovedPfeile.Leeren();
    LöschenAbschließen(w);
}

} // namespace kw
