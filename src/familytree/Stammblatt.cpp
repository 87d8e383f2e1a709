#include "familytree/Stammblatt.h"

#include "arrangement/Seitenplatz.h"
#include "document/Dokument.h"
#include "document/Nachschlagen.h"
#include "document/Papier.h"
#include "document/Zahlen.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "editing/Kinder.h"
#include "layout/Familienlage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <utility>

namespace kw {

namespace {

constexpr double Rand = 1;     ///< of the sheet, cm
constexpr double Raster = 0.3; ///< that a new page has, cm
constexpr int Hoch = 1, Quer = 2;

/// Sheets by size, the usual one before another of its size.
constexpr std::array Blätter{std::pair(DinA5, Quer), std::pair(DinA5, Hoch),    std::pair(DinA4, Quer),
                             std::pair(DinA4, Hoch), std::pair(UsLetter, Quer), std::pair(UsLetter, Hoch)};

struct Maßstab {
    double Symbol;
    bool Eng;
};
constexpr std::array Maßstäbe{Maßstab{1.2, false}, Maßstab{1.2, true}, Maßstab{0.9, true}};

Geschlecht GeschlechtVon(int typ) {
    const bool mann = typ == TypMännlich || typ == TypWeiblichZuMännlich || typ == TypTotgeburtMännlich;
    const bool frau = typ == TypWeiblich || typ == TypMännlichZuWeiblich || typ == TypTotgeburtWeiblich;
    return mann ? Geschlecht::Mann : frau ? Geschlecht::Frau : Geschlecht::Unbekannt;
}

/// Any number that grows with time; a year alone counts as its beginning.
std::optional<long> Reihung(const Kalendertag &tag) {
    if (tag.Jahr == 0) return std::nullopt;
    return (tag.Jahr * 12L + tag.Monat) * 31 + tag.Tag;
}

Familiengraph GraphVon(const Übernahme &ü, const Namensmaß &maß) {
    Familiengraph graph;
    for (const Übernahmeperson &p : ü.Personen) {
        const double halb = maß(p.Angaben.Vorname, p.Angaben.Nachname) / 2;
        graph.Personen.push_back({GeschlechtVon(p.Angaben.Symboltyp), Reihung(p.Geboren), halb, halb, {}, {}});
    }
    for (const Übernahmepaar &paar : ü.Paare) {
        Familie familie;
        familie.Partner = {static_cast<int>(paar.Erster), static_cast<int>(paar.Zweiter)};
        for (const std::uint32_t kind : paar.Kinder) {
            familie.Kinder.push_back(static_cast<int>(kind));
            const std::uint32_t zwilling = ü.Personen[kind].Zwilling;
            if (zwilling != Keine && zwilling > kind)
                familie.Zwillinge.push_back({static_cast<int>(kind), static_cast<int>(zwilling)});
        }
        graph.Familien.push_back(std::move(familie));
    }
    return graph;
}

/// What all of them take, with their names.
Umgebung Platz(const Übernahme &ü, const Familiengraph &graph, const Familienlage &lage, double symbol) {
    std::vector<Umgebung> kästen;
    for (size_t i = 0; i < ü.Personen.size(); ++i) {
        const Personenangaben &p = ü.Personen[i].Angaben;
        const bool benannt = !p.Vorname.empty() || !p.Nachname.empty();
        const double breite = std::max(symbol, graph.Personen[i].BreiteLinks + graph.Personen[i].BreiteRechts);
        Umgebung u;
        u.Aufnehmen(lage.Personen[i].X - breite / 2, lage.Personen[i].Y - symbol / 2, breite,
                    symbol + (benannt ? Namenshöhe : 0));
        kästen.push_back(u);
    }
    return UmAlle(kästen);
}

const Papier &PapierMit(int code) {
    return *std::find_if(Papiere.begin(), Papiere.end(), [code](const Papier &p) { return p.Code == code; });
}

std::optional<Blattwahl> BlattFür(const Umgebung &platz, double symbol) {
    for (const auto &[code, lage] : Blätter) {
        const Papier &papier = PapierMit(code);
        Blattwahl blatt{code, lage, symbol, papier.Breite, papier.Höhe};
        if (lage == Quer) std::swap(blatt.Breite, blatt.Höhe);
        if (platz.Rechts - platz.Links <= blatt.Breite - 2 * Rand && platz.Unten - platz.Oben <= blatt.Höhe - 2 * Rand)
            return blatt;
    }
    return std::nullopt;
}

std::string NrVon(std::uint32_t stelle) { return Dreistellig(static_cast<int>(stelle) + 1); }

class Schreiber {
  public:
    Schreiber(const Übernahme &ü, const Familienlage &lage, Ort weg, double symbol, Dokument &d)
        : ü_(ü), lage_(lage), weg_(weg), symbol_(symbol), d_(d) {}

