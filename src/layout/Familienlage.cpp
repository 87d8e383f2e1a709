#include "layout/Familienlage.h"

#include "layout/Orte.h"
#include "layout/Reihensuche.h"

#include <algorithm>

namespace kw {

std::vector<std::vector<int>> Widerspruchsfrei(const Gerüst &gerüst, std::vector<std::vector<int>> zeilen) {
    struct Stand {
        std::int64_t Summe = 0, Zahl = 0;
    };
    std::vector<Stand> stände(gerüst.Spalten.size());
    for (const std::vector<int> &zeile : zeilen)
        for (std::size_t i = 0; i < zeile.size(); i++) {
            Stand &s = stände[Z(zeile[i])];
            s.Summe += static_cast<std::int64_t>((i * 2 + 1) * 100'000 / zeile.size());
            s.Zahl++;
        }
    for (std::vector<int> &zeile : zeilen) {
        std::vector<int> lange;
        for (const int p : zeile)
            if (stände[Z(p)].Zahl > 1) lange.push_back(p);
        std::sort(lange.begin(), lange.end(), [&](int a, int b) {
            const std::int64_t l = stände[Z(a)].Summe / stände[Z(a)].Zahl;
            const std::int64_t r = stände[Z(b)].Summe / stände[Z(b)].Zahl;
            return l != r ? l < r : a < b;
        });
        auto nächster = lange.begin();
        for (int &p : zeile)
            if (stände[Z(p)].Zahl > 1) p = *nächster++;
    }
    return zeilen;
}

Familienlage FamilieAnordnen(const Familiengraph &graph, const Abstände &abstände) {
    Familienlage lage;
    if (graph.Personen.empty()) return lage;
    std::vector<Familie> familien = GeprüfteFamilien(graph);
    const std::vector<int> ebenen = Ebenen(graph, familien);
    const Gerüst gerüst = GerüstBauen(graph, std::move(familien), ebenen);
    Gewichte gewichte;
    Reihen reihen(graph, gerüst, gewichte);
    Zufall zufall(1);
    const Orte orte(graph, gerüst, abstände);
    std::int64_t beste = -1;
    std::vector<std::vector<int>> bestZeilen;
    for (int start = 0; start < 4; start++) {
        reihen.Setzen(ErzählteReihen(gerüst, zufall.Unter(static_cast<int>(graph.Personen.size()))));
        ReihenSuchen(reihen, zufall, 20000);
        ReihenSetzenlassen(reihen);
        if (beste < 0 || reihen.Kosten() < beste) {
            beste = reihen.Kosten();
            bestZeilen = reihen.Zeilen();
        }
    }
    std::vector<int> x;
    if (!orte.Finden(bestZeilen, x)) {
        bestZeilen = Widerspruchsfrei(gerüst, bestZeilen);
        if (!orte.Finden(bestZeilen, x)) {
            x.assign(graph.Personen.size(), 0);
        }
    }
    Zeichnung z;
    const int links = *std::min_element(x.begin(), x.end());
    for (std::size_t i = 0; i < x.size(); i++)
        z.Personen.push_back({(x[i] - links) * orte.Schritt(), ebenen[i] * Tausendstel(abstände.Generationen)});
    z.Balken = BalkenHängen(gerüst, z.Personen, abstände);
    lage.Befund = Befinden(gerüst, z, abstände);
    for (const Punkt &p : z.Personen) {
        lage.Personen.push_back({static_cast<double>(p.X) / 1000, static_cast<double>(p.Y) / 1000});
        lage.Breite = std::max(lage.Breite, lage.Personen.back().X);
        lage.Höhe = std::max(lage.Höhe, lage.Personen.back().Y);
    }
    for (const std::int64_t h : z.Balken) {
        lage.Balken.push_back(static_cast<double>(h) / 1000);
        lage.Höhe = std::max(lage.Höhe, lage.Balken.back());
    }
    return lage;
}

} // namespace kw
