#include "rendering/basKurvenGlaettung.h"

#include "document/Zahlen.h"

#include <algorithm>

namespace kw {

namespace {

constexpr double Teiler = 2;

Kurvenort &Ort(Kurvenpunkte &p, int i) { return p[static_cast<size_t>(i)]; }

void EndenSetzen(Kurvenpunkte &p, int n, bool geschlossen) {
    Ort(p, 0) = geschlossen ? Ort(p, n - 1) : Ort(p, 1);
    Ort(p, n + 1) = geschlossen ? Ort(p, 2) : Ort(p, n);
}

/// Calls `punkt` with the start of each segment and its steps, in order.
template <typename Anfang, typename Schritt>
void Durchlaufen(Kurvenpunkte &p, int n, int schritte, bool geschlossen, Anfang anfang, Schritt schritt) {
    if (n < 2 || schritte < 1) return;
    EndenSetzen(p, n, geschlossen);
    for (int i = 1; i <= n - 1; ++i) {
        const auto k = KurvenKoeffizienten(p, i);
        anfang(KurvenPunkt(k, Teiler, 0));
        for (int j = 1; j <= schritte; ++j) schritt(KurvenPunkt(k, Teiler, static_cast<double>(j) / schritte));
    }
}

} // namespace

Kurvenkoeffizienten KurvenKoeffizienten(const Kurvenpunkte &p, int i) {
    const auto mitte = static_cast<size_t>(i);
    const Kurvenort &p0 = p[mitte - 1];
    const Kurvenort &p1 = p[mitte];
    const Kurvenort &p2 = p[mitte + 1];
    const Kurvenort &p3 = p[mitte + 2];
    return {{3 * p1.X - p0.X - 3 * p2.X + p3.X, 3 * p1.Y - p0.Y - 3 * p2.Y + p3.Y},
            {2 * p0.X - 5 * p1.X + 4 * p2.X - p3.X, 2 * p0.Y - 5 * p1.Y + 4 * p2.Y - p3.Y},
            {p2.X - p0.X, p2.Y - p0.Y},
            {2 * p1.X, 2 * p1.Y}};
}

Kurvenort KurvenPunkt(const Kurvenkoeffizienten &k, double teiler, double t) {
    return {(((k.a.X * t + k.b.X) * t + k.c.X) * t + k.d.X) / teiler,
            (((k.a.Y * t + k.b.Y) * t + k.c.Y) * t + k.d.Y) / teiler};
}

std::vector<Kurvenort> KurvenZug(Kurvenpunkte &p, int n, int schritte, bool geschlossen) {
    std::vector<Kurvenort> zug;
    const auto dazu = [&](Kurvenort o) { zug.push_back({Gerundet(o.X, 2), Gerundet(o.Y, 2)}); };
    Durchlaufen(
        p, n, schritte, geschlossen,
        [&](Kurvenort o) {
            if (zug.empty()) dazu(o);
        },
        dazu);
    return zug;
}

void KurveZeichnen(Zeichenfläche &fläche, Kurvenpunkte &p, int n, int schritte, Farbe farbe, bool geschlossen) {
    fläche.Linienzug(KurvenZug(p, n, schritte, geschlossen), farbe);
}

int KurveBerechnen(Kurvenpunkte &p, int n, int schritte, std::vector<Bildpunkt> &punkte, bool geschlossen) {
    punkte.clear();
    const auto ganz = [](double wert) { return static_cast<int>(std::clamp(Gerundet(wert, 0), -1e9, 1e9)); };
    const auto dazu = [&](Kurvenort o) { punkte.push_back({ganz(o.X), ganz(o.Y)}); };
    Durchlaufen(
        p, n, schritte, geschlossen,
        [&](Kurvenort o) {
            if (punkte.empty()) dazu(o);
        },
        dazu);
    return static_cast<int>(punkte.size());
}

} // namespace kw
