#include "editing/Kreislinien.h"

#include "document/Nachschlagen.h"
#include "document/Zahlen.h"
#include "document/saetze/Kreislinie.h"
#include "editing/Absagen.h"
#include "editing/Abwahl.h"
#include "editing/Gesten.h"
#include "editing/Marker.h"
#include "platform/Befehlsnamen.h"
#include "rendering/Ebenen.h"
#include "rendering/Zeichenflaeche.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kw {

namespace {

constexpr double StrichSchritt = 0.9;   ///< a stroke takes a new point when the pointer has gone that far, cm
constexpr double LückenSchritt = 1.2;   ///< between the points that close a stroke, cm
constexpr double Zeichenschritt = 0.01; ///< the drawing can't tell points apart that are nearer, cm
constexpr double TrefferAbstand = 0.15; ///< from the drawn stroke, cm

/// The points between the last and the first one of a stroke. None lies on the first or beyond it: the curve would
/// turn round there.
std::vector<Kreispunkt> Lückenpunkte(Kreispunkt letzter, Kreispunkt erster) {
    std::vector<Kreispunkt> punkte;
    const double dx = erster.X - letzter.X;
    const double dy = erster.Y - letzter.Y;
    const double länge = std::hypot(dx, dy);
    for (int i = 1; Kleiner(i * LückenSchritt, länge - Zeichenschritt); ++i)
        punkte.push_back({Gerundet(letzter.X + i * LückenSchritt * dx / länge, 2),
                          Gerundet(letzter.Y + i * LückenSchritt * dy / länge, 2)});
    return punkte;
}

/// The place on the page nearest to the pointer.
Kreispunkt AufSeite(const Ansicht &ansicht, const Ereignis &e) {
    return {std::clamp(e.X, 0.0, ansicht.SeitenBreite), std::clamp(e.Y, 0.0, ansicht.SeitenHöhe)};
}

void Umgeben(std::string_view satz, Umgebung &umgebung) {
    KreisSatz kreis(satz);
    while (const auto punkt = kreis.Nächster()) umgebung.Aufnehmen(punkt->X, punkt->Y);
}

/// Whether the stroke can come near the point at all: between two points the curve leaves their box by less than a
/// quarter of its size.
bool InReichweite(std::string_view satz, double x, double y) {
    Umgebung u;
    Umgeben(satz, u);
    const double rand = TrefferAbstand + std::max(u.Rechts - u.Links, u.Unten - u.Oben) / 4;
    return Auswahlkasten{u.Links - rand, u.Oben - rand, u.Rechts + rand, u.Unten + rand}.Enthält(x, y);
}

bool IstGetroffen(std::string_view satz, double x, double y, int glättungsgrad) {
    if (!InReichweite(satz, x, y)) return false;
    const auto zug = Kreiszug(satz, glättungsgrad);
    for (size_t i = 1; i < zug.size(); ++i)
        if (!Kleiner(TrefferAbstand, AbstandVonStrecke(zug[i - 1].X, zug[i - 1].Y, zug[i].X, zug[i].Y, x, y)))
            return true;
    return false;
}

bool ImKasten(std::string_view satz, const Auswahlkasten &kasten, double /*raster*/) {
    KreisSatz kreis(satz);
    while (const auto punkt = kreis.Nächster())
        if (kasten.Enthält(punkt->X, punkt->Y)) return true;
    return false;
}

} // namespace

const Gruppenart KreislinienInGruppen{&Dokument::cboFreehandlines,
                                      &Auswahl::lstMovedKreisLinien,
                                      1,
                                      &Zwischenablage::ZA_Kreislinien,
                                      ImKasten,
                                      KreisVerschoben,
                                      Umgeben};

int KreisLinieBei(const Dokument &d, double x, double y, int glättungsgrad) {
    for (int i = 0; i < d.cboFreehandlines.Anzahl(); ++i)
        if (IstGetroffen(d.cboFreehandlines.Satz(i), x, y, glättungsgrad)) return i;
    return -1;
}

void KreisAuswählen(Werkbank &w, int position) {
    w.lage.Aktion = Aktion::KreisGewählt;
    w.lage.KreisAuswahl = position + 1;
    w.lage.PersRecord.clear();
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.auswahl.lstMovedKreisLinien.Anhängen(std::to_string(position + 1));
    w.lage.KreisPunkte = KreisPunkte(w.dokument.cboFreehandlines.Satz(position));
}

bool KreisBeginnen(Werkbank &w, const Ereignis &e) {
    if (w.lage.Aktion != Aktion::KreisZeichnen) return false;
    w.lage.PunktListe.clear();
    KreisPunktAnhängen(w.lage.PunktListe, AufSeite(w.ansicht, e));
    return true;
}

/// In every state that comes so far: an armed tool on a circle line selects the line and places nothing. Meant.
bool KreisTreffen(Werkbank &w, const Ereignis &e) {
    const int i = KreisLinieBei(w.dokument, e.X, e.Y, w.ansicht.Glättungsgrad);
    w.lage.KreisGetroffen = i >= 0;
    w.lage.KreisAuswahl = 0;
    if (w.lage.KreisGetroffen) {
        if (EtwasInHand(w.lage)) w.lage.Hinweis = &Absage::KreisImWeg;
        AuswahlrahmenParken(w.auflagen);
        LinkAufräumen(w.lage, w.auflagen);
        KreisAuswählen(w, i);
    }
    w.fenster.Vorschau();
    return false;
}

