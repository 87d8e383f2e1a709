#include "arrangement/Randlinien.h"

#include "document/Dokument.h"
#include "document/Nachschlagen.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"

#include <algorithm>
#include <set>
#include <utility>

namespace kw {

namespace {

constexpr int Keine = -1;
constexpr double Strichluft = 0.08; ///< so far a line may run into a symbol's box, cm
constexpr double Durchquert = 4;    ///< one symbol that a line runs through, cm

PersonSatz Person(const Dokument &d, int position) { return PersonSatz(d.cboPersonen.Satz(position), Lücken::Leer); }

/// Who goes, and who doesn't.
class Gehende {
  public:
    Gehende(const Dokument &d, const std::vector<int> &personen)
        : d_(d), bezüge_(d), gehen_(personen.begin(), personen.end()) {
        while (PaareHalten()) {
        }
        std::erase_if(gehen_, [this](int p) { return HatNurBleibende(p); });
    }
    const std::set<int> &Alle() const { return gehen_; }

  private:
    bool Bleibt(int person) const {
        return person >= 0 && !gehen_.contains(person) && Person(d_, person).Vollständig();
    }
    std::pair<int, int> Partner(std::string_view linie) const {
        const PartnerschaftSatz satz(linie, Lücken::Leer);
        return {bezüge_.Person(satz.PersNr1()), bezüge_.Person(satz.PersNr2())};
    }
    /// Takes out who has a partner that stays; whether there was one.
    bool PaareHalten() {
        bool wen = false;
        for (const std::string &linie : d_.cboPartnerschaftsLinien) {
            const auto [a, b] = Partner(linie);
            if (Bleibt(a)) wen |= gehen_.erase(b) > 0;
            else if (Bleibt(b)) wen |= gehen_.erase(a) > 0;
        }
        return wen;
    }
    /// A child of parents that stay, who has no partner.
    bool HatNurBleibende(int person) const {
        const std::string_view nr = Person(d_, person).Nr();
        if (!bezüge_.Partnerschaften(nr).empty()) return false;
        const int kindlinie = bezüge_.Kindlinie(nr);
        if (kindlinie < 0) return false;
        const int eltern = bezüge_.PLinie(KindSatz(d_.cboKindlinien.Satz(kindlinie), Lücken::Leer).PLinie());
        if (eltern < 0) return false;
        const auto [a, b] = Partner(d_.cboPartnerschaftsLinien.Satz(eltern));
        return Bleibt(a) || Bleibt(b);
    }

    const Dokument &d_;
    const Bezüge bezüge_;
    std::set<int> gehen_;
};

} // namespace

std::vector<int> OhneGebundene(const Dokument &dokument, const std::vector<int> &personen) {
    const Gehende gehende(dokument, personen);
    return {gehende.Alle().begin(), gehende.Alle().end()};
}

Randlinien::Randlinien(const Dokument &dokument, const Familienauszug &auszug) : auszug_(auszug) {
    for (const std::string &satz : dokument.cboPersonen) {
        const PersonSatz person(satz, Lücken::Leer);
        symbole_.push_back({{person.PosX(), person.PosY()}, person.Groesse() - 2 * Strichluft, Keine});
    }
    for (size_t i = 0; i < auszug.Personen.size(); ++i)
        symbole_[static_cast<size_t>(auszug.Personen[i])].ImGraph = static_cast<int>(i);
    const Bezüge bezüge(dokument);
    for (const std::string &satz : dokument.cboKindlinien) {
        const KindSatz linie(satz, Lücken::Leer);
        const int kind = bezüge.Person(linie.KindNr());
        const int eltern = bezüge.PLinie(linie.PLinie());
        if (kind < 0 || eltern < 0 || !linie.Vollständig() || !Person(dokument, kind).HatOrt()) continue;
        const auto familie = std::find(auszug.Linien.begin(), auszug.Linien.end(), eltern);
        const bool elternGehen = familie != auszug.Linien.end();
        if (elternGehen == (symbole_[static_cast<size_t>(kind)].ImGraph != Keine)) continue;
        const PartnerschaftSatz b(dokument.cboPartnerschaftsLinien.Satz(eltern), Lücken::Leer);
        Umgebung balken;
        balken.Aufnehmen(b.BalkenX1(), b.BalkenY1());
        balken.Aufnehmen(b.BalkenX2(), b.BalkenY1());
        linien_.push_back({kind, elternGehen ? static_cast<int>(familie - auszug.Linien.begin()) : Keine, balken});
    }
}

Ort Randlinien::Mitte(const Symbol &symbol, const Familienlage &lage, Ort weg) const {
    if (symbol.ImGraph == Keine) return symbol.Mitte;
    const Ort &neu = lage.Personen[static_cast<size_t>(symbol.ImGraph)];
    return {neu.X + weg.X, neu.Y + weg.Y};
}

std::vector<Randlinien::Strecke> Randlinien::Strecken(const Familienlage &lage, Ort weg) const {
    std::vector<Strecke> strecken;
    for (const Linie &linie : linien_) {
        Umgebung balken = linie.Balken;
        if (linie.Familie != Keine) {
            balken = {};
            const auto f = static_cast<size_t>(linie.Familie);
            for (const int partner : auszug_.Graph.Familien[f].Partner)
                balken.Aufnehmen(lage.Personen[static_cast<size_t>(partner)].X + weg.X, lage.Balken[f] + weg.Y);
        }
        const Ort kind = Mitte(symbole_[static_cast<size_t>(linie.Kind)], lage, weg);
        strecken.push_back({linie.Kind, {std::clamp(kind.X, balken.Links, balken.Rechts), balken.Oben}, kind});
    }
    return strecken;
}

double Randlinien::Mängel(const Familienlage &lage, Ort weg, double größe) const {
    if (linien_.empty()) return 0;
    std::vector<Umgebung> symbole;
    symbole.reserve(symbole_.size());
    for (const Symbol &s : symbole_) {
        const Ort mitte = Mitte(s, lage, weg);
        const double breite = s.ImGraph == Keine ? s.Breite : std::min(größe - 2 * Strichluft, s.Breite);
        symbole.emplace_back().Aufnehmen(mitte.X - breite / 2, mitte.Y - breite / 2, breite, breite);
    }
    double mängel = 0;
    for (const Strecke &strecke : Strecken(lage, weg)) {
        const Umgebung &kind = symbole[static_cast<size_t>(strecke.Kind)];
        if (kind.Oben < strecke.Balken.Y) mängel += Verkehrt;
        for (const Umgebung &symbol : symbole)
            if (&symbol != &kind &&
                StreckeTrifft(strecke.Balken.X, strecke.Balken.Y, strecke.Ende.X, strecke.Ende.Y, symbol))
                mängel += Durchquert;
    }
    return mängel;
}

} // namespace kw
