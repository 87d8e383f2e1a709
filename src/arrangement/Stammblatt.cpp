#include "arrangement/Stammblatt.h"

#include "arrangement/Familienauszug.h"
#include "arrangement/Ordner.h"
#include "arrangement/Seitenplatz.h"
#include "arrangement/Umzug.h"
#include "document/Dokument.h"
#include "document/Nachschlagen.h"
#include "document/Zahlen.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "editing/Kinder.h"
#include "layout/Familienlage.h"
#include "rendering/Beschriftung.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <span>
#include <utility>

namespace kw {

namespace {

constexpr double Rand = Ordner::Seitenrand;
constexpr int Hoch = 1, Quer = 2;

struct Maßstab {
    double Symbol;
    Luft Frei;
};
/// The better to read, the sooner.
constexpr std::array Maßstäbe{Maßstab{1.2, VonHand}, Maßstab{1.2, Schmal}, Maßstab{1.2, Lesbar},
                              Maßstab{KleinstesSymbol, Schmal}, Maßstab{KleinstesSymbol, Lesbar}};
constexpr std::size_t Üblichgroße = 3; ///< of these

/// Any number that grows with time; a year alone counts as its beginning.
std::optional<long> Reihung(const Kalendertag &tag) {
    if (tag.Jahr == 0) return std::nullopt;
    return (tag.Jahr * 12L + tag.Monat) * 31 + tag.Tag;
}

Blattwahl Blatt(int code, int lage, double symbol) {
    const Papier &papier = PapierMit(code);
    if (lage == Quer) return {code, lage, symbol, papier.Höhe, papier.Breite};
    return {code, lage, symbol, papier.Breite, papier.Höhe};
}

/// All sheets, the small ones first, of two of about one size the usual one.
std::array<Blattwahl, 2 * Papiere.size()> Blätter(int üblich, double symbol) {
    const std::array folge =
        üblich == UsLetter ? std::array{DinA5, UsLetter, DinA4} : std::array{DinA5, DinA4, UsLetter};
    std::array<Blattwahl, 2 * Papiere.size()> blätter;
    for (std::size_t i = 0; i < blätter.size(); ++i) blätter[i] = Blatt(folge[i / 2], i % 2 ? Hoch : Quer, symbol);
    return blätter;
}

std::string NrVon(std::uint32_t stelle) { return Dreistellig(static_cast<int>(stelle) + 1); }

class Leger {
  public:
    Leger(const Übernahme &ü, std::uint32_t proband, const Blattregeln &regeln, Zeichenfläche &fläche)
        : ü_(ü), regeln_(regeln) {
        for (std::uint32_t i = 0; i < ü.Personen.size(); ++i) {
            personen_.push_back(Personensatz(i, i == proband));
            const PersonSatz satz(personen_.back());
            breiten_.push_back(Namensbreite(fläche, satz));
            const double halb = breiten_.back() / 2;
            graph_.Personen.push_back({GeschlechtVon(satz), Reihung(ü.Personen[i].Geboren), halb, halb, {}, {}});
        }
        for (const Übernahmepaar &paar : ü.Paare) graph_.Familien.push_back(FamilieVon(paar));
    }

    Stammblatt Legen(Dokument &d) {
        const std::span versuche(Maßstäbe.data(), regeln_.Kleiner ? Maßstäbe.size() : Üblichgroße);
        for (const Maßstab &maßstab : versuche) {
            const bool letzter = &maßstab == &versuche.back();
            const Abstände maße = MaßeFür(maßstab.Symbol, regeln_.Raster, maßstab.Frei);
            if (!letzter && !KannPassen(maße)) continue;
            lage_ = FamilieAnordnen(graph_, maße);
            Messen(maßstab.Symbol);
            if (AufBlatt(maßstab.Symbol, letzter && regeln_.AuchDarüber)) break;
        }
        if (ergebnis_.Blatt) Eintragen(d);
        return ergebnis_;
    }

