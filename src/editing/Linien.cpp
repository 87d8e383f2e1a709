#include "editing/Linien.h"

#include "document/Verweise.h"
#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "editing/Abwahl.h"
#include "editing/Geometrie.h"
#include "editing/Gesten.h"
#include "editing/Marker.h"
#include "platform/Befehlsnamen.h"

#include <algorithm>
#include <utility>

namespace kw {

namespace {

/// Person whose lines follow it.
struct Bewegter {
    std::string_view Nr;
    double X, Y;
};

void BeziehungenNachziehen(Dokument &d, const Bezüge &bezüge, const Bewegter &p) {
    for (const int i : bezüge.Beziehungen(p.Nr)) {
        BeziehungBau linie(d.cboBeziehungsLinien.Satz(i));
        const double x = Gerundet(p.X, 2);
        const double y = Gerundet(p.Y, 2);
        if (linie.Stand().PersNr1() == p.Nr) linie.Ende1(x, y);
        else linie.Ende2(x, y);
        d.cboBeziehungsLinien.Ersetzen(i, linie.TextOhneBlanks());
    }
}

/// The bar's new height when a group takes it along: the bar as it stands before this step must lie within the
/// frame as it stands after the move. A bar that is selected itself has then moved already, and moves twice. Meant.
std::optional<double> HöheInDerGruppe(const PartnerschaftSatz &linie, const std::optional<Balkenmitnahme> &gruppe) {
    if (!gruppe) return std::nullopt;
    const double x1 = linie.BalkenX1() + gruppe->DeltaX;
    const double x2 = linie.BalkenX2() + gruppe->DeltaX;
    if (Kleiner(x1, gruppe->Links) || Kleiner(gruppe->Rechts, x2)) return std::nullopt;
    return Gerundet(linie.BalkenY1() + gruppe->DeltaY, 1);
}

/// Gives the bar at `position` and its children's lines the height of `neu`. False when it has that already.
bool BalkenBewegen(Dokument &d, int position, const Auflagenlinie &neu) {
    if (!Gültig(d.cboPartnerschaftsLinien, position)) return false;
    const double y = Gerundet(neu.Y1, 2);
    PartnerschaftBau linie(d.cboPartnerschaftsLinien.Satz(position));
    if (linie.Stand().BalkenY1() == y && linie.Stand().BalkenY2() == y) return false;
    linie.BalkenX1(Gerundet(neu.X1, 2)).BalkenX2(Gerundet(neu.X2, 2)).BalkenY(y);
    d.cboPartnerschaftsLinien.Ersetzen(position, linie.Text());
    for (int kind = 0; kind < d.cboKindlinien.Anzahl(); ++kind) {
        if (KindSatz(d.cboKindlinien.Satz(kind), Lücken::Leer).PLinie() != linie.Stand().Nr()) continue;
        d.cboKindlinien.Ersetzen(kind, KindBau(d.cboKindlinien.Satz(kind)).LinieY(y).Text());
    }
    return true;
}

void LinieAngepasst(Werkbank &w) {
    w.lage.Aktion = Aktion::Nichts;
    Gummi1Parken(w.auflagen);
    w.fenster.Vorschau();
    w.fenster.Sichern();
}

} // namespace

int BezLinieBei(const Dokument &d, double x, double y) {
    for (int i = 0; i < d.cboBeziehungsLinien.Anzahl(); ++i) {
        const BeziehungSatz linie(d.cboBeziehungsLinien.Satz(i));
        if (linie.Vollständig() &&
            SegmentGetroffen(linie.LinieX1(), linie.LinieY1(), linie.LinieX2(), linie.LinieY2(), x, y))
            return i;
    }
    return -1;
}

int PLinieBei(const Dokument &d, double x, double y) {
    for (int i = 0; i < d.cboPartnerschaftsLinien.Anzahl(); ++i) {
        const PartnerschaftSatz linie(d.cboPartnerschaftsLinien.Satz(i));
        if (linie.Vollständig() &&
            AchsenlinieGetroffen(linie.BalkenX1(), linie.BalkenY1(), linie.BalkenX2(), linie.BalkenY2(), x, y))
            return i;
    }
    return -1;
}

bool BalkenImKasten(std::string_view satz, const Auswahlkasten &kasten) {
    const PartnerschaftSatz linie(satz);
    if (!linie.Vollständig() || !Zwischen(linie.BalkenY2(), kasten.Oben, kasten.Unten)) return false;
    const auto [links, rechts] = linie.Balkenbereich();
    return Zwischen(links, kasten.Links, kasten.Rechts) || Zwischen(rechts, kasten.Links, kasten.Rechts) ||
           (Kleiner(links, kasten.Links) && Kleiner(kasten.Rechts, rechts));
}

bool BezLinieTreffer(Werkbank &w, double x, double y) {
    const int i = BezLinieBei(w.dokument, x, y);
    if (i < 0) return false;
    w.lage.BezAuswahl = i;
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.lage.Aktion = Aktion::BeziehungGewählt;
    w.lage.Angebot.Löschen = true;
    w.fenster.Vorschau();
    return true;
}

bool PLinieTreffer(Werkbank &w, double x, double y) {
    w.auswahl.lstMovedPLines.Leeren();
    const int i = PLinieBei(w.dokument, x, y);
    if (i < 0) return false;
    w.lage.PLinieAuswahl = i;
    w.lage.LinieVerschoben = false;
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.auswahl.lstMovedPLines.Anhängen(std::to_string(i + 1));
    if (w.lage.Aktion == Aktion::KindZiehen) return true; // a link gesture goes on
    w.lage.Aktion = Aktion::PLinieGewählt;
    w.fenster.Vorschau();
    return true;
}

void BalkenZiehen(Werkbank &w, const Ereignis &e) {
    const PartnerschaftSatz linie(w.dokument.cboPartnerschaftsLinien.Satz(w.lage.PLinieAuswahl));
    const double y = Raster(w.ansicht, e.Y);
    w.auflagen.Line1.Legen(linie.BalkenX1(), y, linie.BalkenX2(), y);
    w.auflagen.Line1.Visible = true;
    w.lage.LinieVerschoben = true;
}

void BalkenLoslassen(Werkbank &w, const Ereignis &) {
    const bool verschoben = std::exchange(w.lage.LinieVerschoben, false) &&
                            BalkenBewegen(w.dokument, w.lage.PLinieAuswahl, w.auflagen.Line1);
    if (verschoben) {
        w.lage.Aktion = Aktion::Nichts;
        Gummi1Parken(w.auflagen);
    }
    w.fenster.Vorschau();
    if (verschoben) w.fenster.Sichern();
    w.lage.Angebot.Löschen = !verschoben;
}

void BezLinieLoslassen(Werkbank &w, const Ereignis &e) {
    if (e.Rechts()) w.fenster.PopupÖffnen(Name::mnuBezLinie);
}

void LinienNachziehen(Dokument &d, const Bezüge &bezüge, std::string_view nr, double x, double y, double raster,
                      const std::optional<Balkenmitnahme> &gruppe) {
    BeziehungenNachziehen(d, bezüge, {nr, x, y});
    const double rasterX = Gerundet(Gerastert(x, raster), 1);
    const double rasterY = Gerundet(Gerastert(y, raster), 1);
    for (const int i : bezüge.Partnerschaften(nr)) {
        PartnerschaftBau linie(d.cboPartnerschaftsLinien.Satz(i));
        if (linie.Stand().PersNr1() == nr) {
            const auto balkenY = HöheInDerGruppe(linie.Stand(), gruppe);
            linie.BalkenX1(rasterX).Anschluss1(rasterX, rasterY);
            if (balkenY) linie.BalkenY(*balkenY);
        } else {
            linie.BalkenX2(rasterX).Anschluss2(rasterX, rasterY);
        }
        d.cboPartnerschaftsLinien.Ersetzen(i, linie.Text());
    }
}

void BalkenMitbewegen(Dokument &d, const Bezüge &bezüge, const Satzliste &nummern, double dx, double dy) {
    for (const auto &nr : nummern) {
        const int i = bezüge.PLinie(nr);
        if (i < 0) continue;
        PartnerschaftBau linie(d.cboPartnerschaftsLinien.Satz(i));
        d.cboPartnerschaftsLinien.Ersetzen(i, linie.BalkenVerschieben(dx, dy).Text());
        for (const int kind : bezüge.KinderVon(nr))
            d.cboKindlinien.Ersetzen(kind, KindBau(d.cboKindlinien.Satz(kind)).LinieVerschieben(dx, dy).Text());
    }
}

void Bez_LinieAnpassen(Werkbank &w, std::string_view beziehungsart) {
    Satzliste &linien = w.dokument.cboBeziehungsLinien;
    const int i = w.lage.BezAuswahl;
    if (!Gültig(linien, i)) return;
    linien.Ersetzen(i, BeziehungBau(linien.Satz(i)).Beziehungsart(beziehungsart).Text());
    LinieAngepasst(w);
}

void P_LinieAnpassen(Werkbank &w, std::string_view distanziert, std::string_view status, std::string_view daten) {
    Satzliste &linien = w.dokument.cboPartnerschaftsLinien;
    const int i = w.lage.PLinieAuswahl;
    if (!Gültig(linien, i)) return;
    PartnerschaftBau linie(linien.Satz(i));
    linien.Ersetzen(i, linie.Distanziert(distanziert).Status(status).Daten(daten).Text());
    LinieAngepasst(w);
}

void PLinieLöschen(Werkbank &w) {
    if (!Gültig(w.dokument.cboPartnerschaftsLinien, w.lage.PLinieAuswahl)) return;
    PartnerschaftEntfernen(w.dokument, w.lage.PLinieAuswahl);
    w.auswahl.lstMovedPLines.Leeren();
    Gummi1Parken(w.auflagen);
    LöschenAbschließen(w);
}

void BezLinieLöschen(Werkbank &w) {
    if (!Gültig(w.dokument.cboBeziehungsLinien, w.lage.BezAuswahl)) return;
    w.dokument.cboBeziehungsLinien.Entfernen(w.lage.BezAuswahl);
    LöschenAbschließen(w);
}

} // namespace kw
