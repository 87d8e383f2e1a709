#include "layout/Stuecke.h"

#include <algorithm>

namespace kw {

namespace {

constexpr std::size_t Breitestes = 100; // of a piece in a row; carrying wider ones costs more than they are worth

Stück StückVon(const Gerüst &gerüst, const std::vector<int> &personen, int anker) {
    Stück stück;
    stück.Erste = gerüst.Zeilen;
    int letzte = 0;
    for (const int person : personen) {
        stück.Erste = std::min(stück.Erste, gerüst.Spalten[Z(person)].Oben);
        letzte = std::max(letzte, gerüst.Spalten[Z(person)].Unten);
    }
    stück.Zeilen.resize(Z(letzte - stück.Erste + 1));
    for (const int person : personen)
        for (int z = gerüst.Spalten[Z(person)].Oben; z <= gerüst.Spalten[Z(person)].Unten; z++)
            stück.Zeilen[Z(z - stück.Erste)].push_back(person);
    stück.Anker = std::clamp(anker, stück.Erste, letzte);
    return stück;
}

bool Enthält(const std::vector<int> &liste, int zahl) {
    return std::find(liste.begin(), liste.end(), zahl) != liste.end();
}

/// Persons and families as the nodes of one graph, a bond from each family to each of its members. A bond without which
/// the graph would fall apart is found by a walk that notes how early a node each one can get back to past its own
/// bond.
class Stückesucher {
  public:
    explicit Stückesucher(const Gerüst &gerüst)
        : gerüst_(gerüst), personen_(static_cast<int>(gerüst.Spalten.size())),
          nachbarn_(gerüst.Spalten.size() + gerüst.Familien.size()), folge_(nachbarn_.size(), -1),
          zurück_(nachbarn_.size()) {
        for (std::size_t f = 0; f < gerüst.Familien.size(); f++) {
            const int knoten = personen_ + static_cast<int>(f);
            for (const auto *mitglieder : {&gerüst.Familien[f].Partner, &gerüst.Familien[f].Kinder})
                for (const int person : *mitglieder) {
                    nachbarn_[Z(knoten)].push_back(person);
                    nachbarn_[Z(person)].push_back(knoten);
                }
        }
    }

    std::vector<Stück> Finden() {
        for (int knoten = 0; knoten < personen_; knoten++)
            if (folge_[Z(knoten)] < 0) Ablaufen(knoten);
        for (const Familie &familie : gerüst_.Familien) Nachkommen(familie);
        return std::move(stücke_);
    }

  private:
    struct Schritt {
        int Knoten, Von;
        std::size_t Nächster;
    };

    void Ablaufen(int anfang) {
        const std::size_t erster = gesehen_.size();
        std::vector<Schritt> weg{{anfang, -1, 0}};
        Betreten(anfang);
        while (!weg.empty()) {
            Schritt &s = weg.back();
            if (s.Nächster < nachbarn_[Z(s.Knoten)].size()) {
                const int dort = nachbarn_[Z(s.Knoten)][s.Nächster++];
                if (dort == s.Von) continue;
                if (folge_[Z(dort)] >= 0) zurück_[Z(s.Knoten)] = std::min(zurück_[Z(s.Knoten)], folge_[Z(dort)]);
                else {
                    Betreten(dort);
                    weg.push_back({dort, s.Knoten, 0});
                }
                continue;
            }
            const int knoten = s.Knoten;
            const int von = s.Von;
            weg.pop_back();
            if (von < 0) continue;
            zurück_[Z(von)] = std::min(zurück_[Z(von)], zurück_[Z(knoten)]);
            if (zurück_[Z(knoten)] > folge_[Z(von)])
                brücken_.push_back({Z(folge_[Z(knoten)]), gesehen_.size(), knoten < personen_ ? knoten : von});
        }
        for (const Brücke &b : brücken_) Teilen(b, erster);
        brücken_.clear();
    }

    void Betreten(int knoten) {
        folge_[Z(knoten)] = static_cast<int>(gesehen_.size());
        zurück_[Z(knoten)] = folge_[Z(knoten)];
        gesehen_.push_back(knoten);
    }

    struct Brücke {
        std::size_t Von, Bis; ///< who lies behind it, as they were seen
        int Person;
    };

