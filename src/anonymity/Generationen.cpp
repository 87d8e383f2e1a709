#include "anonymity/Generationen.h"

#include "document/Dokument.h"
#include "document/Nachschlagen.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "layout/Teile.h"

#include <algorithm>
#include <cmath>

namespace kw {

namespace {

constexpr double Zeilenabstand = 3.6;      ///< cm from one generation to the next, where the page doesn't tell
constexpr double EngsterZeilenabstand = 2; ///< less than that is one row, drawn unevenly

/// Everybody, alone or not, with the families of the partnership lines.
Familiengraph GraphVon(const Dokument &d) {
    Familiengraph graph;
    graph.Personen.resize(static_cast<std::size_t>(d.cboPersonen.Anzahl()));
    const Bezüge bezüge(d);
    for (const auto &satz : d.cboPartnerschaftsLinien) {
        const PartnerschaftSatz linie(satz, Lücken::Leer);
        Familie familie;
        for (const auto nr : {linie.PersNr1(), linie.PersNr2()})
            if (const int person = bezüge.Person(nr); person >= 0) familie.Partner.push_back(person);
        for (const int i : bezüge.KinderVon(linie.Nr()))
            if (const int kind = bezüge.Person(KindSatz(d.cboKindlinien.Satz(i)).KindNr()); kind >= 0)
                familie.Kinder.push_back(kind);
        graph.Familien.push_back(std::move(familie));
    }
    return graph;
}

/// Persons who belong together, with their levels in their own family.
struct Verband {
    std::vector<int> Personen;
    std::vector<int> Ebenen;
};

/// The largest first; those alone come as the last, each for itself.
std::vector<Verband> Verbände(const Dokument &d) {
    const Familiengraph graph = GraphVon(d);
    const auto familien = GeprüfteFamilien(graph);
    std::vector<Verband> verbände;
    std::vector<char> dabei(graph.Personen.size(), 0);
    for (Teil &teil : TeileFinden(graph, familien, Ebenen(graph, familien))) {
        for (const int person : teil.Personen) dabei[Z(person)] = 1;
        verbände.push_back({std::move(teil.Personen), std::move(teil.Ebenen)});
    }
    for (std::size_t i = 0; i < dabei.size(); i++)
        if (!dabei[i]) verbände.push_back({{static_cast<int>(i)}, {0}});
    std::stable_sort(verbände.begin(), verbände.end(),
                     [](const Verband &a, const Verband &b) { return a.Personen.size() > b.Personen.size(); });
    return verbände;
}

/// Where the generations of a family stand on the page: the middle one of each level's heights, beyond them as if the
/// rows went on.
class Zeilen {
  public:
    Zeilen(const Verband &verband, const std::vector<double> &y) {
        std::vector<std::vector<double>> höhen(Z(1 + *std::max_element(verband.Ebenen.begin(), verband.Ebenen.end())));
        for (std::size_t i = 0; i < verband.Personen.size(); i++)
            höhen[Z(verband.Ebenen[i])].push_back(y[Z(verband.Personen[i])]);
        for (auto &eine : höhen) {
            if (eine.empty()) continue; // a level through which a long line passes
            std::nth_element(eine.begin(), eine.begin() + static_cast<long>(eine.size() / 2), eine.end());
            höhen_.emplace_back(static_cast<int>(&eine - höhen.data()), eine[eine.size() / 2]);
        }
        if (const int ebenen = höhen_.back().first; ebenen > 0)
            abstand_ = std::max(EngsterZeilenabstand, (höhen_.back().second - höhen_.front().second) / ebenen);
    }

    double Höhe(int ebene) const {
        const auto nächste = std::min_element(höhen_.begin(), höhen_.end(), [&](const auto &a, const auto &b) {
            return std::abs(a.first - ebene) < std::abs(b.first - ebene);
        });
        return nächste->second + (ebene - nächste->first) * abstand_;
    }

  private:
    std::vector<std::pair<int, double>> höhen_; ///< by level
    double abstand_ = Zeilenabstand;
};

/// By how many levels the family's are to be shifted, so that it stands nearest to those rows.
int Versatz(const Verband &verband, const std::vector<double> &y, const Zeilen &zeilen) {
    constexpr int Weitester = 60;
    int bester = 0;
    double geringster = 0;
    for (int versatz = -Weitester; versatz <= Weitester; versatz++) {
        double ferne = 0;
        for (std::size_t i = 0; i < verband.Personen.size(); i++)
            ferne += std::abs(y[Z(verband.Personen[i])] - zeilen.Höhe(verband.Ebenen[i] + versatz));
        if (versatz > -Weitester && !(ferne < geringster)) continue;
        geringster = ferne;
        bester = versatz;
    }
    return bester;
}

} // namespace

std::vector<int> Generationen(const Dokument &dokument) {
    std::vector<double> y;
    for (const auto &satz : dokument.cboPersonen) y.push_back(PersonSatz(satz, Lücken::Leer).PosY());
    std::vector<int> generationen(y.size(), 0);
    if (y.empty()) return generationen;
    const auto verbände = Verbände(dokument);
    const Zeilen zeilen(verbände.front(), y);
    for (const Verband &verband : verbände) {
        const int versatz = &verband == &verbände.front() ? 0 : Versatz(verband, y, zeilen);
        for (std::size_t i = 0; i < verband.Personen.size(); i++)
            generationen[Z(verband.Personen[i])] = verband.Ebenen[i] + versatz;
    }
    const int oberste = *std::min_element(generationen.begin(), generationen.end());
    for (int &generation : generationen) generation -= oberste;
    return generationen;
}

} // namespace kw
