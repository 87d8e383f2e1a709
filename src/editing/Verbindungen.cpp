#include "editing/Verbindungen.h"

#include "document/Felder.h"
#include "document/Texte.h"
#include "document/Zahlen.h"
#include "editing/Marker.h"
#include "editing/Treffer.h"
#include "rendering/Symbole.h"

#include <algorithm>

namespace kw {

namespace {

constexpr std::string_view NeuePersonEnde = "_0__0_0______";
constexpr double ElternAbstand = 3.6; ///< between the two of a new couple, cm
constexpr double ElternPlatz = 5.0;   ///< that a new couple needs to the right

double GerastertZehntel(double wert, double raster) { return Gerundet(Gerastert(wert, raster), 1); }

/// Appends a person without names, dates and marks; gives its number.
std::string PersonAnhängen(Werkbank &w, int typ, double x, double y) {
    std::string nr = w.dokument.NeuePersNr();
    w.dokument.cboPersonen.Anhängen(nr + "_" + std::to_string(typ) + "_" + ZahlSchreiben(x) + "_" + ZahlSchreiben(y) +
                                    "_" + ZahlSchreiben(w.lage.SymbolGröße) + std::string(NeuePersonEnde));
    return nr;
}

struct Partner {
    std::string Nr;
    double X, Y;
};

Partner PartnerBei(const Dokument &d, int position) {
    const Felder feld(d.cboPersonen.Satz(position));
    return {std::string(feld[PersonFeld::Nr]), ZahlLesen(feld[PersonFeld::PosX]), ZahlLesen(feld[PersonFeld::PosY])};
}

std::string PartnerschaftSatz(const std::string &nr, const Partner &a, const Partner &b, double balkenY) {
    const auto z = [](double zahl) { return "_" + ZahlSchreiben(zahl); };
    return nr + "_" + z(a.X) + z(balkenY) + z(b.X) + z(balkenY) + "_" + a.Nr + "_" + b.Nr + z(a.Y) + z(b.Y) + z(a.X) +
           z(b.X) + "__";
}

bool GibtEsPartnerschaft(const Dokument &d, std::string_view nr1, std::string_view nr2) {
    const auto &linien = d.cboPartnerschaftsLinien;
    return std::any_of(linien.begin(), linien.end(), [&](const std::string &satz) {
        const Felder feld(satz);
        return feld.OderLeer(PLinieFeld::PersNr1) == nr1 && feld.OderLeer(PLinieFeld::PersNr2) == nr2;
    });
}

/// The pair that a link gesture or a twin command joins, as positions; the earlier person of a gesture first.
std::pair<int, int> Paar(const Werkbank &w) {
    if (w.lage.Aktion == Aktion::ElternPrüfen)
        return {PersonMitNr(w.dokument, w.lage.PersNrA), PersonMitNr(w.dokument, w.lage.PersNrB)};
    const auto [a, b] = std::minmax(w.lage.ZielPerson, w.lage.PersAuswahl);
    return {a - 1, b - 1};
}

bool GibtEs(const Dokument &d, int position) {
    return position >= 0 && position < d.cboPersonen.Anzahl() &&
           Felder(d.cboPersonen.Satz(position)).Anzahl() >= PersonFeld::Anzahl;
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

/// The hidden label's change event: marks the link target.
void ZielAnzeigen(Werkbank &w) {
    Leinwandlage &lage = w.lage;
    Auflagenform &ziel = w.auflagen.shpPerson;
    w.auswahl.lstMovedPers.Leeren();
    for (Auflagenlinie &linie : w.auflagen.MarkLine) linie.Visible = false;
    ziel.Visible = lage.ZielPerson >= 1;
    if (!ziel.Visible) return;
    w.auswahl.lstMovedPers.Anhängen(std::to_string(lage.ZielPerson));
    w.auswahl.lstMovedPers.Anhängen(std::to_string(lage.PersAuswahl));
    const Felder feld(w.dokument.cboPersonen.Satz(lage.ZielPerson - 1));
    const double x = ZahlLesen(feld[PersonFeld::PosX]);
    const double y = ZahlLesen(feld[PersonFeld::PosY]);
    const double größe = ZahlLesen(feld[PersonFeld::Groesse]);
    const int typ = SymbolKennzahl(feld[PersonFeld::Symboltyp]);
    ziel.Shape = typ == TypWeiblich || typ == TypMännlichZuWeiblich ? Umriss::Kreis : Umriss::Quadrat;
    const double raster = w.ansicht.Rasterweite;
    ziel.Legen(GerastertZehntel(x - größe / 2, raster), GerastertZehntel(y - größe / 2, raster), größe + 0.02,
               größe + 0.02);
    if (typ == TypSchwangerschaft) ZielUmreißen(w.auflagen, Dreieck(x, y, größe));
    if (typ == TypDivers) {
        auto ecken = Sechseck(x, y, größe);
        std::rotate(ecken.begin(), ecken.begin() + 4, ecken.end()); // five lines: the lower edge stays open
        ZielUmreißen(w.auflagen, ecken);
    }
    ziel.Visible = typ != TypSchwangerschaft && typ != TypDivers;
}

} // namespace

void PersonAnlegen(Werkbank &w, const Importperson *import) {
    if (w.lage.Aktion != Aktion::PersonSetzen) return;
    const double raster = w.ansicht.Rasterweite;
    const double x = GerastertZehntel(w.lage.MausX, raster);
    const double y = GerastertZehntel(w.lage.MausY, raster);
    if (import) w.dokument.cboPersonen.Anhängen(ImportSatz(*import, w.dokument.NeuePersNr(), x, y, GrößeNormal));
    else PersonAnhängen(w, w.lage.SymbolTyp, x, y);
    MarkierungsListBoxenLöschen(w);
    w.fenster.Vorschau();
}

void ElternAnlegen(Werkbank &w) {
    const double raster = w.ansicht.Rasterweite;
    const double rechtsaußen = w.ansicht.SeitenBreite - ElternPlatz;
    const double y = GerastertZehntel(w.lage.MausY, raster);
    const double x1 = GerastertZehntel(std::min(w.lage.MausX, rechtsaußen), raster);
    const double x2 = GerastertZehntel(x1 + ElternAbstand, raster);
    const Partner vater{PersonAnhängen(w, TypMännlich, x1, y), x1, y};
    const Partner mutter{PersonAnhängen(w, TypWeiblich, x2, y), x2, y};
    const std::string nr = w.dokument.NeuePLinienNr();
    w.dokument.cboPartnerschaftsLinien.Anhängen(PartnerschaftSatz(nr, vater, mutter, Gerundet(y + BalkenAbstand, 1)));
    w.lage.Aktion = Aktion::Nichts;
    w.fenster.Vorschau();
    w.fenster.Sichern();
}

void RubberStart(Werkbank &w) {
    const int i = PersonMitNr(w.dokument, w.lage.PersNr);
    w.lage.lblPersAuswahl.clear(); // the first target of this gesture counts as a new one
    w.lage.ZielPerson = 0;
    if (i < 0) return;
    const Felder feld(w.dokument.cboPersonen.Satz(i));
    w.lage.SymbolGröße = ZahlLesen(feld.OderLeer(PersonFeld::Groesse)); // a tool may have left another one
    w.lage.GummiX = ZahlLesen(feld.OderLeer(PersonFeld::PosX));
    w.lage.GummiY = ZahlLesen(feld.OderLeer(PersonFeld::PosY));
}

void mnuPartnerschaftsLinie(Werkbank &w) {
    RubberStart(w);
    w.lage.Aktion = Aktion::PartnerschaftZiehen;
}

void mnuBeziehungErstellen2(Werkbank &w) {
    w.lage.Info.Visible = false;
    RubberStart(w);
    w.lage.Aktion = Aktion::BeziehungZiehen;
    w.auflagen.Line1.Visible = true;
}

void mnuKindVon(Werkbank &w) {
    RubberStart(w);
    w.lage.Aktion = Aktion::KindZiehen;
    w.lage.PLinieUnterMaus = false;
}

void LinkZiehen(Werkbank &w, double x, double y) {
    Leinwandlage &lage = w.lage;
    lage.ZielPerson = PersonBei(w.dokument, x, y) + 1;
    if (lage.ZielPerson == lage.PersAuswahl) return;
    w.auflagen.Line1.Legen(lage.GummiX, lage.GummiY, x, y);
    w.auflagen.Line1.Visible = true;
    const std::string ziel = std::to_string(lage.ZielPerson);
    if (ziel == lage.lblPersAuswahl) return;
    lage.lblPersAuswahl = ziel;
    ZielAnzeigen(w);
}

void PartnerschaftAnlegen(Werkbank &w) {
    Dokument &d = w.dokument;
    const auto [a, b] = Paar(w);
    if (w.lage.Aktion != Aktion::ElternPrüfen) w.lage.Aktion = Aktion::Nichts;
    if (a == b || !GibtEs(d, a) || !GibtEs(d, b)) return;
    MarkerEntfernen(w);
    const Partner erster = PartnerBei(d, a);
    const Partner zweiter = PartnerBei(d, b);
    if (erster.Nr.empty() || zweiter.Nr.empty()) {
        KeineAktion(w);
        return;
    }
    // The number is taken before the pair is looked up, and stays taken when it has a line already. Meant.
    const std::string nr = d.NeuePLinienNr();
    MarkierungsListBoxenLöschen(w);
    const bool neu = !GibtEsPartnerschaft(d, erster.Nr, zweiter.Nr);
    // The bar isn't snapped: it hangs as far below the lower partner as every new one.
    if (neu)
        d.cboPartnerschaftsLinien.Anhängen(
            PartnerschaftSatz(nr, erster, zweiter, std::max(erster.Y, zweiter.Y) + BalkenAbstand));
    if (neu) w.fenster.Sichern();
    w.fenster.Vorschau();
}

void BeziehungAnlegen(Werkbank &w) {
    constexpr size_t PaarLänge = 7; // "001_002"
    Dokument &d = w.dokument;
    const auto [a, b] = Paar(w);
    if (a == b || !GibtEs(d, a) || !GibtEs(d, b)) {
        MarkierungsListBoxenLöschen(w);
        Aktion_Nichts(w);
        w.fenster.Vorschau();
        return;
    }
    MarkerEntfernen(w);
    const Partner erster = PartnerBei(d, a);
    const Partner zweiter = PartnerBei(d, b);
    if (Getrimmt(erster.Nr).empty() || Getrimmt(zweiter.Nr).empty()) return;
    const std::string satz = "_0_" + ZahlSchreiben(erster.X) + "_" + ZahlSchreiben(erster.Y) + "_" +
                             ZahlSchreiben(zweiter.X) + "_" + ZahlSchreiben(zweiter.Y) + "_" + erster.Nr + "_" +
                             zweiter.Nr;
    const std::string_view paar = std::string_view(satz).substr(satz.size() - PaarLänge);
    MarkierungsListBoxenLöschen(w);
    const auto &linien = d.cboBeziehungsLinien;
    if (std::any_of(linien.begin(), linien.end(), [&](const std::string &l) { return l.ends_with(paar); })) return;
    d.cboBeziehungsLinien.Anhängen(satz);
    w.lage.BezAuswahl = linien.Anzahl() - 1;
    w.lage.Aktion = Aktion::BeziehungGewählt;
    w.fenster.Vorschau();
    w.lage.Aktion = Aktion::BeziehungZiehen; // the form tells a new line by it
    w.fenster.FormÖffnen("frmBezLinien");
}

void BezLAbbrechen(Werkbank &w) {
    if (w.lage.Aktion != Aktion::BeziehungZiehen) return;
    Satzliste &linien = w.dokument.cboBeziehungsLinien;
    if (w.lage.BezAuswahl >= 0 && w.lage.BezAuswahl < linien.Anzahl()) linien.Entfernen(w.lage.BezAuswahl);
    PositionenVergessen(w.lage);
    Aktion_Nichts(w);
    w.fenster.Vorschau();
}

} // namespace kw