bool KreisGewählt(Werkbank &w, const Ereignis &e) {
    if (w.lage.Aktion != Aktion::KreisGewählt) return false;
    MarkerEntfernen(w);
    w.lage.Angebot.Löschen = w.lage.Angebot.Ausschneiden = true;
    if (!w.lage.KreisGetroffen) { // the press only ends the selection
        w.auswahl.lstMovedKreisLinien.Leeren();
        w.lage.Aktion = Aktion::Nichts;
        w.fenster.Vorschau();
    } else if (e.Rechts()) {
        PopupÖffnen(w, Name::mnuKreislinie);
    }
    return true;
}

void KreisZiehen(Werkbank &w, const Ereignis &e) {
    const double schritt = w.ansicht.Rasterweite;
    if (!Kleiner(schritt, std::fabs(e.X - w.lage.DownX)) && !Kleiner(schritt, std::fabs(e.Y - w.lage.DownY))) return;
    KreisVerschieben(w, e);
}

void KreisVerschieben(Werkbank &w, const Ereignis &e) {
    if (!Gültig(w.dokument.cboFreehandlines, w.lage.KreisAuswahl - 1)) return;
    auto punkte = w.lage.KreisPunkte;
    Umgebung u;
    for (const Kreispunkt &punkt : punkte) u.Aufnehmen(punkt.X, punkt.Y);
    const double mitteX = (u.Links + u.Rechts) / 2;
    const double mitteY = (u.Oben + u.Unten) / 2;
    const Kreispunkt neu =
        AufSeite(w.ansicht, {0, mitteX + e.X - w.lage.LetztX, mitteY + e.Y - w.lage.LetztY}); // its centre
    for (Kreispunkt &punkt : punkte) {
        punkt.X += neu.X - mitteX;
        punkt.Y += neu.Y - mitteY;
    }
    w.dokument.cboFreehandlines.Ersetzen(w.lage.KreisAuswahl - 1, KreisText(punkte));
    w.lage.DownX = Gerundet(e.X, 2);
    w.lage.DownY = Gerundet(e.Y, 2);
    w.fenster.Vorschau();
}

void KreisZeichnen(Werkbank &w, const Ereignis &e) {
    const Kreispunkt ort = AufSeite(w.ansicht, e);
    const double dx = ort.X - w.lage.LetztX;
    const double dy = ort.Y - w.lage.LetztY;
    if (!w.lage.PunktListe.empty() && Kleiner(StrichSchritt, std::hypot(dx, dy))) KreisPunktSetzen(w, ort);
}

void KreisPunktSetzen(Werkbank &w, Kreispunkt ort) {
    KreisPunktAnhängen(w.lage.PunktListe, ort);
    // On the kept picture itself: the next redraw takes the finished line in its place.
    Zeichenfläche &f = w.picVorschau;
    const int breite = std::exchange(f.DrawWidth, 1);
    const int stil = std::exchange(f.DrawStyle, StilDurchgezogen);
    f.Line(LinieFarbig, w.lage.LetztX, w.lage.LetztY, ort.X, ort.Y, w.ansicht.Pfeilfarbe);
    f.DrawWidth = breite;
    f.DrawStyle = stil;
    w.lage.LetztX = Gerundet(ort.X, 2);
    w.lage.LetztY = Gerundet(ort.Y, 2);
}

/// The record has followed the pointer already. One that is as it was stays selected: that was a click.
void KreisLoslassen(Werkbank &w, const Ereignis &) {
    const int i = w.lage.KreisAuswahl - 1;
    if (!Gültig(w.dokument.cboFreehandlines, i)) return;
    if (KreisPunkte(w.dokument.cboFreehandlines.Satz(i)) == w.lage.KreisPunkte) return;
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Sichern();
    w.fenster.Vorschau();
}

void KreisSchließen(Werkbank &w, const Ereignis &) {
    w.lage.Aktion = Aktion::Nichts;
    auto punkte = KreisPunkte(std::exchange(w.lage.PunktListe, {}));
    if (punkte.size() < 2) { // nothing was drawn
        w.lage.Hinweis = &Absage::KeinStrich;
        return;
    }
    const auto lücke = Lückenpunkte(punkte.back(), punkte.front());
    punkte.insert(punkte.end(), lücke.begin(), lücke.end());
    if (punkte.back() != punkte.front()) punkte.push_back(punkte.front());
    w.dokument.cboFreehandlines.Anhängen(KreisText(punkte));
    w.fenster.Sichern();
    w.fenster.Vorschau();
}

void KreisLinieLöschen(Werkbank &w) {
    if (!Gültig(w.dokument.cboFreehandlines, w.lage.KreisAuswahl - 1)) return;
    w.dokument.cboFreehandlines.Entfernen(w.lage.KreisAuswahl - 1);
    w.auswahl.lstMovedKreisLinien.Leeren();
    LöschenAbschließen(w);
}

} // namespace kw