  private:
    std::string Personensatz(std::uint32_t i, bool proband) const {
        const Übernahmeperson &p = ü_.Personen[i];
        PersonBau satz;
        satz.Nr(NrVon(i)).Symboltyp(p.Angaben.Symboltyp).Ort(0, 0).Groesse(Maßstäbe.front().Symbol);
        satz.IndexPerson(proband ? "1" : "0").Sterbealter(p.Angaben.Sterbealter).Sucht("0").Erkrankung("0");
        satz.Vorname(p.Angaben.Vorname).Nachname(p.Angaben.Nachname).Geburtsdatum(p.Angaben.Geburtsdatum);
        if (p.Paar != Keine) satz.ElternLinie(NrVon(p.Paar));
        if (p.Zwilling != Keine) satz.Zwilling((p.Eineiig ? "1E" : "2E") + NrVon(p.Zwilling));
        return satz.Text();
    }

    Familie FamilieVon(const Übernahmepaar &paar) const {
        Familie familie;
        familie.Partner = {static_cast<int>(paar.Erster), static_cast<int>(paar.Zweiter)};
        for (const std::uint32_t kind : paar.Kinder) {
            familie.Kinder.push_back(static_cast<int>(kind));
            const std::uint32_t zwilling = ü_.Personen[kind].Zwilling;
            if (zwilling != Keine && zwilling > kind)
                familie.Zwillinge.push_back({static_cast<int>(kind), static_cast<int>(zwilling)});
        }
        return familie;
    }

    /// Whether some sheet has places for so many: a layout of a crowd takes its time.
    bool KannPassen(const Abstände &maße) const {
        const auto reihe = [](double platz, double symbol, double abstand) {
            return static_cast<std::size_t>(std::floor(OhneRauschen((platz - 2 * Rand - symbol) / abstand))) + 1;
        };
        const auto alle = Blätter(regeln_.Papiercode, maße.Symbol);
        return std::any_of(alle.begin(), alle.end(), [&](const Blattwahl &b) {
            return graph_.Personen.size() <=
                   reihe(b.Breite, maße.Symbol, maße.Personen) * reihe(b.Höhe, maße.Symbol, maße.Generationen);
        });
    }

    /// What all of it takes, with names and bars.
    void Messen(double symbol) {
        std::vector<Umgebung> kästen;
        std::map<long, std::size_t> reihen;
        ergebnis_.BreitesteReihe = 0;
        for (std::size_t i = 0; i < lage_.Personen.size(); ++i) {
            kästen.push_back(Personenkasten(PersonSatz(personen_[i]), lage_.Personen[i], symbol, breiten_[i]));
            ergebnis_.BreitesteReihe =
                std::max(ergebnis_.BreitesteReihe, ++reihen[std::lround(lage_.Personen[i].Y * 1000)]);
        }
        for (std::size_t i = 0; i < lage_.Balken.size(); ++i) {
            Umgebung balken;
            for (const int partner : graph_.Familien[i].Partner)
                balken.Aufnehmen(lage_.Personen[static_cast<std::size_t>(partner)].X, lage_.Balken[i]);
            kästen.push_back(balken);
        }
        platz_ = UmAlle(kästen);
        ergebnis_.Personen = lage_.Personen.size();
        ergebnis_.Generationen = static_cast<int>(reihen.size());
        ergebnis_.Breite = platz_.Rechts - platz_.Links + 2 * Rand;
        ergebnis_.Höhe = platz_.Unten - platz_.Oben + 2 * Rand;
    }

