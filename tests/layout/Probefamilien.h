#pragma once

#include "layout/Familiengraph.h"
#include "layout/Zufall.h"

#include <algorithm>
#include <vector>

namespace kw {

/// Families as nobody would invent them: cousins, in-laws and whole generations marry each other, some again and again.
class Probefamilie {
  public:
    explicit Probefamilie(int saat) : zufall_(static_cast<std::uint64_t>(saat)) {}

    /// About that many persons in so many generations; `wild` of ten marriages are within the family.
    Familiengraph Bauen(int personen, int generationen, int wild) {
        std::vector<int> jüngste;
        jüngste.reserve(4);
        for (int i = 0; i < 4; i++) jüngste.push_back(Neu());
        for (int g = 1; g < generationen; g++) {
            std::vector<int> kinder;
            for (const int person : jüngste) {
                if (static_cast<int>(graph_.Personen.size()) >= personen) break;
                for (int ehe = zufall_.Wenig(2); ehe >= 0; ehe--) Heiraten(person, jüngste, wild, kinder);
            }
            if (!kinder.empty()) jüngste = kinder;
        }
        return graph_;
    }

  private:
    int Neu() {
        Familienperson person;
        person.Art = zufall_.Unter(2) == 0 ? Geschlecht::Mann : Geschlecht::Frau;
        graph_.Personen.push_back(person);
        return static_cast<int>(graph_.Personen.size()) - 1;
    }

    void Heiraten(int person, const std::vector<int> &jüngste, int wild, std::vector<int> &kinder) {
        const bool innen = zufall_.Unter(10) < wild;
        const bool schräg = zufall_.Unter(6) == 0 && !kinder.empty(); // somebody of the next generation
        const std::vector<int> &wahl = schräg ? kinder : jüngste;
        const int partner =
            innen ? wahl[static_cast<std::size_t>(zufall_.Unter(static_cast<int>(wahl.size())))] : Neu();
        if (partner == person) return;
        Familie familie{{person, partner}, {}, {}};
        for (int k = zufall_.Unter(4); k > 0; k--) familie.Kinder.push_back(Neu());
        kinder.insert(kinder.end(), familie.Kinder.begin(), familie.Kinder.end());
        graph_.Familien.push_back(std::move(familie));
    }

    Zufall zufall_;
    Familiengraph graph_;
};

} // namespace kw
