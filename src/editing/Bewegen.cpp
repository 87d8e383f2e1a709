#include "editing/Bewegen.h"

#include "document/saetze/Kreislinie.h"
#include "editing/Kinder.h"
#include "editing/Marker.h"
#include "editing/Satzbau.h"
#include "editing/Treffer.h"

#include <algorithm>
#include <optional>

namespace kw {

namespace {

/// Person whose lines follow it.
struct Bewegter {
    std::string_view Nr;
    double X, Y;
};

void BeziehungenBewegen(Dokument &d, const Bezüge &bezüge, const Bewegter &p) {
    for (const int i : bezüge.Beziehungen(p.Nr)) {
        Feldbau satz(d.cboBeziehungsLinien.Satz(i), BezFeld::Anzahl);
        const bool erste = satz.Feld(BezFeld::PersNr1) == p.Nr;
        satz.Setzen(erste ? BezFeld::LinieX1 : BezFeld::LinieX2, Gerundet(p.X, 2));
        satz.Setzen(erste ? BezFeld::LinieY1 : BezFeld::LinieY2, Gerundet(p.Y, 2));
        d.cboBeziehungsLinien.Ersetzen(i, satz.TextOhneBlanks());
    }
}

/// The bar's new height when a group takes it along: the bar as it stands before this step must lie within the
/// frame as it stands after the move. A bar that is selected itself has then moved already, and moves twice. Meant.
std::optional<double> BalkenInDerGruppe(const Werkbank &w, const Feldbau &satz) {
    if (w.lage.Aktion != Aktion::GruppeGewählt) return std::nullopt;
    const Auflagenform &rahmen = w.auflagen.shpBox;
    const double x1 = satz.Zahl(PLinieFeld::BalkenX1) + w.lage.DeltaX;
    const double x2 = satz.Zahl(PLinieFeld::BalkenX2) + w.lage.DeltaX;
    if (Kleiner(x1, rahmen.Left) || Kleiner(rahmen.Left + rahmen.Width, x2)) return std::nullopt;
    return Gerundet(satz.Zahl(PLinieFeld::BalkenY1) + w.lage.DeltaY, 1);
}

void PartnerschaftenBewegen(Werkbank &w, const Bezüge &bezüge, const Bewegter &p) {
    Dokument &d = w.dokument;
    const double raster = w.ansicht.Rasterweite;
    const double x = Gerundet(Gerastert(p.X, raster), 1);
    const double y = Gerundet(Gerastert(p.Y, raster), 1);
    for (const int i : bezüge.Partnerschaften(p.Nr)) {
        Feldbau satz(d.cboPartnerschaftsLinien.Satz(i), PLinieFeld::Anzahl);
        if (satz.Feld(PLinieFeld::PersNr1) == p.Nr) {
            const auto balkenY = BalkenInDerGruppe(w, satz);
            satz.Setzen(PLinieFeld::BalkenX1, x);
            satz.Setzen(PLinieFeld::AnschlussY1, y).Setzen(PLinieFeld::AnschlussX1, x);
            if (balkenY) satz.Setzen(PLinieFeld::BalkenY1, *balkenY).Setzen(PLinieFeld::BalkenY2, *balkenY);
        } else { // the bar's height follows the first partner only
            satz.Setzen(PLinieFeld::BalkenX2, x);
            satz.Setzen(PLinieFeld::AnschlussY2, y).Setzen(PLinieFeld::AnschlussX2, x);
        }
        d.cboPartnerschaftsLinien.Ersetzen(i, satz.Text());
        KinderAnpassen(d, bezüge, satz.Feld(PLinieFeld::Nr), satz.Zahl(PLinieFeld::BalkenX1),
                       satz.Zahl(PLinieFeld::BalkenX2), satz.Zahl(PLinieFeld::BalkenY2));
    }
}

double PosX(const Dokument &d, int person) {
    return ZahlLesen(Felder(d.cboPersonen.Satz(person)).OderLeer(PersonFeld::PosX));
}

/// The middle between a person and its twin; nothing when it has none that exists.
std::optional<double> ZwillingsMitte(const Dokument &d, const Bezüge &bezüge, int person) {
    const std::string nr = ZwillingNr(Felder(d.cboPersonen.Satz(person)).OderLeer(PersonFeld::Zwilling));
    const int anderer = nr.empty() ? -1 : bezüge.Person(nr);
    if (anderer < 0) return std::nullopt;
    return (PosX(d, person) + PosX(d, anderer)) / 2;
}

std::pair<double, double> BereichVon(const Dokument &d, const Bezüge &bezüge, const Feldbau &kindlinie, double sonst) {
    const int linie = bezüge.PLinie(kindlinie.Feld(KindFeld::PLinie));
    return linie < 0 ? std::pair(sonst, sonst) : Balkenbereich(d.cboPartnerschaftsLinien.Satz(linie));
}

void AlsKindBewegen(Dokument &d, const Bezüge &bezüge, const Bewegter &p) {
    const int i = bezüge.Kindlinie(p.Nr);
    if (i < 0 || Felder(d.cboKindlinien.Satz(i)).Anzahl() < KindFeld::Anzahl) return;
    Feldbau satz(d.cboKindlinien.Satz(i), KindFeld::Anzahl);
    const auto [links, rechts] = BereichVon(d, bezüge, satz, satz.Zahl(KindFeld::LinieX));
    satz.Setzen(KindFeld::KindX, Gerundet(p.X, 2)).Setzen(KindFeld::KindY, Gerundet(p.Y, 2));
    satz.Setzen(KindFeld::LinieX, Gerundet(std::clamp(p.X, links, rechts), 2));
    d.cboKindlinien.Ersetzen(i, satz.TextOhneBlanks());

    // Twins' lines meet at one point of the bar.
    const int person = bezüge.Person(p.Nr);
    const auto mitte = person < 0 ? std::nullopt : ZwillingsMitte(d, bezüge, person);
    if (!mitte) return;
    const std::string anderer = ZwillingNr(Felder(d.cboPersonen.Satz(person))[PersonFeld::Zwilling]);
    for (const int linie : {i, bezüge.Kindlinie(anderer)}) {
        if (linie < 0) continue;
        Feldbau zwilling(d.cboKindlinien.Satz(linie), KindFeld::Anzahl);
        zwilling.Setzen(KindFeld::LinieX, Gerundet(std::clamp(*mitte, links, rechts), 2));
        d.cboKindlinien.Ersetzen(linie, zwilling.TextOhneBlanks());
    }
}

/// Shifts the selected partnership lines, and their children's lines, by the way of the group.
void GruppeLinien(Werkbank &w, const Bezüge &bezüge) {
    Dokument &d = w.dokument;
    for (const auto &nr : w.auswahl.lstMovedPLines) {
        const int i = bezüge.PLinie(nr);
        if (i < 0) continue;
        Feldbau satz(d.cboPartnerschaftsLinien.Satz(i), PLinieFeld::Anzahl);
        satz.Erhöhen(PLinieFeld::BalkenX1, w.lage.DeltaX).Erhöhen(PLinieFeld::BalkenX2, w.lage.DeltaX);
        satz.Erhöhen(PLinieFeld::BalkenY1, w.lage.DeltaY).Erhöhen(PLinieFeld::BalkenY2, w.lage.DeltaY);
        d.cboPartnerschaftsLinien.Ersetzen(i, satz.Text());
        for (const int kind : bezüge.KinderVon(nr)) {
            Feldbau linie(d.cboKindlinien.Satz(kind), KindFeld::Anzahl);
            linie.Erhöhen(KindFeld::LinieX, w.lage.DeltaX).Erhöhen(KindFeld::LinieY, w.lage.DeltaY);
            d.cboKindlinien.Ersetzen(kind, linie.Text());
        }
    }
}

/// Adds the way to two number fields; on the raster when there is one.
void Verschieben(Feldbau &satz, int feldX, int feldY, const Leinwandlage &lage, double raster) {
    const auto neu = [&](int feld, double um) {
        const double summe = satz.Zahl(feld) + um;
        satz.Setzen(feld, raster > 0 ? Gerundet(Gerastert(summe, raster), 1) : summe);
    };
    neu(feldX, lage.DeltaX);
    neu(feldY, lage.DeltaY);
}

void GruppePersonen(Werkbank &w, const Bezüge &bezüge) {
    Leinwandlage &lage = w.lage;
    Satzliste &personen = w.dokument.cboPersonen;
    for (const auto &nr : w.auswahl.lstMovedPers) {
        const int i = bezüge.Person(nr);
        if (i < 0 || Felder(personen.Satz(i)).Anzahl() < PersonFeld::Anzahl) continue;
        Feldbau satz(personen.Satz(i), PersonFeld::Anzahl);
        Verschieben(satz, PersonFeld::PosX, PersonFeld::PosY, lage, w.ansicht.Rasterweite);
        personen.Ersetzen(i, satz.Text());
        lage.PersNr = satz.Feld(PersonFeld::Nr);
        lage.NeuX = satz.Zahl(PersonFeld::PosX);
        lage.NeuY = satz.Zahl(PersonFeld::PosY);
        ElementeBewegen(w, bezüge);
    }
}

/// Position of a list's entry in its store, which counts from `erste`; -1 when it has none.
int Position(const std::string &eintrag, const Satzliste &speicher, int erste) {
    const int i = Ganzzahl16(ZahlLesen(eintrag)) - erste;
    return i >= 0 && i < speicher.Anzahl() ? i : -1;
}

void GruppeÜbrige(Werkbank &w) {
    Dokument &d = w.dokument;
    for (const auto &eintrag : w.auswahl.lstMovedText) {
        const int i = Position(eintrag, d.cboTextboxen, 0);
        if (i < 0) continue;
        Feldbau satz(d.cboTextboxen.Satz(i), std::min(Felder(d.cboTextboxen.Satz(i)).Anzahl(), Felder::Höchstzahl));
        Verschieben(satz, TextFeld::TextX, TextFeld::TextY, w.lage, w.ansicht.Rasterweite);
        d.cboTextboxen.Ersetzen(i, satz.Text());
    }
    for (const auto &eintrag : w.auswahl.lstMovedKreisLinien) {
        const int i = Position(eintrag, d.cboFreehandlines, 1);
        if (i < 0) continue;
        d.cboFreehandlines.Ersetzen(i, KreisVerschoben(d.cboFreehandlines.Satz(i), w.lage.DeltaX, w.lage.DeltaY));
    }
    for (const auto &eintrag : w.auswahl.lstMovedPfeile) {
        const int i = Position(eintrag, d.cboPfeile, 0);
        if (i < 0) continue;
        Feldbau satz(d.cboPfeile.Satz(i), PfeilFeld::Anzahl);
        Verschieben(satz, PfeilFeld::PfeilX1, PfeilFeld::PfeilY1, w.lage, 0);
        Verschieben(satz, PfeilFeld::PfeilX2, PfeilFeld::PfeilY2, w.lage, 0);
        d.cboPfeile.Ersetzen(i, satz.Text());
    }
}

} // namespace

void KinderAnpassen(Dokument &d, const Bezüge &bezüge, std::string_view plinie, double x1, double x2, double balkenY) {
    const auto [links, rechts] = std::minmax(x1, x2);
    for (const int i : bezüge.KinderVon(plinie)) {
        Feldbau satz(d.cboKindlinien.Satz(i), KindFeld::Anzahl);
        const int person = bezüge.Person(satz.Feld(KindFeld::KindNr));
        const auto mitte = person < 0 ? std::nullopt : ZwillingsMitte(d, bezüge, person);
        const double x = mitte.value_or(satz.Zahl(KindFeld::KindX));
        satz.Setzen(KindFeld::LinieX, Gerundet(std::clamp(x, links, rechts), 2)).Setzen(KindFeld::LinieY, balkenY);
        d.cboKindlinien.Ersetzen(i, satz.TextOhneBlanks());
    }
}

void ElementeBewegen(Werkbank &w, const Bezüge &bezüge) {
    const Bewegter person{w.lage.PersNr, w.lage.NeuX, w.lage.NeuY};
    BeziehungenBewegen(w.dokument, bezüge, person);
    PartnerschaftenBewegen(w, bezüge, person);
    AlsKindBewegen(w.dokument, bezüge, person);
    MarkerParken(w);
}

void GruppeBewegen(Werkbank &w) {
    Leinwandlage &lage = w.lage;
    w.bedienung["mnuLöschen1"].Enabled = w.bedienung["mnuAusschneiden"].Enabled = true;
    // Half a tenth is no way: a frame between two tenths mustn't creep with each click.
    lage.DeltaX = Gerundet(Gerundet(w.auflagen.shpBox.Left - lage.AltX, 6), 1);
    lage.DeltaY = Gerundet(Gerundet(w.auflagen.shpBox.Top - lage.AltY, 6), 1);
    if (w.auswahl.Leer() || (lage.DeltaX == 0 && lage.DeltaY == 0)) return;
    const Bezüge bezüge(w.dokument);
    GruppeLinien(w, bezüge);
    GruppePersonen(w, bezüge);
    GruppeÜbrige(w);
    w.fenster.Vorschau();
    w.fenster.Sichern();
}

bool BalkenBewegen(Werkbank &w) {
    Dokument &d = w.dokument;
    const int i = w.lage.PLinieAuswahl;
    if (i < 0 || i >= d.cboPartnerschaftsLinien.Anzahl()) return false;
    const Auflagenlinie &linie = w.auflagen.Line1;
    const double y = Gerundet(linie.Y1, 2);
    Feldbau satz(d.cboPartnerschaftsLinien.Satz(i), PLinieFeld::Anzahl);
    if (satz.Zahl(PLinieFeld::BalkenY1) == y && satz.Zahl(PLinieFeld::BalkenY2) == y) return false;
    satz.Setzen(PLinieFeld::BalkenX1, Gerundet(linie.X1, 2)).Setzen(PLinieFeld::BalkenX2, Gerundet(linie.X2, 2));
    satz.Setzen(PLinieFeld::BalkenY1, y).Setzen(PLinieFeld::BalkenY2, y);
    d.cboPartnerschaftsLinien.Ersetzen(i, satz.Text());
    for (int kind = 0; kind < d.cboKindlinien.Anzahl(); ++kind) {
        if (Felder(d.cboKindlinien.Satz(kind)).OderLeer(KindFeld::PLinie) != satz.Feld(PLinieFeld::Nr)) continue;
        Feldbau kindlinie(d.cboKindlinien.Satz(kind), KindFeld::Anzahl);
        d.cboKindlinien.Ersetzen(kind, kindlinie.Setzen(KindFeld::LinieY, y).Text());
    }
    return true;
}

namespace {

void LinieAngepasst(Werkbank &w) {
    w.lage.Aktion = Aktion::Nichts;
    Gummi1Parken(w);
    w.fenster.Vorschau();
    w.fenster.Sichern();
}

} // namespace

void Bez_LinieAnpassen(Werkbank &w, std::string_view beziehungsart) {
    Satzliste &linien = w.dokument.cboBeziehungsLinien;
    const int i = w.lage.BezAuswahl;
    if (i < 0 || i >= linien.Anzahl()) return;
    Feldbau satz(linien.Satz(i), BezFeld::Anzahl);
    linien.Ersetzen(i, satz.Setzen(BezFeld::Beziehungsart, beziehungsart).Text());
    LinieAngepasst(w);
}

void P_LinieAnpassen(Werkbank &w, std::string_view distanziert, std::string_view status, std::string_view daten) {
    Satzliste &linien = w.dokument.cboPartnerschaftsLinien;
    const int i = w.lage.PLinieAuswahl;
    if (i < 0 || i >= linien.Anzahl()) return;
    Feldbau satz(linien.Satz(i), PLinieFeld::Anzahl);
    satz.Setzen(PLinieFeld::Distanziert, distanziert).Setzen(PLinieFeld::Status, status);
    linien.Ersetzen(i, satz.Setzen(PLinieFeld::Daten, daten).Text());
    LinieAngepasst(w);
}

} // namespace kw