    bool AufBlatt(double symbol, bool auchDarüber) {
        for (const Blattwahl &blatt : Blätter(regeln_.Papiercode, symbol)) {
            Umgebung seite;
            seite.Aufnehmen(Rand, Rand, blatt.Breite - 2 * Rand, blatt.Höhe - 2 * Rand);
            const auto weg = PlatzFinden({{platz_}, {}, seite, {seite.MitteX(), seite.MitteY()}, regeln_.Raster});
            if (!weg) continue;
            ergebnis_.Blatt = blatt;
            weg_ = *weg;
            return true;
        }
        if (!auchDarüber) return false;
        const auto aufRaster = [&](double cm) { return std::ceil(OhneRauschen(cm / regeln_.Raster)) * regeln_.Raster; };
        ergebnis_.Blatt = Blatt(regeln_.Papiercode, Quer, symbol);
        ergebnis_.LiegtDarüber = true;
        weg_ = {aufRaster(Rand - platz_.Links), aufRaster(Rand - platz_.Oben)};
        return true;
    }

    std::pair<double, double> Stelle(std::uint32_t i) const {
        const Ort &ort = lage_.Personen[i];
        return {Gerundet(ort.X + weg_.X, 2), Gerundet(ort.Y + weg_.Y, 2)};
    }

    void Eintragen(Dokument &d) const {
        d.Papiercode = ergebnis_.Blatt->Papiercode;
        d.Seitenlage = ergebnis_.Blatt->Seitenlage;
        for (std::uint32_t i = 0; i < personen_.size(); ++i) {
            const auto [x, y] = Stelle(i);
            d.cboPersonen.Anhängen(PersonBau(personen_[i]).Ort(x, y).Groesse(ergebnis_.Blatt->Symbol).Text());
        }
        for (std::uint32_t i = 0; i < ü_.Paare.size(); ++i) PaarEintragen(i, d);
        const Bezüge bezüge(d);
        for (int i = 0; i < d.cboPartnerschaftsLinien.Anzahl(); ++i)
            KinderAnpassen(d, bezüge, d.cboPartnerschaftsLinien.Satz(i));
    }

    void PaarEintragen(std::uint32_t i, Dokument &d) const {
        const Übernahmepaar &paar = ü_.Paare[i];
        const auto [x1, y1] = Stelle(paar.Erster);
        const auto [x2, y2] = Stelle(paar.Zweiter);
        const double balken = Gerundet(lage_.Balken[i] + weg_.Y, 2);
        std::string daten;
        for (std::size_t k = 0; k < paar.Angaben.Daten.size(); ++k) daten += (k ? "#" : "") + paar.Angaben.Daten.at(k);
        PartnerschaftBau satz;
        satz.Nr(NrVon(i)).Status(paar.Angaben.Status).BalkenX1(x1).BalkenX2(x2).BalkenY(balken);
        satz.PersNr1(NrVon(paar.Erster)).PersNr2(NrVon(paar.Zweiter)).Anschluss1(x1, y1).Anschluss2(x2, y2);
        d.cboPartnerschaftsLinien.Anhängen(satz.Daten(daten).Text());
        for (const std::uint32_t kind : paar.Kinder) {
            const auto [x, y] = Stelle(kind);
            KindBau linie;
            linie.KindNr(NrVon(kind)).Kindart(std::to_string(ü_.Personen[kind].Kindart)).PLinie(NrVon(i));
            d.cboKindlinien.Anhängen(linie.KindX(x).KindY(y).LinieX(x).LinieY(balken).Text());
        }
    }

    const Übernahme &ü_;
    const Blattregeln &regeln_;
    std::vector<std::string> personen_; ///< records, without a place
    std::vector<double> breiten_;       ///< of their names, cm
    Familiengraph graph_;
    Familienlage lage_; ///< of the last try
    Umgebung platz_;    ///< that this takes
    Ort weg_;           ///< from there onto the sheet
    Stammblatt ergebnis_;
};

} // namespace

Stammblatt BlattFüllen(const Übernahme &übernahme, std::uint32_t proband, const Blattregeln &regeln,
                       Zeichenfläche &fläche, Dokument &dokument) {
    return Leger(übernahme, proband, regeln, fläche).Legen(dokument);
}

} // namespace kw
