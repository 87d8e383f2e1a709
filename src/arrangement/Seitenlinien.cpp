#include "arrangement/Seitenlinien.h"

#include "arrangement/Umzug.h"
#include "document/Dokument.h"
#include "document/Nachschlagen.h"
#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Kreislinie.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "document/saetze/Pfeil.h"
#include "editing/Elemente.h"
#include "editing/Kreisumriss.h"
#include "rendering/Ansicht.h"
#include "rendering/Ebenen.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kw {

namespace {

constexpr double Linienluft = 0.1;     ///< on both sides of a line, cm
constexpr double Beziehungsluft = 0.2; ///< so far do double, zigzag and broken ones reach, cm
constexpr double Stücklänge = 0.4;     ///< a box round a slanting line holds much beside it, cm
constexpr double MeisteStücke = 100;   ///< places that are damage can lie anywhere

class Sammler {
  public:
    Sammler(const Dokument &dokument, const Ansicht &ansicht) : d_(dokument), ansicht_(ansicht), bezüge_(dokument) {}

    std::vector<Seitenlinie> Sammeln() {
        for (const Element element : AlleElemente(d_)) {
            linie_ = {};
            switch (element.Art) {
            case Elementart::Partnerschaft: Partnerschaft(d_.cboPartnerschaftsLinien.Satz(element.Position)); break;
            case Elementart::Kind: Kind(d_.cboKindlinien.Satz(element.Position)); break;
            case Elementart::Beziehung: Beziehung(d_.cboBeziehungsLinien.Satz(element.Position)); break;
            case Elementart::Pfeil: Pfeil(d_.cboPfeile.Satz(element.Position)); break;
            case Elementart::Kreis: Kreis(d_.cboFreehandlines.Satz(element.Position)); break;
            default: continue;
            }
            alle_.push_back(std::move(linie_));
        }
        return std::move(alle_);
    }

  private:
    void Partnerschaft(std::string_view satz) {
        const PartnerschaftSatz l(satz, Lücken::Leer);
        Strich({l.BalkenX1(), l.BalkenY1()}, {l.BalkenX2(), l.BalkenY2()});
        Strich({l.AnschlussX1(), l.AnschlussY1()}, {l.AnschlussX1(), l.BalkenY1()});
        Strich({l.AnschlussX2(), l.AnschlussY2()}, {l.AnschlussX2(), l.BalkenY1()});
        Mit(l.PersNr1());
        Mit(l.PersNr2());
    }

    /// Its upper end is on the parents' bar, and goes with that.
    void Kind(std::string_view satz) {
        const KindSatz l(satz, Lücken::Leer);
        Strich({l.LinieX(), l.LinieY()}, {l.KindX(), l.KindY()});
        Mit(l.KindNr());
        const int balken = bezüge_.PLinie(l.PLinie());
        if (balken < 0) return;
        const PartnerschaftSatz eltern(d_.cboPartnerschaftsLinien.Satz(balken), Lücken::Leer);
        Mit(eltern.PersNr1());
        Mit(eltern.PersNr2());
    }

    void Beziehung(std::string_view satz) {
        const BeziehungSatz l(satz, Lücken::Leer);
        Strich({l.LinieX1(), l.LinieY1()}, {l.LinieX2(), l.LinieY2()}, Beziehungsluft);
        Mit(l.PersNr1());
        Mit(l.PersNr2());
    }

    void Pfeil(std::string_view satz) {
        const PfeilSatz l(satz, Lücken::Leer);
        Strich({l.X1(), l.Y1()}, {l.X2(), l.Y2()}, Beziehungsluft);
        MitNächster({(l.X1() + l.X2()) / 2, (l.Y1() + l.Y2()) / 2});
    }

    void Kreis(std::string_view satz) {
        const auto punkte = Kreiszug(satz, ansicht_.Glättungsgrad);
        Umgebung alle;
        for (size_t i = 0; i < punkte.size(); ++i) {
            const Kurvenort &bis = punkte[(i + 1) % punkte.size()];
            Strich({punkte[i].X, punkte[i].Y}, {bis.X, bis.Y});
            alle.Aufnehmen(punkte[i].X, punkte[i].Y);
        }
        for (int i = 0; i < d_.cboPersonen.Anzahl(); ++i) {
            const PersonSatz person(d_.cboPersonen.Satz(i), Lücken::Leer);
            if (person.HatOrt() && Umschließt(satz, ansicht_.Glättungsgrad, person.PosX(), person.PosY()))
                linie_.Personen.insert(i);
        }
        if (linie_.Personen.empty()) MitNächster({alle.MitteX(), alle.MitteY()});
        Füllen(punkte, alle);
    }

    /// Row by row, between the places where the stroke goes through the row's middle.
    void Füllen(const std::vector<Kurvenort> &punkte, const Umgebung &alle) {
        const double höhe = std::max(Stücklänge, (alle.Unten - alle.Oben) / MeisteStücke);
        for (double oben = alle.Oben; oben < alle.Unten; oben += höhe) {
            const double y = oben + höhe / 2;
            std::vector<double> orte;
            for (size_t i = 0; i < punkte.size(); ++i) {
                const Kurvenort &a = punkte[i];
                const Kurvenort &b = punkte[(i + 1) % punkte.size()];
                if ((a.Y > y) != (b.Y > y)) orte.push_back(a.X + (y - a.Y) / (b.Y - a.Y) * (b.X - a.X));
            }
            std::sort(orte.begin(), orte.end());
            for (size_t i = 0; i + 1 < orte.size(); i += 2) {
                Umgebung u;
                u.Aufnehmen(orte[i], oben, orte[i + 1] - orte[i], höhe);
                linie_.Inneres.push_back(u);
            }
        }
    }

    void Strich(Ort a, Ort b, double luft = Linienluft) {
        const double weit = std::min(std::abs(b.X - a.X), std::abs(b.Y - a.Y));
        const int stücke = static_cast<int>(std::clamp(std::ceil(weit / Stücklänge), 1.0, MeisteStücke));
        const auto ort = [&](int i) {
            return Ort{std::lerp(a.X, b.X, i / static_cast<double>(stücke)),
                       std::lerp(a.Y, b.Y, i / static_cast<double>(stücke))};
        };
        for (int i = 0; i < stücke; ++i) {
            const auto [x1, x2] = std::minmax({ort(i).X, ort(i + 1).X});
            const auto [y1, y2] = std::minmax({ort(i).Y, ort(i + 1).Y});
            Umgebung u;
            u.Aufnehmen(x1 - luft, y1 - luft, x2 - x1 + 2 * luft, y2 - y1 + 2 * luft);
            linie_.Kästen.push_back(u);
        }
    }

    void Mit(std::string_view nr) {
        if (const int person = bezüge_.Person(nr); person >= 0) linie_.Personen.insert(person);
    }
    void MitNächster(Ort ort) {
        if (const auto person = NächstePerson(d_, ort)) linie_.Personen.insert(*person);
    }

    const Dokument &d_;
    const Ansicht &ansicht_;
    const Bezüge bezüge_;
    Seitenlinie linie_; ///< that is being looked at
    std::vector<Seitenlinie> alle_;
};

} // namespace

bool Seitenlinie::Bleibt(const std::set<int> &gehende) const {
    return std::none_of(Personen.begin(), Personen.end(), [&](int person) { return gehende.contains(person); });
}

std::vector<Seitenlinie> LinienDerSeite(const Dokument &dokument, const Ansicht &ansicht) {
    return Sammler(dokument, ansicht).Sammeln();
}

} // namespace kw
