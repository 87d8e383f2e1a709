#include "arrangement/Umzug.h"

#include "arrangement/Begleitung.h"
#include "arrangement/Seitenplatz.h"

#include "document/Dokument.h"
#include "document/Nachschlagen.h"
#include "document/Zahlen.h"
#include "document/saetze/Kreislinie.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "editing/Elemente.h"
#include "editing/Gruppenart.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Kreisumriss.h"
#include "editing/Personen.h"
#include "editing/Pfeile.h"
#include "editing/Werkbank.h"
#include "rendering/Ansicht.h"
#include "rendering/Beschriftung.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kw {

namespace {

class Umzugswagen {
  public:
    Umzugswagen(const Dokument &dokument, const Ansicht &ansicht, const Umzug &umzug)
        : d_(dokument), ansicht_(ansicht), umzug_(umzug) {
        for (int i = 0; i < d_.cboPersonen.Anzahl(); ++i) {
            const PersonSatz person(d_.cboPersonen.Satz(i), Lücken::Leer);
            const auto neu = umzug_.Personen.find(i);
            const Ort alt{person.PosX(), person.PosY()};
            alte_.push_back(alt);
            neue_.push_back(neu == umzug_.Personen.end() ? alt : neu->second);
        }
    }

    /// The record at its new place.
    std::string Mitgenommen(const Gruppenart &art, std::string_view satz) const {
        const auto nächste = NächstePerson(d_, Mitte(art, satz));
        const Ort weg = nächste ? Weg(static_cast<size_t>(*nächste)) : Ort{};
        return weg.X == 0 && weg.Y == 0 ? std::string(satz) : art.Verschoben(satz, weg.X, weg.Y);
    }

    /// The circle line that holds whom `satz` held, whose stroke lies on no symbol that it didn't lie on; nothing
    /// where there is none that holds them.
    std::optional<std::string> Kreis(std::string_view satz) const {
        const Kreisbefund sollen = Befund(satz, alte_, JedeGröße);
        std::vector<std::string> versuche{MitDenSeinen(satz, sollen.Gehalten), std::string(satz)};
        std::vector<Umgebung> drinnen;
        std::vector<Umgebung> draußen;
        for (size_t i = 0; i < alte_.size(); ++i) {
            const PersonSatz person(d_.cboPersonen.Satz(static_cast<int>(i)), Lücken::Leer);
            (sollen.Gehalten[i] ? drinnen : draußen)
                .push_back(Personenkasten(person, neue_[i], std::min(person.Groesse(), umzug_.Größe), 0));
        }
        if (!drinnen.empty())
            for (const auto &punkte :
                 {KreisUm(UmAlle(drinnen)), KreisUmAlle(drinnen, draußen, ansicht_.SeitenBreite, ansicht_.SeitenHöhe)})
                if (!punkte.empty()) versuche.push_back(AufSeite(punkte));
        std::optional<std::string> bester;
        for (std::string &kreis : versuche) {
            const Kreisbefund ist = Befund(kreis, neue_, umzug_.Größe);
            if (ist.Gehalten != sollen.Gehalten) continue;
            if (BerührtNiemandNeues(sollen.Lagen, ist.Lagen)) return std::move(kreis);
            if (!bester) bester = std::move(kreis);
        }
        return bester;
    }

  private:
    static Ort Mitte(const Gruppenart &art, std::string_view satz) {
        Umgebung u;
        art.Umgeben(satz, u);
        return {u.MitteX(), u.MitteY()};
    }
    Ort Weg(size_t person) const { return {neue_[person].X - alte_[person].X, neue_[person].Y - alte_[person].Y}; }

    /// Along with the one that is nearest to its middle of those that it holds, or of all.
    std::string MitDenSeinen(std::string_view satz, const std::vector<bool> &seine) const {
        const Ort mitte = Mitte(KreislinienInGruppen, satz);
        std::optional<size_t> nächster;
        const auto ferne = [&](size_t i) { return std::hypot(alte_[i].X - mitte.X, alte_[i].Y - mitte.Y); };
        for (size_t i = 0; i < alte_.size(); ++i)
            if (seine[i] && (!nächster || ferne(i) < ferne(*nächster))) nächster = i;
        const Ort weg = nächster ? Weg(*nächster) : Ort{};
        if (!nächster) return Mitgenommen(KreislinienInGruppen, satz);
        return weg.X == 0 && weg.Y == 0 ? std::string(satz) : KreisVerschoben(satz, weg.X, weg.Y);
    }

    struct Kreisbefund {
        std::vector<bool> Gehalten;   ///< by their centres
        std::vector<Kreislage> Lagen; ///< of their symbols
    };
    Kreisbefund Befund(std::string_view kreis, const std::vector<Ort> &orte, double größe) const {
        const Kreisinneres inneres(kreis, ansicht_.Glättungsgrad);
        Kreisbefund befund;
        for (size_t i = 0; i < orte.size(); ++i) {
            const double breite =
                std::min(größe, PersonSatz(d_.cboPersonen.Satz(static_cast<int>(i)), Lücken::Leer).Groesse());
            Umgebung symbol;
            symbol.Aufnehmen(orte[i].X - breite / 2, orte[i].Y - breite / 2, breite, breite);
            befund.Gehalten.push_back(inneres.Hält(orte[i].X, orte[i].Y));
            befund.Lagen.push_back(inneres.Lage(symbol));
        }
        return befund;
    }
    static bool BerührtNiemandNeues(const std::vector<Kreislage> &vorher, const std::vector<Kreislage> &nachher) {
        return std::equal(vorher.begin(), vorher.end(), nachher.begin(),
                          [](Kreislage a, Kreislage b) { return a == b || a == Kreislage::AufDemStrich; });
    }