    void Person(std::uint32_t i, bool proband) {
        const Übernahmeperson &p = ü_.Personen[i];
        PersonBau satz;
        const auto [x, y] = Stelle(i);
        satz.Nr(NrVon(i)).Symboltyp(p.Angaben.Symboltyp).Ort(x, y).Groesse(symbol_);
        satz.IndexPerson(proband ? "1" : "0").Sterbealter(p.Angaben.Sterbealter).Sucht("0").Erkrankung("0");
        satz.Vorname(p.Angaben.Vorname).Nachname(p.Angaben.Nachname).Geburtsdatum(p.Angaben.Geburtsdatum);
        if (p.Paar != Keine) satz.ElternLinie(NrVon(p.Paar));
        if (p.Zwilling != Keine) satz.Zwilling((p.Eineiig ? "1E" : "2E") + NrVon(p.Zwilling));
        d_.cboPersonen.Anhängen(satz.Text());
    }
    void Paar(std::uint32_t i) {
        const Übernahmepaar &paar = ü_.Paare[i];
        const auto [x1, y1] = Stelle(paar.Erster);
        const auto [x2, y2] = Stelle(paar.Zweiter);
        const double balken = Gerundet(lage_.Balken[i] + weg_.Y, 2);
        std::string daten;
        for (const std::string &text : paar.Angaben.Daten)
            daten += (daten.empty() && &text == paar.Angaben.Daten.data() ? "" : "#") + text;
        PartnerschaftBau satz;
        satz.Nr(NrVon(i)).Status(paar.Angaben.Status).BalkenX1(x1).BalkenX2(x2).BalkenY(balken);
        satz.PersNr1(NrVon(paar.Erster)).PersNr2(NrVon(paar.Zweiter)).Anschluss1(x1, y1).Anschluss2(x2, y2);
        d_.cboPartnerschaftsLinien.Anhängen(satz.Daten(daten).Text());
        for (const std::uint32_t kind : paar.Kinder) Kind(kind, i, balken);
    }

  private:
    std::pair<double, double> Stelle(std::uint32_t i) const {
        const Ort &ort = lage_.Personen[i];
        return {Gerundet(ort.X + weg_.X, 2), Gerundet(ort.Y + weg_.Y, 2)};
    }
    void Kind(std::uint32_t i, std::uint32_t paar, double balken) {
        const auto [x, y] = Stelle(i);
        KindBau satz;
        satz.KindNr(NrVon(i)).Kindart(std::to_string(ü_.Personen[i].Kindart)).PLinie(NrVon(paar));
        d_.cboKindlinien.Anhängen(satz.KindX(x).KindY(y).LinieX(x).LinieY(balken).Text());
    }

    const Übernahme &ü_;
    const Familienlage &lage_;
    const Ort weg_;
    const double symbol_;
    Dokument &d_;
};

void Eintragen(const Übernahme &ü, std::uint32_t proband, const Familienlage &lage, Ort weg, const Blattwahl &blatt,
               Dokument &d) {
    d.Papiercode = blatt.Papiercode;
    d.Seitenlage = blatt.Seitenlage;
    Schreiber schreiber(ü, lage, weg, blatt.Symbol, d);
    for (std::uint32_t i = 0; i < ü.Personen.size(); ++i) schreiber.Person(i, i == proband);
    for (std::uint32_t i = 0; i < ü.Paare.size(); ++i) schreiber.Paar(i);
    const Bezüge bezüge(d);
    for (int i = 0; i < d.cboPartnerschaftsLinien.Anzahl(); ++i)
        KinderAnpassen(d, bezüge, d.cboPartnerschaftsLinien.Satz(i));
}

void Zählen(const Familienlage &lage, Stammblatt &ergebnis) {
    std::map<long, std::size_t> reihen;
    for (const Ort &ort : lage.Personen)
        ergebnis.BreitesteReihe = std::max(ergebnis.BreitesteReihe, ++reihen[std::lround(ort.Y * 1000)]);
    ergebnis.Generationen = static_cast<int>(reihen.size());
    ergebnis.Personen = lage.Personen.size();
}

} // namespace

Stammblatt BlattFüllen(const Übernahme &ü, std::uint32_t proband, const Namensmaß &maß, Dokument &dokument) {
    const Familiengraph graph = GraphVon(ü, maß);
    Stammblatt ergebnis;
    for (const Maßstab &maßstab : Maßstäbe) {
        const Familienlage lage = FamilieAnordnen(graph, MaßeFür(maßstab.Symbol, Raster, maßstab.Eng));
        const Umgebung platz = Platz(ü, graph, lage, maßstab.Symbol);
        if (ergebnis.Personen == 0) {
            Zählen(lage, ergebnis);
            ergebnis.Breite = platz.Rechts - platz.Links;
            ergebnis.Höhe = platz.Unten - platz.Oben;
        }
        ergebnis.Blatt = BlattFür(platz, maßstab.Symbol);
        if (!ergebnis.Blatt) continue;
        Umgebung seite;
        seite.Aufnehmen(Rand, Rand, ergebnis.Blatt->Breite - 2 * Rand, ergebnis.Blatt->Höhe - 2 * Rand);
        const auto weg = PlatzFinden({{platz}, {}, seite, {seite.MitteX(), seite.MitteY()}, Raster});
        if (!weg) continue; // it would fit, but not on the grid
        Eintragen(ü, proband, lage, *weg, *ergebnis.Blatt, dokument);
        break;
    }
    return ergebnis;
}

} // namespace kw
