#include "editing/Zwischenablage.h"

#include "document/Nachschlagen.h"
#include "document/Nummernvergabe.h"
#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "editing/Abwahl.h"
#include "editing/Gruppe.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Marker.h"
#include "editing/Personen.h"
#include "editing/Pfeile.h"
#include "editing/Texte.h"
#include "editing/Werkbank.h"
#include "platform/Benutzer.h"
#include "platform/Sprache.h"

#include <map>
#include <unordered_set>
#include <utility>

namespace kw {

namespace {

constexpr double Versatz = 0.3; ///< of each further copy, right and down, cm

/// Kinds without a number.
constexpr const Gruppenart *Arten[] = {&TexteInGruppen, &KreislinienInGruppen, &PfeileInGruppen};

using Nummern = std::map<std::string, std::string, std::less<>>;

/// Every record of `liste` rewritten by `ändern`.
template <typename Bau, typename Ändern> void Umschreiben(Satzliste &liste, Ändern ändern) {
    for (int i = 0; i < liste.Anzahl(); ++i) {
        Bau satz(liste.Satz(i));
        ändern(satz);
        liste.Ersetzen(i, satz.Text());
    }
}

/// Partnership lines go along only with both their partners.
void PartnerschaftenKopieren(const Dokument &d, const Auswahl &auswahl, Zwischenablage &za) {
    const auto gewählt = NummernIn(auswahl.lstMovedPers);
    std::unordered_set<std::string> schon; // a number that stands twice finds the same record again
    for (const auto &nr : auswahl.lstMovedPLines) {
        const int i = PLinieMitNr(d, nr);
        if (i < 0 || !schon.insert(nr).second) continue;
        const PartnerschaftSatz linie(d.cboPartnerschaftsLinien.Satz(i), Lücken::Leer);
        if (gewählt.contains(linie.PersNr1()) && gewählt.contains(linie.PersNr2()))
            za.ZA_PLines.Anhängen(d.cboPartnerschaftsLinien.Satz(i));
    }
}

/// Persons, and child lines only with their child and its parents' line; what then names nobody in the clipboard is
/// emptied in the copies.
void PersonenKopieren(const Dokument &d, const Auswahl &auswahl, Zwischenablage &za) {
    const auto linien = NummernIn(za.ZA_PLines);
    std::unordered_set<std::string> schon;
    for (const auto &nr : auswahl.lstMovedPers) {
        const int i = PersonMitNr(d, nr);
        if (i < 0 || !schon.insert(nr).second) continue;
        za.ZA_Personen.Anhängen(d.cboPersonen.Satz(i));
        const int kind = KindLinieVon(d, nr);
        if (kind < 0) continue;
        const std::string &linie = d.cboKindlinien.Satz(kind);
        if (linien.contains(KindSatz(linie, Lücken::Leer).PLinie())) za.ZA_KindLinien.Anhängen(linie);
    }
    const auto personen = NummernIn(za.ZA_Personen);
    Umschreiben<PersonBau>(za.ZA_Personen, [&](PersonBau &person) {
        if (!linien.contains(person.Stand().ElternLinie())) person.ElternLinie("");
        if (!personen.contains(person.Stand().ZwillingNr())) person.Zwilling("");
    });
}

/// Relationship lines whose both persons go along.
void BeziehungenKopieren(const Dokument &d, Zwischenablage &za) {
    const auto personen = NummernIn(za.ZA_Personen);
    for (const auto &satz : d.cboBeziehungsLinien) {
        const BeziehungSatz linie(satz);
        if (linie.Vollständig() && personen.contains(linie.PersNr1()) && personen.contains(linie.PersNr2()))
            za.ZA_BeziehungsLinien.Anhängen(satz);
    }
}

void Kopieren(const Gruppenart &art, const Dokument &d, const Auswahl &auswahl, Zwischenablage &za) {
    for (const auto &eintrag : auswahl.*art.Gewählt) {
        const int i = PositionAus(eintrag, d.*art.Speicher, art.Erste);
        if (i >= 0) (za.*art.Ablage).Anhängen((d.*art.Speicher).Satz(i));
    }
}

/// New numbers for the records of one list: free ones first, then those behind the store's last record.
Nummern NeueNummern(const Satzliste &liste, Satzliste &freie, const Satzliste &speicher) {
    Nummern neu;
    Nummernvergabe vergabe(speicher, freie, speicher.Leer() ? 0 : Ganzzahl16(ZahlLesen(Nummer(speicher.Letzter()))));
    for (const auto &satz : liste) neu[std::string(Nummer(satz))] = vergabe.Nächste();
    return neu;
}

/// The new number for `alt`, or `alt` when it has none.
std::string Neu(const Nummern &neu, std::string_view alt) {
    const auto i = neu.find(alt);
    return i == neu.end() ? std::string(alt) : i->second;
}

/// Gives the clipboard's records the numbers that they are pasted under. All references at once: a new number
/// may be an old one of another record.
void AllesUmnummern(Dokument &d, Zwischenablage &za) {
    const Nummern personen = NeueNummern(za.ZA_Personen, d.lstGelöschtePersNr, d.cboPersonen);
    const Nummern linien = NeueNummern(za.ZA_PLines, d.lstGelöschtePLinien, d.cboPartnerschaftsLinien);
    Umschreiben<PersonBau>(za.ZA_Personen, [&](PersonBau &person) {
        person.Nr(Neu(personen, person.Stand().Nr())).ElternLinie(Neu(linien, person.Stand().ElternLinie()));
        const std::string zwilling = Neu(personen, person.Stand().ZwillingNr());
        person.Zwilling(std::string(person.Stand().Zwilling().substr(0, 2)) + zwilling);
    });
    Umschreiben<PartnerschaftBau>(za.ZA_PLines, [&](PartnerschaftBau &linie) {
        linie.Nr(Neu(linien, linie.Stand().Nr()));
        linie.PersNr1(Neu(personen, linie.Stand().PersNr1())).PersNr2(Neu(personen, linie.Stand().PersNr2()));
    });
    Umschreiben<BeziehungBau>(za.ZA_BeziehungsLinien, [&](BeziehungBau &linie) {
        linie.PersNr1(Neu(personen, linie.Stand().PersNr1())).PersNr2(Neu(personen, linie.Stand().PersNr2()));
    });
    Umschreiben<KindBau>(za.ZA_KindLinien, [&](KindBau &linie) {
        linie.KindNr(Neu(personen, linie.Stand().KindNr())).PLinie(Neu(linien, linie.Stand().PLinie()));
    });
}

/// Left and top of the selection frame when it was copied.
struct Punkt {
    double X, Y;
};

Punkt PunktAus(std::string_view text) {
    const Felder teile(text);
    return {ZahlLesen(teile.OderLeer(0)), ZahlLesen(teile.OderLeer(1))};
}

std::string PunktText(double x, double y) { return ZahlSchreiben(x) + "_" + ZahlSchreiben(y); }

/// The shift stays in the clipboard: each further paste lands a further step away.
void AllesVersetzen(Zwischenablage &za) {
    Umschreiben<PersonBau>(za.ZA_Personen, [](PersonBau &person) {
        person.Ort(Gerundet(person.Stand().PosX() + Versatz, 1), Gerundet(person.Stand().PosY() + Versatz, 1));
    });
    Umschreiben<PartnerschaftBau>(za.ZA_PLines, [](PartnerschaftBau &linie) { linie.Verschieben(Versatz, Versatz); });
    Umschreiben<KindBau>(za.ZA_KindLinien, [](KindBau &linie) { linie.Verschieben(Versatz, Versatz); });
    Umschreiben<BeziehungBau>(za.ZA_BeziehungsLinien, [](BeziehungBau &linie) { linie.Verschieben(Versatz, Versatz); });
    for (const Gruppenart *art : Arten) {
        Satzliste &ablage = za.*art->Ablage;
        for (int i = 0; i < ablage.Anzahl(); ++i) ablage.Ersetzen(i, art->Verschoben(ablage.Satz(i), Versatz, Versatz));
    }
    const Punkt punkt = PunktAus(za.KopierPunkt);
    za.KopierPunkt = PunktText(punkt.X + Versatz, punkt.Y + Versatz);
}

/// Appends `quelle`; the numbers of such records are what is selected of them.
void NummernEinfügen(const Satzliste &quelle, Satzliste &speicher, Satzliste &gewählt) {
    for (const auto &satz : quelle) {
        gewählt.Anhängen(std::string(Nummer(satz)));
        speicher.Anhängen(satz);
    }
}

void Einfügen(const Gruppenart &art, Dokument &d, Auswahl &auswahl, const Zwischenablage &za) {
    Satzliste &speicher = d.*art.Speicher;
    for (const auto &satz : za.*art.Ablage) {
        (auswahl.*art.Gewählt).Anhängen(std::to_string(speicher.Anzahl() + art.Erste));
        speicher.Anhängen(satz);
    }
}

/// A frame round the clipboard's records, for what was copied without one.
void RahmenUm(Auflagenform &rahmen, const Zwischenablage &za) {
    constexpr double Rand = 0.3;
    Umgebung u;
    for (const auto &satz : za.ZA_Personen) PersonUmgeben(satz, u);
    for (const Gruppenart *art : Arten)
        for (const auto &satz : za.*art->Ablage) art->Umgeben(satz, u);
    if (!u.Leer)
        rahmen.Legen(u.Links - Rand, u.Oben - Rand, u.Rechts - u.Links + 2 * Rand, u.Unten - u.Oben + 2 * Rand);
}

void AlsGruppeAuswählen(Werkbank &w) {
    const Zwischenablage &za = w.ablage;
    const Punkt punkt = PunktAus(za.KopierPunkt);
    w.auflagen.shpBox.Legen(punkt.X, punkt.Y, za.KopierBreite, za.KopierHöhe);
    if (za.KopierBreite <= 0 || za.KopierHöhe <= 0) RahmenUm(w.auflagen.shpBox, za);
    w.lage.Aktion = Aktion::GruppeGewählt;
}

/// What was pasted is selected: a single element as if clicked, anything else as a group in its frame.
void EingefügtesAuswählen(Werkbank &w) {
    const Zwischenablage &za = w.ablage;
    const Dokument &d = w.dokument;
    const int personen = za.ZA_Personen.Anzahl();
    const int kreise = za.ZA_Kreislinien.Anzahl();
    const bool eins = personen + za.ZA_Textboxen.Anzahl() + kreise == 1 && za.ZA_Pfeile.Leer() && za.ZA_PLines.Leer();
    PositionenVergessen(w.lage);
    MarkerParken(w.lage, w.auflagen);
    ZwillingeBereit(w);
    w.lage.Angebot.Löschen = w.lage.Angebot.Ausschneiden = true;
    if (!eins) return AlsGruppeAuswählen(w);
    if (personen) return PersonAuswählen(w, d.cboPersonen.Anzahl() - 1);
    if (kreise) return KreisAuswählen(w, d.cboFreehandlines.Anzahl() - 1);
    const Satzliste gewählt = w.auswahl.lstMovedText;
    TextboxAuswählen(w, d.cboTextboxen.Anzahl() - 1);
    w.auswahl.lstMovedText = gewählt;
    w.lage.Aktion = Aktion::TextGewählt;
}

void AblageFüllen(Werkbank &w, const char *modus) {
    Zwischenablage &za = w.ablage;
    const Auflagenform &rahmen = w.auflagen.shpBox;
    za = {};
    za.KopierModus = modus;
    za.KopierPunkt = PunktText(Gerundet(rahmen.Left, 2), Gerundet(rahmen.Top, 2));
    za.KopierBreite = rahmen.Width;
    za.KopierHöhe = rahmen.Height;
    PartnerschaftenKopieren(w.dokument, w.auswahl, za);
    PersonenKopieren(w.dokument, w.auswahl, za);
    BeziehungenKopieren(w.dokument, za);
    for (const Gruppenart *art : Arten) Kopieren(*art, w.dokument, w.auswahl, za);
}

/// Nothing is selected any more, and nothing can be deleted.
void NachKopie(Werkbank &w) {
    Gummi1Parken(w.auflagen);
    Gummi2Parken(w.auflagen);
    AuswahlrahmenParken(w.auflagen);
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    PositionenVergessen(w.lage);
    MarkerParken(w.lage, w.auflagen);
    w.lage.Angebot.Löschen = w.lage.Angebot.Ausschneiden = false;
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
}

} // namespace

void Kopieren(Werkbank &w) {
    AblageFüllen(w, "Kopieren");
    NachKopie(w);
}

void Ausschneiden(Werkbank &w) {
    AblageFüllen(w, "Ausschneiden");
    w.auswahl.lstMovedPLines.Leeren(); // a bar goes with a partner only: alone it isn't in the clipboard
    mnuLöschen1(w);
    NachKopie(w);
}

void Einfügen(Werkbank &w) {
    Zwischenablage &za = w.ablage;
    Dokument &d = w.dokument;
    if (!za.HatEtwas()) return;
    AllesUmnummern(d, za);
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.lage.BildAuswahl = false; // the copies are what is in hand now
    w.lage.Zeiger = Mauszeiger::Pfeil;
    AuswahlrahmenParken(w.auflagen);
    if (std::exchange(za.KopierModus, "Kopieren") == "Kopieren") AllesVersetzen(za); // a cut comes back once
    NummernEinfügen(za.ZA_Personen, d.cboPersonen, w.auswahl.lstMovedPers);
    NummernEinfügen(za.ZA_PLines, d.cboPartnerschaftsLinien, w.auswahl.lstMovedPLines);
    for (const auto &linie : za.ZA_KindLinien) d.cboKindlinien.Anhängen(linie);
    for (const auto &linie : za.ZA_BeziehungsLinien) d.cboBeziehungsLinien.Anhängen(linie);
    for (const Gruppenart *art : Arten) Einfügen(*art, d, w.auswahl, za);
    EingefügtesAuswählen(w);
    w.fenster.Vorschau();
    w.fenster.Sichern();
}

} // namespace kw