    void Teilen(const Brücke &brücke, std::size_t erster) {
        std::vector<int> hier;
        std::vector<int> dort;
        for (std::size_t i = erster; i < gesehen_.size(); i++)
            if (gesehen_[i] < personen_) (i >= brücke.Von && i < brücke.Bis ? dort : hier).push_back(gesehen_[i]);
        Aufnehmen(dort.size() <= hier.size() ? dort : hier, gerüst_.Spalten[Z(brücke.Person)].Ebene);
    }

    void Nachkommen(const Familie &familie) {
        std::vector<char> dabei(Z(personen_), 0);
        std::vector<int> liste;
        std::vector<int> offen;
        const auto hinzu = [&](int person) {
            if (dabei[Z(person)]) return;
            dabei[Z(person)] = 1;
            liste.push_back(person);
            offen.push_back(person);
        };
        for (const int kind : familie.Kinder) hinzu(kind);
        while (!offen.empty()) {
            const int person = offen.back();
            offen.pop_back();
            for (const int knoten : nachbarn_[Z(person)]) {
                const Familie &eigene = gerüst_.Familien[Z(knoten - personen_)];
                if (std::find(eigene.Partner.begin(), eigene.Partner.end(), person) == eigene.Partner.end()) continue;
                for (const int partner : eigene.Partner)
                    if (!HatEltern(partner)) hinzu(partner);
                for (const int kind : eigene.Kinder) hinzu(kind);
            }
        }
        if (!familie.Kinder.empty()) Aufnehmen(liste, gerüst_.Spalten[Z(familie.Kinder[0])].Ebene);
    }

    bool HatEltern(int person) const {
        return std::any_of(nachbarn_[Z(person)].begin(), nachbarn_[Z(person)].end(), [&](int knoten) {
            const Familie &familie = gerüst_.Familien[Z(knoten - personen_)];
            return std::find(familie.Kinder.begin(), familie.Kinder.end(), person) != familie.Kinder.end();
        });
    }

    void Aufnehmen(const std::vector<int> &liste, int anker) {
        if (liste.size() < 2) return;
        Stück stück = StückVon(gerüst_, liste, anker);
        const auto breit = [](const std::vector<int> &zeile) { return zeile.size() > Breitestes; };
        if (std::none_of(stück.Zeilen.begin(), stück.Zeilen.end(), breit)) stücke_.push_back(std::move(stück));
    }

    const Gerüst &gerüst_;
    int personen_;
    std::vector<std::vector<int>> nachbarn_;
    std::vector<int> folge_, zurück_, gesehen_;
    std::vector<Brücke> brücken_;
    std::vector<Stück> stücke_;
};

} // namespace

std::vector<Stück> StückeFinden(const Gerüst &gerüst) { return Stückesucher(gerüst).Finden(); }

Stückwahl::Stückwahl(const Gerüst &gerüst)
    : gerüst_(gerüst), stücke_(StückeFinden(gerüst)), nächste_(Verwandte(gerüst)) {}

Stück Stückwahl::Irgendeines(Zufall &zufall) const {
    if (!stücke_.empty() && zufall.Unter(10) < 3) return stücke_[Z(zufall.Unter(static_cast<int>(stücke_.size())))];
    return Klumpen(zufall);
}

Stück Stückwahl::Klumpen(Zufall &zufall) const {
    constexpr int Größter = 17;
    const auto eins = [&](const std::vector<int> &liste) {
        return liste[Z(zufall.Unter(static_cast<int>(liste.size())))];
    };
    const int größe = 2 + zufall.Unter(Größter - 1);
    std::vector<int> liste{zufall.Unter(static_cast<int>(nächste_.size()))};
    for (int versuch = 0; versuch < 4 * größe && static_cast<int>(liste.size()) < größe; versuch++) {
        const std::vector<int> &nächste = nächste_[Z(eins(liste))];
        if (nächste.empty()) return {};
        const int person = eins(nächste);
        if (!Enthält(liste, person)) liste.push_back(person);
    }
    return StückVon(gerüst_, liste, gerüst_.Spalten[Z(liste.front())].Ebene);
}

Stück Stückwahl::Partner(int zeile, int person, int ohne) const {
    std::vector<int> kette{person};
    for (std::size_t i = 0; i < kette.size(); i++)
        for (const int partner : gerüst_.Partner[Z(kette[i])]) {
            if (kette[i] == person && partner == ohne) continue;
            if (partner == ohne) return {{{person}}, zeile, zeile};
            if (gerüst_.Spalten[Z(partner)].Ebene == zeile && !Enthält(kette, partner)) kette.push_back(partner);
        }
    return {{kette}, zeile, zeile};
}

} // namespace kw
