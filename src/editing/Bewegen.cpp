#include "editing/Bewegen.h"

#include "document/saetze/Kreislinie.h"
#include "document/saetze/Partnerschaft.h"
#include "editing/Kinder.h"
#include "editing/Linien.h"
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

void ElementeBewegen(Werkbank &w, const Bezüge &bezüge) {
    Dokument &d = w.dokument;
    const Bewegter person{w.lage.PersNr, w.lage.NeuX, w.lage.NeuY};
    const Auflagenform &rahmen = w.auflagen.shpBox;
    std::optional<Balkenmitnahme> gruppe;
    if (w.lage.Aktion == Aktion::GruppeGewählt)
        gruppe = {w.lage.DeltaX, w.lage.DeltaY, rahmen.Left, rahmen.Left + rahmen.Width};
    LinienNachziehen(d, bezüge, person.Nr, person.X, person.Y, w.ansicht.Rasterweite, gruppe);
    for (const int i : bezüge.Partnerschaften(person.Nr)) KinderAnpassen(d, bezüge, d.cboPartnerschaftsLinien.Satz(i));
    KindlinieNachziehen(d, bezüge, person.Nr, person.X, person.Y);
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
    BalkenMitbewegen(w.dokument, bezüge, w.auswahl.lstMovedPLines, lage.DeltaX, lage.DeltaY);
    GruppePersonen(w, bezüge);
    GruppeÜbrige(w);
    w.fenster.Vorschau();
    w.fenster.Sichern();
}

} // namespace kw
