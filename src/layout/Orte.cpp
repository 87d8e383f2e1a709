#include "layout/Orte.h"

#include "layout/Differenzen.h"

#include <algorithm>

namespace kw {

namespace {

constexpr int Feinstes = 50;         // thousandths; where the page has no raster
constexpr double Liniennähe = 0.3;   // between lines that pass a row side by side, cm
constexpr std::int64_t Länge = 1000; // a step of a line
constexpr std::int64_t Mitte = 1;    // a step of a child from each of its parents, squared: only what settles ties
constexpr int WeitesterSchritt = 128;

} // namespace

Orte::Orte(const Familiengraph &graph, const Gerüst &gerüst, const Abstände &abstände)
    : graph_(graph), gerüst_(gerüst), abstände_(abstände),
      schritt_(abstände.Raster > 0 ? std::max<std::int64_t>(Tausendstel(abstände.Raster), 1) : Feinstes) {}

int Orte::Schritte(double cm) const { return static_cast<int>((Tausendstel(cm) + schritt_ - 1) / schritt_); }

int Orte::Abstand(int zeile, int links, int rechts) const {
    const bool l = gerüst_.Spalten[Z(links)].Ebene == zeile;
    const bool r = gerüst_.Spalten[Z(rechts)].Ebene == zeile;
    const double breiteL = graph_.Personen[Z(links)].BreiteRechts;
    const double breiteR = graph_.Personen[Z(rechts)].BreiteLinks;
    if (l && r) return Schritte(std::max(abstände_.Personen, breiteL + breiteR + abstände_.Namensluft));
    if (!l && !r) return Schritte(Liniennähe);
    return Schritte(std::max(abstände_.Personen / 2, (l ? breiteL : breiteR) + abstände_.Namensluft / 2));
}

bool Orte::Finden(const std::vector<std::vector<int>> &zeilen, std::vector<int> &x) const {
    const int anzahl = static_cast<int>(gerüst_.Spalten.size());
    std::vector<int> platz(gerüst_.Spalten.size() * zeilen.size());
    std::vector<std::pair<int, int>> innen;
    Differenzen orte(anzahl);
    for (std::size_t z = 0; z < zeilen.size(); z++)
        for (std::size_t i = 0; i < zeilen[z].size(); i++) {
            platz[z * Z(anzahl) + Z(zeilen[z][i])] = static_cast<int>(i);
            if (i > 0) {
                const int links = zeilen[z][i - 1];
                const int rechts = zeilen[z][i];
                orte.Mindestens(links, rechts, Abstand(static_cast<int>(z), links, rechts));
            }
        }
    std::vector<int> familien(gerüst_.Spalten.size(), 0);
    for (const Gehänge &g : gerüst_.Gehängte) {
        familien[Z(g.A)]++;
        familien[Z(g.B)]++;
    }
    const int höhe = Schritte(abstände_.Generationen - abstände_.Balken - abstände_.Symbol / 2);
    for (const Gehänge &g : gerüst_.Gehängte) {
        const int zeile = gerüst_.Balkenzeile[Z(g.Familie)];
        int l = g.A;
        int r = g.B;
        if (platz[Z(zeile * anzahl + l)] > platz[Z(zeile * anzahl + r)]) std::swap(l, r);
        orte.Kosten(Kostenart::Über, l, r, 0, Länge);
        for (const int kind : g.Kinder) {
            if (gerüst_.Spalten[Z(kind)].Ebene > zeile + 1) {
                innen.emplace_back(l, kind);
                innen.emplace_back(kind, r);
            }
            orte.Kosten(Kostenart::Schräg, kind, l, 0, Länge, höhe);
            orte.Kosten(Kostenart::Schräg, r, kind, 0, Länge, höhe);
            // Beyond a partner of several its line would run into those of the other families.
            if (familien[Z(l)] > 1) orte.Kosten(Kostenart::Über, kind, l, 0, Länge / 2);
            if (familien[Z(r)] > 1) orte.Kosten(Kostenart::Über, r, kind, 0, Länge / 2);
            orte.Kosten(Kostenart::Quadrat, l, kind, 0, Mitte);
            orte.Kosten(Kostenart::Quadrat, kind, r, 0, Mitte);
        }
    }
    std::vector<int> anfang;
    if (!orte.Kleinste(anfang)) return false;
    Differenzen alle = orte;
    for (const auto &[a, b] : innen) alle.Mindestens(a, b, 0);
    if (alle.Kleinste(anfang)) orte = std::move(alle);
    else
        for (const auto &[a, b] : innen) {
            Differenzen mit = orte;
            mit.Mindestens(a, b, 0);
            if (mit.Kleinste(anfang)) orte = std::move(mit);
        }
    orte.Kleinste(anfang);
    x = anfang;
    orte.Lösen(x, WeitesterSchritt);
    return true;
}

} // namespace kw
