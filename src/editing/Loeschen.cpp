#include "editing/Loeschen.h"

#include "document/Verweise.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Linien.h"
#include "editing/Marker.h"
#include "editing/Pfeile.h"
#include "editing/Satzbau.h"
#include "editing/Texte.h"

namespace kw {

namespace {

/// Removes the records at a list's positions, from its last entry on; the store counts from `erste`.
void StellenEntfernen(Satzliste &speicher, Satzliste &liste, int erste) {
    for (int e = liste.Anzahl() - 1; e >= 0; --e) {
        const int i = Ganzzahl16(ZahlLesen(liste.Satz(e))) - erste;
        if (i >= 0 && i < speicher.Anzahl()) speicher.Entfernen(i);
    }
    liste.Leeren();
}

void GruppenPersonenLöschen(Werkbank &w) {
    const Satzliste personen = w.auswahl.lstMovedPers;
    for (int i = personen.Anzahl() - 1; i >= 0; --i) {
        w.lage.ElementArt = "Person";
        w.lage.PersNr = personen.Satz(i);
        SymbolLöschen(w);
    }
}

} // namespace

void SymbolLöschen(Werkbank &w) {
    if (w.lage.ElementArt == "Textbox") return LetzteTextboxLöschen(w);
    if (w.dokument.cboPersonen.Leer()) return;
    const int vorher = w.dokument.cboPersonen.Anzahl();
    if (PersonEntfernen(w.dokument, w.lage.PersNr)) w.auflagen.shpMask.Parken();
    PositionenVergessen(w.lage);
    if (w.lage.Aktion == Aktion::GruppeGewählt || w.lage.Aktion == Aktion::PersonGewählt) return;
    w.fenster.Vorschau();
    if (w.dokument.cboPersonen.Anzahl() < vorher) w.fenster.Sichern();
}

void AuswahlLöschen(Werkbank &w) {
    Dokument &d = w.dokument;
    const int vorher = Satzzahl(d);
    StellenEntfernen(d.cboFreehandlines, w.auswahl.lstMovedKreisLinien, 1);
    StellenEntfernen(d.cboTextboxen, w.auswahl.lstMovedText, 0);
    StellenEntfernen(d.cboPfeile, w.auswahl.lstMovedPfeile, 0);
    PositionenVergessen(w.lage);
    GruppenPersonenLöschen(w);
    AuswahlrahmenParken(w);
    if (Satzzahl(d) < vorher) w.fenster.Sichern();
    w.fenster.Vorschau();
    w.lage.Aktion = Aktion::Nichts;
}

void mnuLöschen1(Werkbank &w) {
    struct Weg {
        kw::Aktion Aktion;
        void (*Löschen)(Werkbank &);
    };
    static constexpr Weg Wege[] = {
        {Aktion::KindlinieGewählt, KindLinieEntfernen},
        {Aktion::KreisGewählt, KreisLinieLöschen},
        {Aktion::BeziehungGewählt, BezLinieLöschen},
        {Aktion::PLinieGewählt, PLinieLöschen},
        {Aktion::TextGewählt, TextLöschen},
        {Aktion::PfeilGewählt, PfeilLöschen},
    };
    w.lage.Info.Visible = false;
    const auto weg =
        std::find_if(std::begin(Wege), std::end(Wege), [&](const Weg &g) { return g.Aktion == w.lage.Aktion; });
    if (weg != std::end(Wege)) {
        weg->Löschen(w);
    } else {
        w.lage.Aktion = Aktion::GruppeGewählt;
        AuswahlLöschen(w);
        MarkierungsListBoxenLöschen(w);
    }
    w.bedienung["mnuLöschen1"].Enabled = false;
}

void mnuSymbolLöschen(Werkbank &w) {
    w.lage.Info.Visible = false;
    SymbolLöschen(w);
    MarkierungsListBoxenLöschen(w);
    MarkerEntfernen(w);
    w.lage.Aktion = Aktion::Nichts;
    w.auflagen.shpMask.Visible = false;
    w.bedienung["mnuLöschen1"].Enabled = false;
}

void cmdDelete(Werkbank &w) {
    if (w.lage.Aktion != Aktion::GruppeGewählt) return;
    Dokument &d = w.dokument;
    const int vorher = Satzzahl(d);
    StellenEntfernen(d.cboFreehandlines, w.auswahl.lstMovedKreisLinien, 1);
    StellenEntfernen(d.cboTextboxen, w.auswahl.lstMovedText, 0);
    PositionenVergessen(w.lage);
    GruppenPersonenLöschen(w);
    for (const auto &nr : w.auswahl.lstMovedPLines) PartnerschaftAlleinEntfernen(d, nr);
    AuswahlrahmenParken(w);
    MarkierungsListBoxenLöschen(w);
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    if (Satzzahl(d) < vorher) w.fenster.Sichern();
}

} // namespace kw
