#include "layout/Familienlage.h"

#include "layout/Orte.h"
#include "layout/Reihensuche.h"
#include "layout/Teile.h"

#include <algorithm>

namespace kw {

namespace {

/// One part of a family, everybody of which belongs to everybody else by some bond: places from x = 0, or the page's.
Lageplan TeilZeichnen(const Familiengraph &graph, const Gerüst &gerüst, const Abstände &abstände) {
    const Orte orte(graph, gerüst, abstände);
    const std::vector<std::int64_t> höhen = Zeilenhöhen(graph, gerüst, abstände);
    const auto zeichnen = [&](const Reihen::Folgen &zeilen, Orte::Güte güte) {
        const std::vector<int> x = orte.Finden(zeilen, güte);
        Lageplan plan;
        for (std::size_t i = 0; i < x.size(); i++)
            plan.Personen.push_back({x[i] * orte.Schritt(), höhen[Z(gerüst.Spalten[i].Ebene)]});
        plan.Balken = BalkenHängen(gerüst, plan.Personen, höhen, abstände);
        return plan;
    };
    const auto probe = [&](const Reihen::Folgen &zeilen) {
        return Befinden(gerüst, zeichnen(zeilen, Orte::Güte::Ungefähr), abstände);
    };
    return zeichnen(BesteReihen(graph, gerüst, probe), Orte::Güte::Genau);
}

double Zentimeter(std::int64_t tausendstel) { return static_cast<double>(tausendstel) / 1000; }

} // namespace

Familienlage FamilieAnordnen(const Familiengraph &graph, const Abstände &abstände) {
    const std::vector<Familie> familien = GeprüfteFamilien(graph);
    const std::vector<int> ebenen = Ebenen(graph, familien);
    Lageplan ganze{std::vector<Punkt>(graph.Personen.size()), std::vector<std::int64_t>(familien.size(), 0)};
    const std::vector<Teil> teile = TeileFinden(graph, familien, ebenen);
    Nebeneinander neben(graph, abstände, teile);
    for (const Teil &teil : teile) {
        const Gerüst gerüst = GerüstBauen(teil.Graph, teil.Graph.Familien, teil.Ebenen);
        Lageplan plan = TeilZeichnen(teil.Graph, gerüst, abstände);
        const Punkt versatz = neben.Platz(teil, plan);
        for (std::size_t i = 0; i < teil.Personen.size(); i++) {
            const Punkt &p = plan.Personen[i];
            ganze.Personen[Z(teil.Personen[i])] = {p.X + versatz.X, p.Y + versatz.Y};
        }
        for (std::size_t f = 0; f < teil.Familien.size(); f++)
            ganze.Balken[Z(teil.Familien[f])] = plan.Balken[f] + versatz.Y;
    }
    neben.EinzelneSetzen(ganze.Personen);

    Familienlage lage;
    lage.Befund = Befinden(GerüstBauen(graph, familien, ebenen), ganze, abstände);
    for (const Punkt &p : ganze.Personen) {
        lage.Personen.push_back({Zentimeter(p.X), Zentimeter(p.Y)});
        lage.Breite = std::max(lage.Breite, lage.Personen.back().X);
        lage.Höhe = std::max(lage.Höhe, lage.Personen.back().Y);
    }
    for (const std::int64_t höhe : ganze.Balken) {
        lage.Balken.push_back(Zentimeter(höhe));
        lage.Höhe = std::max(lage.Höhe, lage.Balken.back());
    }
    return lage;
}

} // namespace kw
