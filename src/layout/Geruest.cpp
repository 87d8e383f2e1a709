#include "layout/Geruest.h"

#include <algorithm>

namespace kw {

namespace {

void Einzeln(std::vector<int> &liste, int anzahl, const std::vector<int> &ohne) {
    std::vector<int> neu;
    for (const int person : liste) {
        const bool gibtEs = person >= 0 && person < anzahl;
        if (gibtEs && std::find(neu.begin(), neu.end(), person) == neu.end() &&
            std::find(ohne.begin(), ohne.end(), person) == ohne.end())
            neu.push_back(person);
    }
    liste = std::move(neu);
}

/// A low bar hangs right above its highest child: only where several children all stand deeper than the next row, and
/// would otherwise each need a free column.
int Zeile(const Familie &familie, const std::vector<int> &ebenen) {
    int zeile = 0;
    for (const int partner : familie.Partner) zeile = std::max(zeile, ebenen[Z(partner)]);
    if (familie.Kinder.size() < 2) return zeile;
    int höchstes = ebenen[Z(familie.Kinder[0])];
    for (const int kind : familie.Kinder) höchstes = std::min(höchstes, ebenen[Z(kind)]);
    return std::max(zeile, höchstes - 1);
}

} // namespace

std::vector<Familie> GeprüfteFamilien(const Familiengraph &graph) {
    const int anzahl = static_cast<int>(graph.Personen.size());
    std::vector<Familie> familien = graph.Familien;
    for (Familie &familie : familien) {
        Einzeln(familie.Partner, anzahl, {});
        if (familie.Partner.size() > 2) familie.Partner.resize(2);
        Einzeln(familie.Kinder, anzahl, familie.Partner);
        const auto tag = [&](int kind) { return graph.Personen[Z(kind)].Geburtstag; };
        if (std::all_of(familie.Kinder.begin(), familie.Kinder.end(), [&](int kind) { return tag(kind).has_value(); }))
            std::stable_sort(familie.Kinder.begin(), familie.Kinder.end(),
                             [&](int a, int b) { return tag(a) < tag(b); });
        const auto hier = [&](int kind) { return std::find(familie.Kinder.begin(), familie.Kinder.end(), kind); };
        for (std::vector<int> &gruppe : familie.Zwillinge) {
            std::erase_if(gruppe, [&](int kind) { return hier(kind) == familie.Kinder.end(); });
            std::sort(gruppe.begin(), gruppe.end(), [&](int a, int b) { return hier(a) < hier(b); });
            gruppe.erase(std::unique(gruppe.begin(), gruppe.end()), gruppe.end());
        }
    }
    return familien;
}

Gerüst GerüstBauen(const Familiengraph &graph, std::vector<Familie> familien, const std::vector<int> &ebenen) {
    Gerüst g;
    g.Familien = std::move(familien);
    g.Spalten.resize(graph.Personen.size());
    g.Partner.resize(graph.Personen.size());
    for (std::size_t i = 0; i < ebenen.size(); i++) {
        g.Spalten[i] = {ebenen[i], ebenen[i], ebenen[i]};
        g.Zeilen = std::max(g.Zeilen, ebenen[i] + 1);
    }
    for (const Familie &familie : g.Familien) {
        const int zeile = familie.Partner.empty() ? -1 : Zeile(familie, ebenen);
        g.Balkenzeile.push_back(zeile);
        if (zeile < 0) continue;
        for (const int partner : familie.Partner) {
            g.Spalten[Z(partner)].Unten = std::max(g.Spalten[Z(partner)].Unten, zeile);
            for (const int anderer : familie.Partner)
                if (anderer != partner) g.Partner[Z(partner)].push_back(anderer);
        }
        for (const int kind : familie.Kinder)
            if (ebenen[Z(kind)] > zeile) g.Spalten[Z(kind)].Oben = std::min(g.Spalten[Z(kind)].Oben, zeile + 1);
    }
    for (std::size_t f = 0; f < g.Familien.size(); f++) {
        if (g.Balkenzeile[f] < 0) continue;
        Gehänge gehänge{static_cast<int>(f), g.Familien[f].Partner.front(), g.Familien[f].Partner.back(), {}};
        for (const int kind : g.Familien[f].Kinder) {
            if (ebenen[Z(kind)] <= g.Balkenzeile[f]) continue;
            gehänge.Kinder.push_back(kind);
            gehänge.Lang |= ebenen[Z(kind)] > g.Balkenzeile[f] + 1;
        }
        g.Gehängte.push_back(std::move(gehänge));
    }
    return g;
}

std::vector<std::vector<int>> Verwandte(const Gerüst &gerüst) {
    std::vector<std::vector<int>> verwandte(gerüst.Spalten.size());
    const auto verbinden = [&](int a, int b) {
        if (a == b) return;
        verwandte[Z(a)].push_back(b);
        verwandte[Z(b)].push_back(a);
    };
    for (const Gehänge &g : gerüst.Gehängte) {
        verbinden(g.A, g.B);
        for (const int kind : g.Kinder) {
            verbinden(g.A, kind);
            if (g.B != g.A) verbinden(g.B, kind);
        }
    }
    return verwandte;
}

} // namespace kw
