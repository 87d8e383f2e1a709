#include "layout/Strecken.h"

#include <algorithm>

namespace kw {

namespace {

constexpr std::int64_t Spielraum = 100; // what lies on each other for less than a millimetre doesn't

std::int64_t Kreuzprodukt(const Punkt &a, const Punkt &b, const Punkt &c) {
    return (b.X - a.X) * (c.Y - a.Y) - (b.Y - a.Y) * (c.X - a.X);
}

std::int64_t Gemeinsam(std::int64_t a1, std::int64_t a2, std::int64_t b1, std::int64_t b2) {
    return std::min(std::max(a1, a2), std::max(b1, b2)) - std::max(std::min(a1, a2), std::min(b1, b2));
}

/// Lines that point the same way.
bool Aufeinander(const Strecke &a, const Strecke &b) {
    if (Kreuzprodukt(a.A, a.B, b.A) != 0) return false;
    const bool liegt = std::abs(a.B.X - a.A.X) > std::abs(a.B.Y - a.A.Y);
    const std::int64_t länge = liegt ? Gemeinsam(a.A.X, a.B.X, b.A.X, b.B.X) : Gemeinsam(a.A.Y, a.B.Y, b.A.Y, b.B.Y);
    return länge > Spielraum;
}

/// Where on the bar, were it wide enough, a child hangs: at its own place, twins at the middle of them.
std::int64_t Anschluss(const Familie &familie, const std::vector<Punkt> &personen, int kind) {
    for (const std::vector<int> &gruppe : familie.Zwillinge) {
        if (std::find(gruppe.begin(), gruppe.end(), kind) == gruppe.end()) continue;
        std::int64_t l = personen[Z(kind)].X;
        std::int64_t r = l;
        for (const int zwilling : gruppe) {
            l = std::min(l, personen[Z(zwilling)].X);
            r = std::max(r, personen[Z(zwilling)].X);
        }
        return (l + r) / 2;
    }
    return personen[Z(kind)].X;
}

} // namespace

bool Kreuzen(const Strecke &a, const Strecke &b) {
    if (Gemeinsam(a.A.X, a.B.X, b.A.X, b.B.X) < 0 || Gemeinsam(a.A.Y, a.B.Y, b.A.Y, b.B.Y) < 0) return false;
    std::int64_t d = (a.B.X - a.A.X) * (b.B.Y - b.A.Y) - (a.B.Y - a.A.Y) * (b.B.X - b.A.X);
    if (d == 0) return Aufeinander(a, b);
    std::int64_t t = (b.A.X - a.A.X) * (b.B.Y - b.A.Y) - (b.A.Y - a.A.Y) * (b.B.X - b.A.X);
    std::int64_t u = (b.A.X - a.A.X) * (a.B.Y - a.A.Y) - (b.A.Y - a.A.Y) * (a.B.X - a.A.X);
    if (d < 0) {
        d = -d;
        t = -t;
        u = -u;
    }
    if (t < 0 || u < 0 || t > d || u > d) return false;
    const bool amEnde = std::min(t, d - t) * 1000 < d && std::min(u, d - u) * 1000 < d;
    return !amEnde;
}

bool Durchquert(const Strecke &s, const Punkt &mitte, std::int64_t halb) {
    const auto [l, r] = std::minmax(s.A.X, s.B.X);
    const auto [o, u] = std::minmax(s.A.Y, s.B.Y);
    if (r <= mitte.X - halb || l >= mitte.X + halb || u <= mitte.Y - halb || o >= mitte.Y + halb) return false;
    bool links = false;
    bool rechts = false;
    for (const std::int64_t x : {mitte.X - halb, mitte.X + halb})
        for (const std::int64_t y : {mitte.Y - halb, mitte.Y + halb}) {
            const std::int64_t seite = Kreuzprodukt(s.A, s.B, {x, y});
            links |= seite < 0;
            rechts |= seite > 0;
        }
    return links && rechts;
}

void Linien(const Gerüst &gerüst, const std::vector<Punkt> &personen, int f, std::int64_t höhe, std::int64_t halb,
            std::vector<Strecke> &linien) {
    const Familie &familie = gerüst.Familien[Z(f)];
    const std::int64_t a = personen[Z(familie.Partner.front())].X;
    const std::int64_t b = personen[Z(familie.Partner.back())].X;
    const auto [l, r] = std::minmax(a, b);
    if (l < r) linien.push_back({{l, höhe}, {r, höhe}, f, -1, Strecke::Art::Balken});
    for (const int partner : familie.Partner) {
        const Punkt &p = personen[Z(partner)];
        linien.push_back({p, {p.X, höhe}, f, partner, Strecke::Art::Bein});
    }
    for (const int kind : familie.Kinder) {
        const Punkt &p = personen[Z(kind)];
        linien.push_back({{std::clamp(Anschluss(familie, personen, kind), l, r), höhe},
                          {p.X, p.Y - halb},
                          f,
                          kind,
                          Strecke::Art::Kindlinie});
    }
}

} // namespace kw
