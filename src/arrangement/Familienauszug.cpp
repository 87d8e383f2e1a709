#include "arrangement/Familienauszug.h"

#include "document/Dokument.h"
#include "document/Nachschlagen.h"
#include "document/Zahlen.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "rendering/Beschriftung.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace kw {

namespace {

class Auszug {
  public:
    Auszug(const Dokument &dokument, const std::vector<int> &personen) : d_(dokument), bezüge_(dokument) {
        for (const int person : personen)
            if (PersonSatz(d_.cboPersonen.Satz(person), Lücken::Leer).HatOrt()) gefragt_.insert(person);
    }

    /// Families before persons: whoever has no bond doesn't come into the graph.
    Familienauszug Machen(Zeichenfläche &fläche) {
        for (int i = 0; i < d_.cboPartnerschaftsLinien.Anzahl(); ++i) FamilieAufnehmen(i);
        for (const int person : ergebnis_.Personen) {
            const PersonSatz satz(d_.cboPersonen.Satz(person), Lücken::Leer);
            const double breite = Namensbreite(fläche, satz) / 2;
            ergebnis_.Graph.Personen.push_back({GeschlechtVon(satz), std::nullopt, breite, breite, satz.PosX(),
                                                std::nullopt, Ort{satz.PosX(), satz.PosY()}});
        }
        return std::move(ergebnis_);
    }

  private:
    void FamilieAufnehmen(int linie) {
        const PartnerschaftSatz satz(d_.cboPartnerschaftsLinien.Satz(linie), Lücken::Leer);
        const int partner[] = {bezüge_.Person(satz.PersNr1()), bezüge_.Person(satz.PersNr2())};
        if (!satz.Vollständig() || partner[0] == partner[1] || !gefragt_.contains(partner[0]) ||
            !gefragt_.contains(partner[1]))
            return;
        Familie familie;
        for (const int person : partner) familie.Partner.push_back(ImGraph(person));
        std::vector<int> kinder;
        for (const int kind : bezüge_.KinderVon(satz.Nr())) {
            const int person = bezüge_.Person(KindSatz(d_.cboKindlinien.Satz(kind), Lücken::Leer).KindNr());
            if (gefragt_.contains(person)) kinder.push_back(person);
        }
        std::stable_sort(kinder.begin(), kinder.end(), [this](int a, int b) { return X(a) < X(b); });
        for (const int kind : kinder) familie.Kinder.push_back(ImGraph(kind));
        ZwillingeAufnehmen(kinder, familie);
        if (satz.BalkenY1() == satz.BalkenY2()) familie.Balken = satz.BalkenY1();
        ergebnis_.Linien.push_back(linie);
        ergebnis_.Graph.Familien.push_back(std::move(familie));
    }

    void ZwillingeAufnehmen(const std::vector<int> &kinder, Familie &familie) {
        for (const int kind : kinder) {
            const int anderer = bezüge_.Person(PersonSatz(d_.cboPersonen.Satz(kind), Lücken::Leer).ZwillingNr());
            if (anderer > kind && std::find(kinder.begin(), kinder.end(), anderer) != kinder.end())
                familie.Zwillinge.push_back({ImGraph(kind), ImGraph(anderer)});
        }
    }

    int ImGraph(int person) {
        const auto [stelle, neu] = imGraph_.try_emplace(person, static_cast<int>(ergebnis_.Personen.size()));
        if (neu) ergebnis_.Personen.push_back(person);
        return stelle->second;
    }

    double X(int person) const { return PersonSatz(d_.cboPersonen.Satz(person), Lücken::Leer).PosX(); }

    const Dokument &d_;
    const Bezüge bezüge_;
    std::set<int> gefragt_;
    std::map<int, int> imGraph_; ///< from the store's position
    Familienauszug ergebnis_;
};

} // namespace

Geschlecht GeschlechtVon(const PersonSatz &person) {
    switch (Ganzzahl16(ZahlLesen(person.Symboltyp()))) {
    case TypMännlich:
    case TypWeiblichZuMännlich:
    case TypTotgeburtMännlich: return Geschlecht::Mann;
    case TypWeiblich:
    case TypMännlichZuWeiblich:
    case TypTotgeburtWeiblich: return Geschlecht::Frau;
    default: return Geschlecht::Unbekannt;
    }
}

Familienauszug FamilienUnter(const Dokument &dokument, const std::vector<int> &personen, Zeichenfläche &fläche) {
    return Auszug(dokument, personen).Machen(fläche);
}

} // namespace kw
