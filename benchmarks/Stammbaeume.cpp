// How fast families are laid out as genograms, and how good these are.

#include "layout/Familienlage.h"
#include "layout/Probefamilien.h"

#include "Stammbaeume.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace kw {

namespace {

constexpr int Familienzahl = 20;

struct Summe {
    double Ms = 0, LängsteMs = 0, Länge = 0;
    int Personen = 0, Kreuzungen = 0, Verkehrt = 0, Paare = 0, Getrennt = 0;
};

/// Of the processor: others use the machine too.
double Millisekunden() { return static_cast<double>(std::clock()) * 1000 / CLOCKS_PER_SEC; }

/// A family of `n` to 1.2 `n` persons in four to eight generations, some of whom marry within it.
Familiengraph FamilieVon(int n, int &saat) {
    for (;;) {
        Familiengraph graph = Probefamilie(saat).Bauen(n, 4 + saat % 5, 1);
        saat++;
        const auto personen = static_cast<int>(graph.Personen.size());
        if (personen >= n && personen * 10 <= n * 12) return graph;
    }
}

Summe Auslegen(int n) {
    Summe summe;
    int saat = 1;
    for (int i = 0; i < Familienzahl; i++) {
        const Familiengraph graph = FamilieVon(n, saat);
        double ms = 0;
        Lagebefund befund;
        for (int mal = 0; mal < 3; mal++) {
            const double anfang = Millisekunden();
            befund = FamilieAnordnen(graph).Befund;
            const double dauer = Millisekunden() - anfang;
            ms = mal == 0 ? dauer : std::min(ms, dauer);
        }
        summe.Ms += ms;
        summe.LängsteMs = std::max(summe.LängsteMs, ms);
        summe.Länge += befund.Länge;
        summe.Personen += static_cast<int>(graph.Personen.size());
        summe.Kreuzungen += befund.Kreuzungen;
        summe.Verkehrt += befund.Verkehrt;
        summe.Getrennt += befund.Getrennt;
        for (const Familie &familie : graph.Familien) {
            const auto kinder = static_cast<int>(familie.Kinder.size());
            summe.Paare += kinder * (kinder - 1) / 2;
        }
    }
    return summe;
}

} // namespace

int AuslegungenSchreiben(const char *datei) {
    std::FILE *aus = std::fopen(datei, "w");
    if (!aus) return 1;
    for (const int n : {20, 50, 100, 200, 400}) {
        const Summe s = Auslegen(n);
        const auto je = [](double summe) { return summe / Familienzahl; };
        std::fprintf(aus, "| %.0f | %.1f | %.1f | %.1f | %.1f | %.1f | %.0f |\n", je(s.Personen), je(s.Ms), s.LängsteMs,
                     je(s.Kreuzungen), 100.0 * s.Verkehrt / std::max(s.Paare, 1), je(s.Getrennt), je(s.Länge));
    }
    return std::fclose(aus) == 0 ? 0 : 1;
}

} // namespace kw
