#include "editing/Personen.h"

#include "document/Verweise.h"
#include "document/saetze/Person.h"
#include "editing/Absagen.h"
#include "editing/Abwahl.h"
#include "editing/Geometrie.h"
#include "editing/Gesten.h"
#include "editing/Kinder.h"
#include "editing/Linien.h"
#include "editing/Marker.h"
#include "platform/Befehlsnamen.h"

#include <algorithm>
#include <cmath>

namespace kw {

namespace {

constexpr double ElternAbstand = 3.6;     ///< between the two of a new couple, cm
constexpr double ElternPlatz = 5.0;       ///< that a new couple needs to the right
constexpr double SymbolÜberlappung = 0.1; ///< a symbol must reach that far into a marquee, on each axis

Umriss MaskenForm(int typ) {
    switch (typ) {
    case 1:
    case 3:
    case 5:
    case 7: return Umriss::Quadrat;
    case 2:
    case 4:
    case 6: return Umriss::Kreis;
    case TypMännlichZuWeiblich: return Umriss::Oval;
    default: return Umriss::Rechteck;
    }
}

Personeninfo InfoVon(const PersonSatz &person) {
    return {ZahlLesen(person.Symboltyp()) != TypInstitution, person.IndexPerson() == "1", person.Verstorben(),
            person.Sucht(), person.Erkrankung()};
}

/// Appends a person without names, dates and marks.
void Anhängen(Dokument &d, int typ, double x, double y, double größe) {
    const std::string nr = d.NeuePersNr();
    d.cboPersonen.Anhängen(NeuePerson(nr, typ, x, y, größe));
}

/// Its menu: an institution can't be linked, and a child of somebody can't become another's.
void MenüÖffnen(Werkbank &w, const PersonSatz &person) {
    w.lage.Aktion = Aktion::MenüOffen;
    w.lage.Angebot.Verknüpfen = w.lage.SymbolTyp != TypInstitution;
    w.lage.Angebot.AlsKind = !person.HatEltern();
    PopupÖffnen(w, Name::mnuPerson);
}

} // namespace

int PersonBei(const Dokument &d, double x, double y) {
    for (int i = 0; i < d.cboPersonen.Anzahl(); ++i) {
        const PersonSatz person(d.cboPersonen.Satz(i));
        if (!person.Vollständig()) continue;
        const double halb = person.Groesse() / 2;
        if (Kleiner(std::fabs(x - person.PosX()), halb) && Kleiner(std::fabs(y - person.PosY()), halb)) return i;
    }
    return -1;
}

bool PersonImKasten(std::string_view satz, const Auswahlkasten &kasten) {
    const PersonSatz person(satz);
    if (!person.Vollständig()) return false;
    const double x = person.PosX();
    const double y = person.PosY();
    const double halb = person.Groesse() / 2 - SymbolÜberlappung;
    return kasten.Überlappt(x - halb, y - halb, x + halb, y + halb);
}

void PersonUmgeben(std::string_view satz, Umgebung &umgebung) {
    const PersonSatz person(satz, Lücken::Leer);
    const double größe = person.Groesse();
    umgebung.Aufnehmen(person.PosX() - größe / 2, person.PosY() - größe / 2, größe, größe);
}

void PersonAuswählen(Werkbank &w, int position) {
    Leinwandlage &lage = w.lage;
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    lage.PersAuswahl = position + 1;
    lage.ElementArt = "Person";
    lage.PersRecord = w.dokument.cboPersonen.Satz(position);
    const PersonSatz person(lage.PersRecord);
    lage.PersNr = person.Nr();
    w.auswahl.lstMovedPers.Anhängen(lage.PersNr);
    const double größe = person.Groesse();
    lage.SymbolTyp = Ganzzahl16(ZahlLesen(person.Symboltyp()));
    lage.SymbolGröße = lage.AuswahlGröße = lage.Spur.MarkerBreite = lage.Spur.MarkerHöhe = größe;
    lage.AuswahlX = Gerundet(person.PosX() - größe / 2, 2);
    lage.AuswahlY = Gerundet(person.PosY() - größe / 2, 2);
    Auflagenform &maske = w.auflagen.shpMask;
    maske.Visible = false;
    maske.Shape = MaskenForm(lage.SymbolTyp);
    maske.Legen(lage.AuswahlX, lage.AuswahlY, größe, größe);
    lage.Aktion = Aktion::PersonGewählt;
    GrößeMenüsPrüfen(w);
    lage.Info = InfoVon(person);
}

void PersonAnlegen(Werkbank &w, const Importperson *import) {
    if (w.lage.Aktion != Aktion::PersonSetzen) return;
    const double x = Gerundet(RasterX(w.ansicht, w.lage.MausX), 1);
    const double y = Gerundet(RasterY(w.ansicht, w.lage.MausY), 1);
    if (import) w.dokument.cboPersonen.Anhängen(ImportSatz(*import, w.dokument.NeuePersNr(), x, y, GrößeNormal));
    else Anhängen(w.dokument, w.lage.SymbolTyp, x, y, w.lage.SymbolGröße);
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.fenster.Vorschau();
}

void ElternAnlegen(Werkbank &w) {
    const double rechtsaußen = w.ansicht.SeitenBreite - ElternPlatz;
    const double y = Gerundet(RasterY(w.ansicht, w.lage.MausY), 1);
    const double x = Gerundet(RasterX(w.ansicht, std::min(w.lage.MausX, rechtsaußen)), 1);
    Anhängen(w.dokument, TypMännlich, x, y, w.lage.SymbolGröße);
    Anhängen(w.dokument, TypWeiblich, RasterZehntel(w.ansicht, x + ElternAbstand), y, w.lage.SymbolGröße);
    const int mutter = w.dokument.cboPersonen.Anzahl() - 1;
    PaarVerbinden(w.dokument, w.ansicht, {mutter - 1, mutter});
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    w.fenster.Sichern();
}

bool PersonSetzen(Werkbank &w, const Ereignis &) {
    if (w.lage.Aktion == Aktion::ElternSetzen) ElternAnlegen(w);
    else if (w.lage.Aktion == Aktion::PersonSetzen) PersonAnlegen(w);
    else return false;
    return true;
}

bool PersonTreffen(Werkbank &w, const Ereignis &e) {
    MarkerEntfernen(w);
    w.lage.PersAuswahl = 0;
    w.lage.PersRecord.clear();
    const int i = PersonBei(w.dokument, e.X, e.Y);
    if (i >= 0) PersonFassen(w, i, e);
    return i >= 0;
}

void PersonFassen(Werkbank &w, int position, const Ereignis &e) {
    PersonAuswählen(w, position);
    Gummi1Parken(w.auflagen);
    w.lage.Angebot.Löschen = w.lage.Angebot.Ausschneiden = true;
    const PersonSatz person(w.lage.PersRecord);
    w.lage.VersatzX = e.X - person.PosX();
    w.lage.VersatzY = e.Y - person.PosY();
    w.fenster.Vorschau();
    if (e.Rechts()) MenüÖffnen(w, person);
}

void PersonZiehen(Werkbank &w, const Ereignis &e) {
    const double schritt = w.ansicht.Rasterweite;
    Auflagenform &maske = w.auflagen.shpMask;
    if (!Kleiner(schritt, w.lage.VersatzX) && !Kleiner(schritt, w.lage.VersatzY)) maske.Visible = false;
    maske.Left = RasterX(w.ansicht, e.X - w.lage.VersatzX) - w.lage.SymbolGröße / 2;
    maske.Top = RasterY(w.ansicht, e.Y - w.lage.VersatzY) - w.lage.SymbolGröße / 2;
    if (Kleiner(schritt, std::fabs(e.X - w.lage.DownX)) || Kleiner(schritt, std::fabs(e.Y - w.lage.DownY)))
        maske.Visible = true;
}

void PersonGesetzt(Werkbank &w, const Ereignis &) {
    w.fenster.Sichern();
    w.lage.Aktion = Aktion::Nichts;
}

void PersonLoslassen(Werkbank &w, const Ereignis &e) {
    Leinwandlage &lage = w.lage;
    Satzliste &personen = w.dokument.cboPersonen;
    const int i = lage.PersAuswahl - 1;
    if (!Gültig(personen, i)) return;
    const bool bewegt = HatSichBewegt(w.lage, e);
    if (bewegt) { // back on the spot it stays where it was, off the raster too
        lage.AuswahlX = Gerundet(w.auflagen.shpMask.Left, 2);
        lage.AuswahlY = Gerundet(w.auflagen.shpMask.Top, 2);
    }
    const double x = lage.Spur.NeuX = Gerundet(lage.AuswahlX + lage.SymbolGröße / 2, 2);
    const double y = lage.Spur.NeuY = Gerundet(lage.AuswahlY + lage.SymbolGröße / 2, 2);
    lage.Spur.MarkerBreite = lage.Spur.MarkerHöhe = lage.SymbolGröße;
    PersonBau person(personen.Satz(i));
    personen.Ersetzen(i, person.Text());
    const Dokument vorher = w.dokument;
    lage.PersRecord = person.Ort(x, y).Text();
    personen.Ersetzen(i, lage.PersRecord);
    if (!bewegt) return;
    LinienDerPersonNachziehen(w.dokument, Bezüge(w.dokument), lage.PersNr, x, y, w.ansicht.Rasterweite);
    MarkerParken(w.lage, w.auflagen);
    lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    w.auflagen.shpMask.Parken();
    if (!w.dokument.GleicheSätze(vorher)) w.fenster.Sichern();
    else lage.Hinweis = &Absage::KurzerWeg;
}

void LinienDerPersonNachziehen(Dokument &d, const Bezüge &bezüge, std::string_view nr, double x, double y,
                               double raster) {
    LinienNachziehen(d, bezüge, nr, x, y, raster);
    for (const int i : bezüge.Partnerschaften(nr)) KinderAnpassen(d, bezüge, d.cboPartnerschaftsLinien.Satz(i));
    KindlinieNachziehen(d, bezüge, nr, x, y);
}

void PersonenMitbewegen(Dokument &d, const Gruppenzug &zug) {
    for (int i = 0; i < d.cboPersonen.Anzahl(); ++i) {
        if (!zug.Nimmt(Nummer(d.cboPersonen.Satz(i))) || !PersonSatz(d.cboPersonen.Satz(i)).Vollständig()) continue;
        PersonBau person(d.cboPersonen.Satz(i));
        person.Ort(OhneRauschen(person.Stand().PosX() + zug.DeltaX), OhneRauschen(person.Stand().PosY() + zug.DeltaY));
        d.cboPersonen.Ersetzen(i, person.Text());
    }
    LinienMitbewegen(d, zug);
    KinderMitbewegen(d, zug);
}

void PersonLöschen(Werkbank &w) {
    if (w.dokument.cboPersonen.Leer()) return;
    const bool entfernt = PersonenEntfernen(w.dokument, {w.lage.PersNr});
    if (entfernt) w.auflagen.shpMask.Parken();
    PositionenVergessen(w.lage);
    if (w.lage.Aktion == Aktion::GruppeGewählt || w.lage.Aktion == Aktion::PersonGewählt) return;
    w.fenster.Vorschau();
    if (entfernt) w.fenster.Sichern();
}

} // namespace kw
