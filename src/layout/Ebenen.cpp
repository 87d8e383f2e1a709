#include "layout/Differenzen.h"
#include "layout/Geruest.h"

#include <algorithm>

namespace kw {

namespace {

struct Band {
    int Eltern, Kind;
};

/// All bonds from parent to child but those that close a circle, in which somebody would be their own ancestor: those
/// to somebody whose descendants are still being visited. Without recursion, which a file could make as deep as it
/// likes.
std::vector<Band> OhneKreise(std::size_t personen, const std::vector<Familie> &familien) {
    std::vector<std::vector<int>> kinder(personen);
    for (const Familie &familie : familien)
        for (const int partner : familie.Partner)
            for (const int kind : familie.Kinder) kinder[Z(partner)].push_back(kind);
    std::vector<Band> bänder;
    std::vector<char> stand(personen, 0); // 1 being visited, 2 done
    std::vector<std::pair<int, std::size_t>> weg;
    for (std::size_t anfang = 0; anfang < personen; anfang++) {
        if (stand[anfang]) continue;
        weg.emplace_back(static_cast<int>(anfang), 0);
        stand[anfang] = 1;
        while (!weg.empty()) {
            auto &[person, nächstes] = weg.back();
            if (nächstes == kinder[Z(person)].size()) {
                stand[Z(person)] = 2;
                weg.pop_back();
                continue;
            }
            const int kind = kinder[Z(person)][nächstes++];
            if (stand[Z(kind)] == 1) continue;
            bänder.push_back({person, kind});
            if (stand[Z(kind)] == 0) {
                stand[Z(kind)] = 1;
                weg.emplace_back(kind, 0);
            }
        }
    }
    return bänder;
}

} // namespace

std::vector<int> Ebenen(const Familiengraph &graph, const std::vector<Familie> &familien) {
    constexpr int HöchsteEbene = 1000;
    constexpr std::int64_t paar = 100'000, gewünscht = 10'000, linie = 100, geschwister = 5;
    const int anzahl = static_cast<int>(graph.Personen.size());
    const int boden = anzahl; // what fixed levels are counted from
    Differenzen ebenen(anzahl + 1);
    for (const Band &band : OhneKreise(graph.Personen.size(), familien)) {
        ebenen.Mindestens(band.Eltern, band.Kind, 1);
        ebenen.Kosten(Kostenart::Über, band.Eltern, band.Kind, 1, linie);
    }
    for (const Familie &familie : familien) {
        if (familie.Partner.size() == 2)
            ebenen.Kosten(Kostenart::Betrag, familie.Partner[0], familie.Partner[1], 0, paar);
        for (std::size_t i = 1; i < familie.Kinder.size(); i++)
            ebenen.Kosten(Kostenart::Betrag, familie.Kinder[i - 1], familie.Kinder[i], 0,
                          familie.Partner.empty() ? paar : geschwister);
    }
    for (int i = 0; i < anzahl; i++)
        if (const auto &ebene = graph.Personen[Z(i)].Ebene)
            ebenen.Kosten(Kostenart::Betrag, boden, i, std::clamp(*ebene, -HöchsteEbene, HöchsteEbene), gewünscht);
    std::vector<int> x;
    ebenen.Kleinste(x);
    ebenen.Lösen(x, 4);
    x.pop_back();
    if (!x.empty()) {
        const int oberste = *std::min_element(x.begin(), x.end());
        for (int &ebene : x) ebene -= oberste;
    }
    return x;
}

} // namespace kw
