#include "editing/Linien.h"

#include "document/saetze/Beziehung.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "editing/Absagen.h"
#include "editing/Abwahl.h"
#include "editing/Gesten.h"
#include "editing/Marker.h"
#include "platform/Befehlsnamen.h"
#include "rendering/Symbole.h"

#include <algorithm>

namespace kw {

namespace {

/// The pair that a link gesture joins, the earlier person first.
Paar Verknüpfte(const Leinwandlage &lage) {
    const auto [a, b] = std::minmax(lage.ZielPerson, lage.PersAuswahl);
    return {a - 1, b - 1};
}

bool GibtEs(const Satzliste &personen, int position) {
    return Gültig(personen, position) && PersonSatz(personen.Satz(position)).Vollständig();
}

bool IstPaar(const Satzliste &personen, Paar paar) {
    return paar.first != paar.second && GibtEs(personen, paar.first) && GibtEs(personen, paar.second);
}

/// Lays the mark lines along the outline of a target that is no box and no circle.
void ZielUmreißen(Auflagen &auflagen, std::span<const Ecke> ecken) {
    for (size_t i = 0; i < auflagen.MarkLine.size(); ++i) {
        Auflagenlinie &linie = auflagen.MarkLine[i];
        linie.Visible = true;
        linie.Parken();
        if (i >= ecken.size()) continue;
        const Ecke &von = ecken[i];
        const Ecke &bis = ecken[(i + 1) % ecken.size()];
        linie.Legen(von[0], von[1], bis[0], bis[1]);
    }
}

/// Marks the link target, which is another now.
void ZielAnzeigen(Werkbank &w) {
    const Leinwandlage &lage = w.lage;
    Auflagenform &ziel = w.auflagen.shpPerson;
    w.auswahl.lstMovedPers.Leeren();
    for (Auflagenlinie &linie : w.auflagen.MarkLine) linie.Visible = false;
    ziel.Visible = lage.ZielPerson >= 1;
    if (!ziel.Visible) return;
    w.auswahl.lstMovedPers.Anhängen(std::to_string(lage.ZielPerson));
    w.auswahl.lstMovedPers.Anhängen(std::to_string(lage.PersAuswahl));
    const PersonSatz person(w.dokument.cboPersonen.Satz(lage.ZielPerson - 1));
    const double x = person.PosX();
    const double y = person.PosY();
    const double größe = person.Groesse();
    const int typ = SymbolKennzahl(person.Symboltyp());
    ziel.Shape = typ == TypWeiblich || typ == TypMännlichZuWeiblich ? Umriss::Kreis : Umriss::Quadrat;
    ziel.Legen(RasterZehntel(w.ansicht, x - größe / 2), RasterZehntel(w.ansicht, y - größe / 2), größe + 0.02,
               größe + 0.02);
    if (typ == TypSchwangerschaft) ZielUmreißen(w.auflagen, Dreieck(x, y, größe));
    if (typ == TypDivers) {
        auto ecken = Sechseck(x, y, größe);
        std::rotate(ecken.begin(), ecken.begin() + 4, ecken.end()); // five lines: the lower edge stays open
        ZielUmreißen(w.auflagen, ecken);
    }
    ziel.Visible = typ != TypSchwangerschaft && typ != TypDivers;
}

std::string NeueBeziehung(const PersonSatz &erster, const PersonSatz &zweiter) {
    BeziehungBau linie;
    linie.Beziehungsart("0").Ende1(erster.PosX(), erster.PosY()).Ende2(zweiter.PosX(), zweiter.PosY());
    return linie.PersNr1(erster.Nr()).PersNr2(zweiter.Nr()).Text();
}

/// Why a link gesture makes no line; nothing when it could make one.
const Zweisprachig *Hindernis(const Leinwandlage &lage) {
    if (lage.ZielPerson < 1) return &Absage::Niemand;
    return lage.ZielPerson == lage.PersAuswahl ? &Absage::MitSichSelbst : nullptr;
}

/// A relationship line between link target and selected person, and its form. Nothing when they have one.
void BeziehungAnlegen(Werkbank &w) {
    constexpr size_t PaarLänge = 7; // "001_002"
    Dokument &d = w.dokument;
    const auto paar = Verknüpfte(w.lage);
    if (!IstPaar(d.cboPersonen, paar)) {
        MarkierungsListBoxenLöschen(w.auswahl, w.lage);
        Aktion_Nichts(w.lage);
        w.fenster.Vorschau();
        return;
    }
    MarkerEntfernen(w);
    const PersonSatz erster(d.cboPersonen.Satz(paar.first));
    const PersonSatz zweiter(d.cboPersonen.Satz(paar.second));
    if (Getrimmt(erster.Nr()).empty() || Getrimmt(zweiter.Nr()).empty()) return;
    const std::string satz = NeueBeziehung(erster, zweiter);
    const std::string_view nummern = std::string_view(satz).substr(satz.size() - PaarLänge);
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    const auto &linien = d.cboBeziehungsLinien;
    if (std::any_of(linien.begin(), linien.end(), [&](const std::string &l) { return l.ends_with(nummern); })) {
        w.lage.Hinweis = &Absage::SchonVerknüpft;
        return;
    }
    d.cboBeziehungsLinien.Anhängen(satz);
    w.lage.BezAuswahl = linien.Anzahl() - 1;
    w.lage.Aktion = Aktion::BeziehungGewählt;
    w.fenster.Vorschau();
    w.lage.Aktion = Aktion::BeziehungZiehen; // the form tells a new line by it
    w.fenster.FormÖffnen(Name::frmBezLinien);
}

} // namespace

void RubberStart(Werkbank &w) {
    const int i = PersonMitNr(w.dokument, w.lage.PersNr);
    w.lage.lblPersAuswahl.clear(); // the first target of this gesture counts as a new one
    w.lage.ZielPerson = 0;
    if (i < 0) return;
    const PersonSatz person(w.dokument.cboPersonen.Satz(i), Lücken::Leer);
    w.lage.SymbolGröße = person.Groesse(); // a tool may have left another one
    w.lage.GummiX = person.PosX();
    w.lage.GummiY = person.PosY();
}

void mnuPartnerschaftsLinie(Werkbank &w) {
    RubberStart(w);
    w.lage.Aktion = Aktion::PartnerschaftZiehen;
    w.fenster.Vorschau(); // the person that the line starts from shows
}

void mnuBeziehungErstellen2(Werkbank &w) {
    w.lage.Info.Visible = false;
    RubberStart(w);
    w.lage.Aktion = Aktion::BeziehungZiehen;
    w.auflagen.Line1.Visible = true;
    w.fenster.Vorschau();
}

void LinkZiehen(Werkbank &w, int person, double x, double y) {
    Leinwandlage &lage = w.lage;
    lage.ZielPerson = person + 1;
    if (lage.ZielPerson == lage.PersAuswahl) return;
    w.auflagen.Line1.Legen(lage.GummiX, lage.GummiY, x, y);
    w.auflagen.Line1.Visible = true;
    const std::string ziel = std::to_string(lage.ZielPerson);
    if (ziel == lage.lblPersAuswahl) return;
    lage.lblPersAuswahl = ziel;
    ZielAnzeigen(w);
}

bool KannZielSein(const Werkbank &w, int person) {
    const Dokument &d = w.dokument;
    const auto [a, b] = std::minmax({person, w.lage.PersAuswahl - 1});
    if (!IstPaar(d.cboPersonen, {a, b})) return false;
    const auto nrA = Nummer(d.cboPersonen.Satz(a));
    const auto nrB = Nummer(d.cboPersonen.Satz(b));
    if (w.lage.Aktion == Aktion::PartnerschaftZiehen) return PLinieVonNach(d, nrA, nrB) < 0;
    return ErsterSatz(d.cboBeziehungsLinien, [&](const std::string &satz) {
               const BeziehungSatz linie(satz, Lücken::Leer);
               return linie.PersNr1() == nrA && linie.PersNr2() == nrB;
           }) < 0;
}

bool LinkBeenden(Werkbank &w, const Ereignis &) {
    if (w.lage.Aktion != Aktion::BeziehungZiehen && w.lage.Aktion != Aktion::PartnerschaftZiehen) return false;
    LinkAufräumen(w.lage, w.auflagen);
    w.lage.PersRecord.clear();
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    w.lage.Hinweis = Hindernis(w.lage);
    if (w.lage.Aktion == Aktion::BeziehungZiehen) {
        BeziehungAnlegen(w);
    } else {
        w.lage.Aktion = Aktion::Nichts;
        if (PartnerschaftAnlegen(w, Verknüpfte(w.lage))) w.fenster.Sichern();
        else if (!w.lage.Hinweis) w.lage.Hinweis = &Absage::SchonVerknüpft;
    }
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    return true;
}

void PaarVerbinden(Dokument &d, const Ansicht &ansicht, Paar paar) {
    const PersonSatz erster(d.cboPersonen.Satz(paar.first));
    const PersonSatz zweiter(d.cboPersonen.Satz(paar.second));
    PartnerschaftBau linie;
    linie.Nr(d.NeuePLinienNr()).PersNr1(erster.Nr()).PersNr2(zweiter.Nr());
    linie.BalkenX1(erster.PosX()).BalkenX2(zweiter.PosX());
    linie.Anschluss1(erster.PosX(), erster.PosY()).Anschluss2(zweiter.PosX(), zweiter.PosY());
    const double y = std::max(erster.PosY(), zweiter.PosY()) + BalkenAbstand;
    linie.BalkenY(y > ansicht.SeitenHöhe ? RasterY(ansicht, y) : y);
    d.cboPartnerschaftsLinien.Anhängen(linie.Text());
}

bool PartnerschaftAnlegen(Werkbank &w, Paar paar) {
    Dokument &d = w.dokument;
    if (!IstPaar(d.cboPersonen, paar)) return false;
    MarkerEntfernen(w);
    const PersonSatz erster(d.cboPersonen.Satz(paar.first));
    const PersonSatz zweiter(d.cboPersonen.Satz(paar.second));
    if (erster.Nr().empty() || zweiter.Nr().empty()) {
        KeineAktion(w);
        return false;
    }
    MarkierungsListBoxenLöschen(w.auswahl, w.lage);
    const bool neu = PLinieVonNach(d, erster.Nr(), zweiter.Nr()) < 0;
    if (neu) PaarVerbinden(d, w.ansicht, paar);
    else d.NeuePLinienNr(); // a number is taken for a pair that has a line already, and stays taken. Meant.
    w.fenster.Vorschau();
    return neu;
}

void BezLAbbrechen(Werkbank &w) {
    if (w.lage.Aktion != Aktion::BeziehungZiehen) return;
    Satzliste &linien = w.dokument.cboBeziehungsLinien;
    if (Gültig(linien, w.lage.BezAuswahl)) linien.Entfernen(w.lage.BezAuswahl);
    PositionenVergessen(w.lage);
    Aktion_Nichts(w.lage);
    w.fenster.Vorschau();
}

} // namespace kw
