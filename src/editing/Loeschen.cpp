#include "editing/Loeschen.h"

#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Marker.h"
#include "editing/Pfeile.h"
#include "editing/Satzbau.h"
#include "editing/Texte.h"

namespace kw {

namespace {

/// Removes, from the end, the records of at least `felder` fields that `passt`.
template <typename Passt> void Entfernen(Satzliste &speicher, int felder, Passt passt) {
    for (int i = speicher.Anzahl() - 1; i >= 0; --i) {
        const Felder feld(speicher.Satz(i));
        if (feld.Anzahl() >= felder && passt(feld)) speicher.Entfernen(i);
    }
}

/// Removes the records at a list's positions, from its last entry on; the store counts from `erste`.
void StellenEntfernen(Satzliste &speicher, Satzliste &liste, int erste) {
    for (int e = liste.Anzahl() - 1; e >= 0; --e) {
        const int i = Ganzzahl16(ZahlLesen(liste.Satz(e))) - erste;
        if (i >= 0 && i < speicher.Anzahl()) speicher.Entfernen(i);
    }
    liste.Leeren();
}

/// The relationship records that join a pair of twins.
void ZwillingsbandEntfernen(Dokument &d, std::string_view a, std::string_view b) {
    Entfernen(d.cboBeziehungsLinien, BezFeld::Anzahl, [&](const Felder &f) {
        const auto eins = f[BezFeld::PersNr1];
        const auto zwei = f[BezFeld::PersNr2];
        return (eins == a && zwei == b) || (eins == b && zwei == a);
    });
}

/// Removes the partnership at `linie` with its children's lines; the children stay where they are.
void PartnerschaftEntfernen(Dokument &d, int linie) {
    const std::string nr = d.cboPartnerschaftsLinien.Satz(linie).substr(0, 3);
    Entfernen(d.cboKindlinien, KindFeld::Anzahl, [&](const Felder &f) { return f[KindFeld::PLinie] == nr; });
    for (int i = 0; i < d.cboPersonen.Anzahl(); ++i) {
        if (d.cboPersonen.Satz(i).find(nr) == std::string::npos) continue; // spares splitting nearly all of them
        const Felder feld(d.cboPersonen.Satz(i));
        if (feld.OderLeer(PersonFeld::ElternLinie) != nr) continue;
        const auto zwilling = feld.OderLeer(PersonFeld::Zwilling);
        if (zwilling.starts_with("1E")) ZwillingsbandEntfernen(d, feld[PersonFeld::Nr], zwilling.substr(2));
        Feldbau satz(d.cboPersonen.Satz(i), PersonFeld::Anzahl);
        satz.Setzen(PersonFeld::ElternLinie, "").Setzen(PersonFeld::Zwilling, "");
        d.cboPersonen.Ersetzen(i, satz.Text());
    }
    d.cboPartnerschaftsLinien.Entfernen(linie);
    d.lstGelöschtePLinien.Anhängen(nr);
}

/// Equal in value: "002" is "2". Three digits, as nearly all numbers are, need no reading.
bool NummernGleich(std::string_view a, std::string_view b) {
    constexpr size_t Üblich = 3;
    return a == b || ((a.size() != Üblich || b.size() != Üblich) && ZahlLesen(a) == ZahlLesen(b));
}

/// Removes person `nr` and every record that names it. Numbers of lines' ends are compared by value.
void PersonEntfernen(Werkbank &w, const std::string &nr) {
    Dokument &d = w.dokument;
    const int person = PersonMitNr(d, nr);
    if (person < 0) return; // no such person: its number must not become free twice
    const auto genannt = [&](const Felder &f, int eins, int zwei) {
        return NummernGleich(f[eins], nr) || NummernGleich(f[zwei], nr);
    };
    Entfernen(d.cboBeziehungsLinien, BezFeld::Anzahl,
              [&](const Felder &f) { return genannt(f, BezFeld::PersNr1, BezFeld::PersNr2); });
    for (int i = d.cboPartnerschaftsLinien.Anzahl() - 1; i >= 0; --i) {
        const Felder feld(d.cboPartnerschaftsLinien.Satz(i));
        if (feld.Anzahl() >= PLinieFeld::Anzahl && genannt(feld, PLinieFeld::PersNr1, PLinieFeld::PersNr2))
            PartnerschaftEntfernen(d, i);
    }
    Entfernen(d.cboKindlinien, KindFeld::Anzahl,
              [&](const Felder &f) { return NummernGleich(f[KindFeld::KindNr], nr); });
    d.lstGelöschtePersNr.Anhängen(nr);

    const std::string zwilling = ZwillingNr(Felder(d.cboPersonen.Satz(person)).OderLeer(PersonFeld::Zwilling));
    d.cboPersonen.Entfernen(person);
    const int anderer = zwilling.empty() ? -1 : PersonMitNr(d, zwilling);
    if (anderer >= 0) {
        Feldbau satz(d.cboPersonen.Satz(anderer), PersonFeld::Anzahl);
        d.cboPersonen.Ersetzen(anderer, satz.Setzen(PersonFeld::Zwilling, "").Text());
    }
    w.auflagen.shpMask.Parken();
}

/// Records of all stores: fewer of them tell that something was deleted.
int Sätze(const Dokument &d) {
    int summe = 0;
    for (const SpeicherZeile &zeile : SpeicherTabelle) summe += (d.*zeile.Liste).Anzahl();
    return summe;
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
    PersonEntfernen(w, w.lage.PersNr);
    PositionenVergessen(w.lage);
    if (w.lage.Aktion == Aktion::GruppeGewählt || w.lage.Aktion == Aktion::PersonGewählt) return;
    w.fenster.Vorschau();
    if (w.dokument.cboPersonen.Anzahl() < vorher) w.fenster.Sichern();
}

void PLinieLöschen(Werkbank &w) {
    if (!Gültig(w.dokument.cboPartnerschaftsLinien, w.lage.PLinieAuswahl)) return;
    PartnerschaftEntfernen(w.dokument, w.lage.PLinieAuswahl);
    w.auswahl.lstMovedPLines.Leeren();
    Gummi1Parken(w);
    LöschenAbschließen(w);
}

void BezLinieLöschen(Werkbank &w) {
    if (!Gültig(w.dokument.cboBeziehungsLinien, w.lage.BezAuswahl)) return;
    w.dokument.cboBeziehungsLinien.Entfernen(w.lage.BezAuswahl);
    LöschenAbschließen(w);
}

void AuswahlLöschen(Werkbank &w) {
    Dokument &d = w.dokument;
    const int vorher = Sätze(d);
    StellenEntfernen(d.cboFreehandlines, w.auswahl.lstMovedKreisLinien, 1);
    StellenEntfernen(d.cboTextboxen, w.auswahl.lstMovedText, 0);
    StellenEntfernen(d.cboPfeile, w.auswahl.lstMovedPfeile, 0);
    PositionenVergessen(w.lage);
    GruppenPersonenLöschen(w);
    AuswahlrahmenParken(w);
    if (Sätze(d) < vorher) w.fenster.Sichern();
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
    const int vorher = Sätze(d);
    StellenEntfernen(d.cboFreehandlines, w.auswahl.lstMovedKreisLinien, 1);
    StellenEntfernen(d.cboTextboxen, w.auswahl.lstMovedText, 0);
    PositionenVergessen(w.lage);
    GruppenPersonenLöschen(w);
    for (const auto &nr : w.auswahl.lstMovedPLines) {
        const int linie = PLinieMitNr(d, nr);
        if (linie >= 0) d.cboPartnerschaftsLinien.Entfernen(linie);
        Entfernen(d.cboKindlinien, KindFeld::Anzahl, [&](const Felder &f) { return f[KindFeld::PLinie] == nr; });
    }
    AuswahlrahmenParken(w);
    MarkierungsListBoxenLöschen(w);
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    if (Sätze(d) < vorher) w.fenster.Sichern();
}

} // namespace kw
