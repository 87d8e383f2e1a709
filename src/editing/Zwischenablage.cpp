#include "editing/Zwischenablage.h"

#include "document/saetze/Kreislinie.h"
#include "editing/Geometrie.h"
#include "editing/Gruppe.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Marker.h"
#include "editing/Personen.h"
#include "editing/Satzbau.h"
#include "editing/Texte.h"

#include <algorithm>
#include <map>
#include <optional>
#include <span>
#include <unordered_set>

namespace kw {

namespace {

constexpr double Versatz = 0.3; ///< of each further copy, right and down, cm

using Nummern = std::map<std::string, std::string, std::less<>>;

/// Every record of `liste` rewritten by `ändern`.
template <typename Ändern> void Umschreiben(Satzliste &liste, int felder, Ändern ändern) {
    for (int i = 0; i < liste.Anzahl(); ++i) {
        Feldbau satz(liste.Satz(i), felder);
        ändern(satz);
        liste.Ersetzen(i, satz.Text());
    }
}

std::unordered_set<std::string> NummernIn(const Satzliste &liste) {
    std::unordered_set<std::string> nummern;
    for (const auto &satz : liste) nummern.insert(satz.substr(0, 3));
    return nummern;
}

/// Appends the records at the positions that `auswahl` holds; the store counts from `erste`.
void StellenKopieren(const Satzliste &auswahl, const Satzliste &speicher, int erste, Satzliste &ziel) {
    for (const auto &eintrag : auswahl) {
        const int i = Ganzzahl16(ZahlLesen(eintrag)) - erste;
        if (i >= 0 && i < speicher.Anzahl()) ziel.Anhängen(speicher.Satz(i));
    }
}

/// A partnership line goes along only with both its partners, a child line only with its child and its parents'
/// line; what then names nobody in the clipboard is emptied in the copies.
void FamilieKopieren(Werkbank &w) {
    const Dokument &d = w.dokument;
    Zwischenablage &za = w.ablage;
    const auto gewählt = NummernIn(w.auswahl.lstMovedPers);
    std::unordered_set<std::string> schon; // a number that stands twice finds the same record again
    for (const auto &nr : w.auswahl.lstMovedPLines) {
        const int i = PLinieMitNr(d, nr);
        if (i < 0 || !schon.insert(nr).second) continue;
        const Felder feld(d.cboPartnerschaftsLinien.Satz(i));
        if (gewählt.contains(std::string(feld.OderLeer(PLinieFeld::PersNr1))) &&
            gewählt.contains(std::string(feld.OderLeer(PLinieFeld::PersNr2))))
            za.ZA_PLines.Anhängen(d.cboPartnerschaftsLinien.Satz(i));
    }
    const auto linien = NummernIn(za.ZA_PLines);
    schon.clear();
    for (const auto &nr : w.auswahl.lstMovedPers) {
        const int i = PersonMitNr(d, nr);
        if (i < 0 || !schon.insert(nr).second) continue;
        za.ZA_Personen.Anhängen(d.cboPersonen.Satz(i));
        const int kind = KindLinieVon(d, nr);
        if (kind >= 0 && linien.contains(std::string(Felder(d.cboKindlinien.Satz(kind)).OderLeer(KindFeld::PLinie))))
            za.ZA_KindLinien.Anhängen(d.cboKindlinien.Satz(kind));
    }
    const auto personen = NummernIn(za.ZA_Personen);
    Umschreiben(za.ZA_Personen, PersonFeld::Anzahl, [&](Feldbau &satz) {
        if (!linien.contains(std::string(satz.Feld(PersonFeld::ElternLinie)))) satz.Setzen(PersonFeld::ElternLinie, "");
        if (!personen.contains(ZwillingNr(satz.Feld(PersonFeld::Zwilling)))) satz.Setzen(PersonFeld::Zwilling, "");
    });
}

/// New numbers for the records of one list: free ones first, then those behind the store's last record.
Nummern NeueNummern(const Satzliste &liste, Satzliste &freie, const Satzliste &speicher) {
    Nummern neu;
    int letzte = speicher.Leer() ? 0 : Ganzzahl16(ZahlLesen(speicher.Letzter().substr(0, 3)));
    for (const auto &satz : liste) {
        std::string nr = freie.Leer() ? Dreistellig(++letzte) : freie.Satz(0);
        if (!freie.Leer()) freie.Entfernen(0);
        neu[satz.substr(0, 3)] = std::move(nr);
    }
    return neu;
}

/// The new number for what field `feld` names, behind its first `vorspann` characters.
void Umnummern(Feldbau &satz, int feld, const Nummern &neu, size_t vorspann = 0) {
    const std::string alt(satz.Feld(feld));
    if (alt.size() <= vorspann) return;
    const auto i = neu.find(std::string_view(alt).substr(vorspann));
    if (i != neu.end()) satz.Setzen(feld, alt.substr(0, vorspann) + i->second);
}

/// Gives the clipboard's records the numbers that they are pasted under. All references at once: a new number
/// may be an old one of another record.
void AllesUmnummern(Werkbank &w) {
    Dokument &d = w.dokument;
    Zwischenablage &za = w.ablage;
    const Nummern personen = NeueNummern(za.ZA_Personen, d.lstGelöschtePersNr, d.cboPersonen);
    const Nummern linien = NeueNummern(za.ZA_PLines, d.lstGelöschtePLinien, d.cboPartnerschaftsLinien);
    Umschreiben(za.ZA_Personen, PersonFeld::Anzahl, [&](Feldbau &satz) {
        Umnummern(satz, PersonFeld::Nr, personen);
        Umnummern(satz, PersonFeld::ElternLinie, linien);
        Umnummern(satz, PersonFeld::Zwilling, personen, 2);
    });
    Umschreiben(za.ZA_PLines, PLinieFeld::Anzahl, [&](Feldbau &satz) {
        Umnummern(satz, PLinieFeld::Nr, linien);
        Umnummern(satz, PLinieFeld::PersNr1, personen);
        Umnummern(satz, PLinieFeld::PersNr2, personen);
    });
    Umschreiben(za.ZA_KindLinien, KindFeld::Anzahl, [&](Feldbau &satz) {
        Umnummern(satz, KindFeld::KindNr, personen);
        Umnummern(satz, KindFeld::PLinie, linien);
    });
}

void FelderVersetzen(Feldbau &satz, std::initializer_list<int> felder) {
    for (const int feld : felder) satz.Erhöhen(feld, Versatz);
}

/// The shift stays in the clipboard: each further paste lands a further step away.
void AllesVersetzen(Zwischenablage &za) {
    Umschreiben(za.ZA_Personen, PersonFeld::Anzahl, [](Feldbau &satz) {
        for (const int feld : {PersonFeld::PosX, PersonFeld::PosY})
            satz.Setzen(feld, Gerundet(satz.Zahl(feld) + Versatz, 1));
    });
    Umschreiben(za.ZA_PLines, PLinieFeld::Anzahl, [](Feldbau &satz) {
        FelderVersetzen(satz, {PLinieFeld::BalkenX1, PLinieFeld::BalkenY1, PLinieFeld::BalkenX2, PLinieFeld::BalkenY2,
                               PLinieFeld::AnschlussX1, PLinieFeld::AnschlussY1, PLinieFeld::AnschlussX2,
                               PLinieFeld::AnschlussY2});
    });
    Umschreiben(za.ZA_KindLinien, KindFeld::Anzahl, [](Feldbau &satz) {
        FelderVersetzen(satz, {KindFeld::KindX, KindFeld::KindY, KindFeld::LinieX, KindFeld::LinieY});
    });
    Umschreiben(za.ZA_Pfeile, PfeilFeld::Anzahl, [](Feldbau &satz) {
        FelderVersetzen(satz, {PfeilFeld::PfeilX1, PfeilFeld::PfeilY1, PfeilFeld::PfeilX2, PfeilFeld::PfeilY2});
    });
    for (int i = 0; i < za.ZA_Textboxen.Anzahl(); ++i) {
        const std::string &alt = za.ZA_Textboxen.Satz(i);
        Feldbau satz(alt, std::min(Felder(alt).Anzahl(), Felder::Höchstzahl));
        FelderVersetzen(satz, {TextFeld::TextX, TextFeld::TextY});
        za.ZA_Textboxen.Ersetzen(i, satz.Text());
    }
    for (int i = 0; i < za.ZA_Kreislinien.Anzahl(); ++i)
        za.ZA_Kreislinien.Ersetzen(i, KreisVerschoben(za.ZA_Kreislinien.Satz(i), Versatz, Versatz));
    Feldbau punkt(za.KopierPunkt, 2);
    FelderVersetzen(punkt, {0, 1});
    za.KopierPunkt = punkt.Text();
}

/// Appends `quelle` and enters what `auswahl` holds of such records: numbers, or positions from `erste`.
void Anhängen(const Satzliste &quelle, Satzliste &speicher, Satzliste *nummern, Satzliste *positionen, int erste = 0) {
    for (const auto &satz : quelle) {
        if (nummern) nummern->Anhängen(satz.substr(0, 3));
        if (positionen) positionen->Anhängen(std::to_string(speicher.Anzahl() + erste));
        speicher.Anhängen(satz);
    }
}

/// A frame round the clipboard's records, for what was copied without one.
void RahmenUm(Auflagenform &rahmen, const Zwischenablage &za) {
    Umgebung u;
    for (const auto &satz : za.ZA_Personen) {
        const Feldbau p(satz, PersonFeld::Anzahl);
        const double größe = p.Zahl(PersonFeld::Groesse);
        u.Aufnehmen(p.Zahl(PersonFeld::PosX) - größe / 2, p.Zahl(PersonFeld::PosY) - größe / 2, größe, größe);
    }
    for (const auto &satz : za.ZA_Textboxen) {
        const Feldbau t(satz, TextFeld::Anzahl);
        u.Aufnehmen(t.Zahl(TextFeld::TextX), t.Zahl(TextFeld::TextY), t.Zahl(TextFeld::TextBreite),
                    t.Zahl(TextFeld::TextHoehe));
    }
    for (const auto &satz : za.ZA_Kreislinien)
        for (const auto &[x, y] : KreisPunkte(satz)) u.Aufnehmen(x, y);
    for (const auto &satz : za.ZA_Pfeile) {
        const Feldbau p(satz, PfeilFeld::Anzahl);
        u.Aufnehmen(p.Zahl(PfeilFeld::PfeilX1), p.Zahl(PfeilFeld::PfeilY1));
        u.Aufnehmen(p.Zahl(PfeilFeld::PfeilX2), p.Zahl(PfeilFeld::PfeilY2));
    }
    constexpr double Rand = 0.3;
    if (!u.Leer)
        rahmen.Legen(u.Links - Rand, u.Oben - Rand, u.Rechts - u.Links + 2 * Rand, u.Unten - u.Oben + 2 * Rand);
}

/// What was pasted is selected: a single element as if clicked, anything else as a group in its frame.
void EingefügtesAuswählen(Werkbank &w) {
    const Zwischenablage &za = w.ablage;
    const Dokument &d = w.dokument;
    const int personen = za.ZA_Personen.Anzahl();
    const int texte = za.ZA_Textboxen.Anzahl();
    const int kreise = za.ZA_Kreislinien.Anzahl();
    const bool eins = personen + texte + kreise == 1 && za.ZA_Pfeile.Leer() && za.ZA_PLines.Leer();
    PositionenVergessen(w.lage);
    MarkerParken(w);
    ZwillingeBereit(w);
    w.bedienung["mnuLöschen1"].Enabled = w.bedienung["mnuAusschneiden"].Enabled = true;
    if (eins && personen) {
        PersonAuswählen(w, d.cboPersonen.Anzahl() - 1);
    } else if (eins && kreise) {
        KreisAuswählen(w, d.cboFreehandlines.Anzahl() - 1);
    } else if (eins) {
        const Satzliste gewählt = w.auswahl.lstMovedText;
        TextboxAuswählen(w, d.cboTextboxen.Anzahl() - 1);
        w.auswahl.lstMovedText = gewählt;
        w.lage.Aktion = Aktion::TextGewählt;
    } else {
        const Feldbau punkt(za.KopierPunkt, 2);
        Auflagenform &rahmen = w.auflagen.shpBox;
        rahmen.Legen(punkt.Zahl(0), punkt.Zahl(1), za.KopierBreite, za.KopierHöhe);
        if (za.KopierBreite <= 0 || za.KopierHöhe <= 0) RahmenUm(rahmen, za);
        w.lage.Aktion = Aktion::GruppeGewählt;
    }
}

void AblageFüllen(Werkbank &w, const char *modus) {
    Zwischenablage &za = w.ablage;
    const Auflagenform &rahmen = w.auflagen.shpBox;
    za = {};
    za.KopierModus = modus;
    za.KopierPunkt = ZahlSchreiben(Gerundet(rahmen.Left, 2)) + "_" + ZahlSchreiben(Gerundet(rahmen.Top, 2));
    za.KopierBreite = rahmen.Width;
    za.KopierHöhe = rahmen.Height;
    FamilieKopieren(w);
    StellenKopieren(w.auswahl.lstMovedText, w.dokument.cboTextboxen, 0, za.ZA_Textboxen);
    StellenKopieren(w.auswahl.lstMovedKreisLinien, w.dokument.cboFreehandlines, 1, za.ZA_Kreislinien);
    StellenKopieren(w.auswahl.lstMovedPfeile, w.dokument.cboPfeile, 0, za.ZA_Pfeile);
}

void NachKopie(Werkbank &w) {
    Gummi1Parken(w);
    Gummi2Parken(w);
    MarkierungsListBoxenLöschen(w);
    w.fenster.Vorschau();
}

} // namespace

void Kopieren(Werkbank &w) {
    AblageFüllen(w, "Kopieren");
    NachKopie(w);
}

void Ausschneiden(Werkbank &w) {
    AblageFüllen(w, "Ausschneiden");
    mnuLöschen1(w);
    NachKopie(w);
}

void Einfügen(Werkbank &w) {
    Zwischenablage &za = w.ablage;
    Dokument &d = w.dokument;
    Auswahl &a = w.auswahl;
    if (!za.HatEtwas()) return;
    AllesUmnummern(w);
    MarkierungsListBoxenLöschen(w);
    w.lage.BildAuswahl = false; // the copies are what is in hand now
    w.lage.Zeiger = Mauszeiger::Pfeil;
    AuswahlrahmenParken(w);
    if (za.KopierModus == "Kopieren") AllesVersetzen(za);
    Anhängen(za.ZA_Personen, d.cboPersonen, &a.lstMovedPers, nullptr);
    Anhängen(za.ZA_PLines, d.cboPartnerschaftsLinien, &a.lstMovedPLines, nullptr);
    Anhängen(za.ZA_KindLinien, d.cboKindlinien, nullptr, nullptr);
    Anhängen(za.ZA_Textboxen, d.cboTextboxen, nullptr, &a.lstMovedText);
    Anhängen(za.ZA_Kreislinien, d.cboFreehandlines, nullptr, &a.lstMovedKreisLinien, 1);
    Anhängen(za.ZA_Pfeile, d.cboPfeile, nullptr, &a.lstMovedPfeile);
    EingefügtesAuswählen(w);
    w.fenster.Vorschau();
    w.fenster.Sichern();
}

} // namespace kw
