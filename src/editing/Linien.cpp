#include "editing/Linien.h"

#include "document/Verweise.h"
#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "editing/Absagen.h"
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

/// A line's end that stays with a person.
template <typename Bau> using Endschreiber = void (*)(Bau &, double x, double y);

void BalkenEnde1(PartnerschaftBau &l, double x, double y) { l.BalkenX1(x).Anschluss1(x, y); }
void BalkenEnde2(PartnerschaftBau &l, double x, double y) { l.BalkenX2(x).Anschluss2(x, y); }
void BeziehungEnde1(BeziehungBau &l, double x, double y) { l.Ende1(x, y); }
void BeziehungEnde2(BeziehungBau &l, double x, double y) { l.Ende2(x, y); }

/// Shifts the lines of a store that lie within the group, and puts the one end of others at its person.
template <typename Satz, typename Bau>
void Mitbewegen(Satzliste &linien, const Dokument &d, const Nummernverzeichnis &personen, const Gruppenzug &zug,
                Endschreiber<Bau> ende1, Endschreiber<Bau> ende2) {
    for (int i = 0; i < linien.Anzahl(); ++i) {
        const Satz linie(linien.Satz(i));
        if (!linie.Vollständig()) continue;
        const bool erster = zug.Nimmt(linie.PersNr1());
        const bool zweiter = zug.Nimmt(linie.PersNr2());
        if (!erster && !zweiter) continue;
        Bau neu(linien.Satz(i));
        if (erster && zweiter) {
            neu.Verschieben(zug.DeltaX, zug.DeltaY);
        } else {
            const int person = personen.Position(erster ? linie.PersNr1() : linie.PersNr2());
            if (person < 0) continue;
            const PersonSatz p(d.cboPersonen.Satz(person), Lücken::Leer);
            (erster ? ende1 : ende2)(neu, Gerundet(p.PosX(), 2), Gerundet(p.PosY(), 2));
        }
        linien.Ersetzen(i, neu.Text());
    }
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

bool BezLinieGetroffen(std::string_view satz, double x, double y) {
    const BeziehungSatz linie(satz);
    return linie.Vollständig() &&
           SegmentGetroffen(linie.LinieX1(), linie.LinieY1(), linie.LinieX2(), linie.LinieY2(), x, y);
}

bool PLinieGetroffen(std::string_view satz, double x, double y) {
    const PartnerschaftSatz linie(satz);
    return linie.Vollständig() &&
           AchsenlinieGetroffen(linie.BalkenX1(), linie.BalkenY1(), linie.BalkenX2(), linie.BalkenY2(), x, y);
}

int BezLinieBei(const Dokument &d, double x, double y) {
    return ErsterSatz(d.cboBeziehungsLinien, [&](const std::string &satz) { return BezLinieGetroffen(satz, x, y); });
}

int PLinieBei(const Dokument &d, double x, double y) {
    return ErsterSatz(d.cboPartnerschaftsLinien, [&](const std::string &satz) { return PLinieGetroffen(satz, x, y); });
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
    if (i >= 0) BezLinieFassen(w, i);
    return i >= 0;
}

void BezLinieFassen(Werkbank &w, int position) {
    w.lage.BezAuswahl = position;
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.lage.Aktion = Aktion::BeziehungGewählt;
    w.lage.Angebot.Löschen = true;
    w.fenster.Vorschau();
}

bool PLinieTreffer(Werkbank &w, double x, double y) {
    w.auswahl.lstMovedPLines.Leeren();
    const int i = PLinieBei(w.dokument, x, y);
    if (i >= 0) PLinieFassen(w, i);
    return i >= 0;
}

void PLinieFassen(Werkbank &w, int position) {
    w.lage.PLinieAuswahl = position;
    w.lage.LinieVerschoben = false;
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.auswahl.lstMovedPLines.Anhängen(std::to_string(position + 1));
    if (w.lage.Aktion == Aktion::KindZiehen) return; // a link gesture goes on
    w.lage.Aktion = Aktion::PLinieGewählt;
    w.fenster.Vorschau();
}

void BalkenZiehen(Werkbank &w, const Ereignis &e) {
    const PartnerschaftSatz linie(w.dokument.cboPartnerschaftsLinien.Satz(w.lage.PLinieAuswahl));
    const double y = RasterY(w.ansicht, e.Y);
    w.auflagen.Line1.Legen(linie.BalkenX1(), y, linie.BalkenX2(), y);
    w.auflagen.Line1.Visible = true;
    w.lage.LinieVerschoben = true;
}

void BalkenLoslassen(Werkbank &w, const Ereignis &e) {
    const bool gezogen = std::exchange(w.lage.LinieVerschoben, false);
    const bool verschoben = gezogen && BalkenBewegen(w.dokument, w.lage.PLinieAuswahl, w.auflagen.Line1);
    if (gezogen && !verschoben && HatSichBewegt(w.lage, e)) w.lage.Hinweis = &Absage::NurSenkrecht;
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

void LinienNachziehen(Dokument &d, const Bezüge &bezüge, std::string_view nr, double x, double y, double raster) {
    BeziehungenNachziehen(d, bezüge, {nr, x, y});
    const double rasterX = Gerundet(Gerastert(x, raster), 1);
    const double rasterY = Gerundet(Gerastert(y, raster), 1);
    for (const int i : bezüge.Partnerschaften(nr)) {
        PartnerschaftBau linie(d.cboPartnerschaftsLinien.Satz(i));
        (linie.Stand().PersNr1() == nr ? BalkenEnde1 : BalkenEnde2)(linie, rasterX, rasterY);
        d.cboPartnerschaftsLinien.Ersetzen(i, linie.Text());
    }
}

void LinienMitbewegen(Dokument &d, const Gruppenzug &zug) {
    const Nummernverzeichnis personen(d.cboPersonen);
    Mitbewegen<BeziehungSatz, BeziehungBau>(d.cboBeziehungsLinien, d, personen, zug, BeziehungEnde1, BeziehungEnde2);
    Mitbewegen<PartnerschaftSatz, PartnerschaftBau>(d.cboPartnerschaftsLinien, d, personen, zug, BalkenEnde1,
                                                    BalkenEnde2);
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