    std::string AufSeite(std::vector<Kreispunkt> punkte) const {
        for (Kreispunkt &p : punkte) {
            p.X = std::clamp(p.X, 0.0, ansicht_.SeitenBreite);
            p.Y = std::clamp(p.Y, 0.0, ansicht_.SeitenHöhe);
        }
        return KreisText(punkte);
    }

    const Dokument &d_;
    const Ansicht &ansicht_;
    const Umzug &umzug_;
    std::vector<Ort> alte_, neue_; ///< of all persons
};

bool Anders(double a, double b) { return Kleiner(a, b) || Kleiner(b, a); }

void PersonenSetzen(Dokument &d, const Umzug &umzug) {
    const Bezüge bezüge(d);
    std::map<std::string, Ort, std::less<>> gegangene; // a record that says nothing new stays as it was written
    for (const auto &[i, ort] : umzug.Personen) {
        const Ort neu{Gerundet(ort.X, 2), Gerundet(ort.Y, 2)};
        PersonBau person(d.cboPersonen.Satz(i));
        const bool schrumpft = Kleiner(umzug.Größe, person.Stand().Groesse());
        const bool geht = Anders(person.Stand().PosX(), neu.X) || Anders(person.Stand().PosY(), neu.Y);
        if (schrumpft) person.Groesse(umzug.Größe);
        if (geht) gegangene[std::string(person.Stand().Nr())] = neu;
        if (schrumpft || geht) d.cboPersonen.Ersetzen(i, person.Ort(neu.X, neu.Y).Text());
    }
    // When everybody stands where they will: twins' lines meet in the middle of both.
    for (const auto &[nr, ort] : gegangene) LinienDerPersonNachziehen(d, bezüge, nr, ort.X, ort.Y, umzug.Raster);
    for (const auto &[i, y] : umzug.Balken) {
        PartnerschaftBau linie(d.cboPartnerschaftsLinien.Satz(i));
        if (Anders(linie.Stand().BalkenY1(), Gerundet(y, 2)) || Anders(linie.Stand().BalkenY2(), Gerundet(y, 2)))
            d.cboPartnerschaftsLinien.Ersetzen(i, linie.BalkenY(Gerundet(y, 2)).Text());
        KinderAnpassen(d, bezüge, d.cboPartnerschaftsLinien.Satz(i));
    }
}

} // namespace

std::vector<Umgebung> Personenkästen(const PersonSatz &person, Ort ort, double größe, double namensbreite) {
    std::vector<Umgebung> kästen(1);
    kästen[0].Aufnehmen(ort.X - größe / 2, ort.Y - größe / 2, größe, größe);
    if (ZeigtNamen(person) && (!person.Vorname().empty() || !person.Nachname().empty()))
        kästen.emplace_back().Aufnehmen(ort.X - namensbreite / 2, ort.Y + größe / 2, namensbreite, Namenshöhe);
    return kästen;
}

Umgebung Personenkasten(const PersonSatz &person, Ort ort, double größe, double namensbreite) {
    return UmAlle(Personenkästen(person, ort, größe, namensbreite));
}

std::optional<int> NächstePerson(const Dokument &d, Ort ort) {
    std::optional<int> nächste;
    double ferne = 0;
    for (int i = 0; i < d.cboPersonen.Anzahl(); ++i) {
        const PersonSatz person(d.cboPersonen.Satz(i), Lücken::Leer);
        const double weit = std::hypot(person.PosX() - ort.X, person.PosY() - ort.Y);
        if (!person.HatOrt() || (nächste && weit >= ferne)) continue;
        nächste = i;
        ferne = weit;
    }
    return nächste;
}

bool Umziehen(Werkbank &w, const Umzug &umzug) {
    Dokument &d = w.dokument;
    const Umzugswagen wagen(d, w.ansicht, umzug);
    Begleitung texte(w);
    std::vector<std::string> kreise;
    for (int i = 0; i < d.cboFreehandlines.Anzahl(); ++i) {
        const std::string &satz = d.cboFreehandlines.Satz(i);
        auto neu = GibtEs(d, {Elementart::Kreis, i}) ? wagen.Kreis(satz) : std::optional(satz);
        if (!neu) return false;
        kreise.push_back(std::move(*neu));
    }
    for (int i = 0; i < d.cboPfeile.Anzahl(); ++i) // a damaged one stays as it is
        if (GibtEs(d, {Elementart::Pfeil, i}))
            d.cboPfeile.Ersetzen(i, wagen.Mitgenommen(PfeileInGruppen, d.cboPfeile.Satz(i)));
    for (size_t i = 0; i < kreise.size(); ++i) d.cboFreehandlines.Ersetzen(static_cast<int>(i), kreise[i]);
    PersonenSetzen(d, umzug);
    texte.Nachholen();
    return true;
}

} // namespace kw
