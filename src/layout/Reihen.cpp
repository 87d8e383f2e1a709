#include "layout/Reihen.h"

#include <algorithm>

namespace kw {

void Reihen::Setzen(const Folgen &zeilen) {
    zeilen_ = zeilen;
    for (std::size_t z = 0; z < zeilen.size(); z++)
        for (std::size_t i = 0; i < zeilen[z].size(); i++)
            platz_[Ort(static_cast<int>(z), zeilen[z][i])] = static_cast<int>(i);
    kosten_ = Neuberechnet();
}

std::int64_t Reihen::Neuberechnet() {
    std::int64_t summe = 0;
    for (std::size_t i = 0; i < dinge_.size(); i++) {
        for (std::size_t j = 0; j < i; j++)
            if (dinge_[j].Zeile == dinge_[i].Zeile) summe += Paarkosten(dinge_[i], dinge_[j]);
        dazwischen_[i] = Dazwischen(dinge_[i]);
        summe += Getrenntkosten(dazwischen_[i]);
    }
    for (int z = 0; z < Anzahl(); z++)
        for (std::size_t i = 0; i < Zeile(z).size(); i++) {
            summe += Beinkosten(z, Zeile(z)[i]);
            for (std::size_t j = 0; j < i; j++) summe += vorliebe_[Ort(Zeile(z)[j], Zeile(z)[i])];
        }
    return summe;
}

Reihen::Spanne Reihen::SpanneVon(const Ding &d) const {
    const int a = Platz(d.Zeile, d.A);
    const int b = Platz(d.Zeile, d.B);
    return {std::min(a, b), std::max(a, b)};
}

/// What it costs that two child lines cross.
int Reihen::Kreuzungskosten(const Ding &f, int kindF, const Ding &g, int kindG) const {
    if (!f.Lang || !g.Lang) return gewichte_.Kreuzung;
    const bool aufrechtF = f.Linie || ebene_[Z(kindF)] > f.Zeile + 1;
    const bool aufrechtG = g.Linie || ebene_[Z(kindG)] > g.Zeile + 1;
    return aufrechtF && aufrechtG ? gewichte_.Verschränkt : gewichte_.Kreuzung;
}

/// Child lines of two that hang side by side cross where the children stand the other way round.
int Reihen::Nebeneinander(const Ding &links, const Ding &rechts) const {
    const int *platz = platz_.data() + Ort(links.Zeile + 1, 0);
    int kosten = 0;
    for (const int k : Kinder(links))
        for (const int l : Kinder(rechts))
            if (platz[k] > platz[l]) kosten += Kreuzungskosten(links, k, rechts, l);
    return kosten;
}

/// One hangs within the other's span: either the outer bar lies higher, then it crosses the inner one's legs, and its
/// children get round the inner ones or through their bar; or lower, then the inner one's children cross it.
int Reihen::Ineinander(const Ding &außen, const Ding &innen) const {
    const int *platz = platz_.data() + Ort(außen.Zeile + 1, 0);
    int höher = innen.A == innen.B ? 1 : 2;
    for (const int k : Kinder(außen)) {
        int links = 0;
        int rechts = 0;
        for (const int l : Kinder(innen)) (platz[l] < platz[k] ? links : rechts)++;
        höher += std::min({links, rechts, 1});
    }
    return std::min(höher, innen.Ende - innen.Erstes);
}

/// Crossings of all lines of two that hang below one row.
int Reihen::Paarkosten(const Ding &f, const Ding &g) const {
    const Spanne a = SpanneVon(f);
    const Spanne b = SpanneVon(g);
    if (a.L > b.L || (a.L == b.L && a.R > b.R)) return Paarkosten(g, f);
    if (a.R <= b.L) return Nebeneinander(f, g);
    const int kreuzung = gewichte_.Kreuzung;
    if (g.Linie) return kreuzung;   // through the bar
    if (a.L == b.L || a.R == b.R) { // two partners of one on the same side
        const Ding &nah = a.L == b.L ? f : g;
        return std::min(2 * kreuzung + Nebeneinander(f, g), (1 + nah.Ende - nah.Erstes) * kreuzung);
    }
    if (a.R > b.R) return Ineinander(f, g) * kreuzung;
    return kreuzung + Nebeneinander(f, g);
}

/// Of several partners some have to hang lower; their common leg then passes the ends of the higher bars on the other
/// side too.
int Reihen::Beinkosten(int zeile, int person) const {
    const auto dinge = unten_[Ort(zeile, person)];
    if (dinge.size() < 3) return 0;
    int links = 0;
    int rechts = 0;
    for (const int i : dinge) {
        const Ding &d = dinge_[Z(i)];
        if (d.A == d.B) continue;
        const int partner = d.A == person ? d.B : d.A;
        (Platz(zeile, partner) < Platz(zeile, person) ? links : rechts)++;
    }
    return (links * rechts - std::min(links, rechts)) * gewichte_.Kreuzung;
}

bool Reihen::Fremd(const Ding &d, int person) const {
    return d.A != person && d.B != person && !partner_[Ort(d.A, person)] && !partner_[Ort(d.B, person)];
}

int Reihen::Getrenntkosten(int dazwischen) const {
    return dazwischen > 0 ? gewichte_.Getrennt + dazwischen * gewichte_.Dazwischen : 0;
}

int Reihen::Dazwischen(const Ding &d) const {
    const Spanne spanne = SpanneVon(d);
    int anzahl = 0;
    for (int i = spanne.L + 1; i < spanne.R; i++) {
        const int person = Zeile(d.Zeile)[Z(i)];
        anzahl += ebene_[Z(person)] == d.Zeile && Fremd(d, person) ? 1 : 0;
    }
    return anzahl;
}

/// `anderer`, a neighbour of `ende`, is about to pass to its other side.
int Reihen::Trennung(int zeile, int ende, int anderer, bool andererRechts) {
    if (ebene_[Z(anderer)] != zeile) return 0;
    int summe = 0;
    for (const int i : unten_[Ort(zeile, ende)]) {
        const Ding &d = dinge_[Z(i)];
        if (d.A == d.B || !Fremd(d, anderer)) continue;
        const int partner = d.A == ende ? d.B : d.A;
        const bool partnerRechts = Platz(zeile, partner) > Platz(zeile, ende);
        summe -= Getrenntkosten(dazwischen_[Z(i)]);
        dazwischen_[Z(i)] += partnerRechts == andererRechts ? -1 : 1;
        summe += Getrenntkosten(dazwischen_[Z(i)]);
    }
    return summe;
}

/// What the lines to two neighbours cost each other, as far as it depends on who of them stands left.
int Reihen::Obenkosten(int zeile, int links, int rechts) const {
    int summe = 0;
    const auto l = oben_[Ort(zeile, links)];
    const auto r = oben_[Ort(zeile, rechts)];
    for (const int i : l)
        for (const int j : r) {
            if (i == j) continue;
            const Ding &f = dinge_[Z(i)];
            const Ding &g = dinge_[Z(j)];
            const Spanne a = SpanneVon(f);
            const Spanne b = SpanneVon(g);
            if (a.R <= b.L) continue;
            if (b.R <= a.L) summe += Kreuzungskosten(f, links, g, rechts);
            else if (l.size() + r.size() == 2) summe += Paarkosten(f, g);
            else { // a pair that hangs on both, both ways round, counts once
                const bool doppelt =
                    std::find(l.begin(), l.end(), j) != l.end() && std::find(r.begin(), r.end(), i) != r.end();
                if (!doppelt || i < j) summe += Paarkosten(f, g);
            }
        }
    return summe;
}

int Reihen::Untenkosten(int zeile, int links, int rechts) const {
    int summe = 0;
    const auto l = unten_[Ort(zeile, links)];
    const auto r = unten_[Ort(zeile, rechts)];
    for (const int i : l)
        for (const int j : r) {
            if (i == j) continue;
            const bool doppelt = l.size() + r.size() > 3 && std::find(l.begin(), l.end(), j) != l.end() &&
                                 std::find(r.begin(), r.end(), i) != r.end();
            if (!doppelt || i < j) summe += Paarkosten(dinge_[Z(i)], dinge_[Z(j)]);
        }
    if (partner_[Ort(links, rechts)]) summe += Beinkosten(zeile, links) + Beinkosten(zeile, rechts);
    return summe;
}

int Reihen::Tauschen(int zeile, int platz) {
    std::vector<int> &reihe = zeilen_[Z(zeile)];
    const int links = reihe[Z(platz)];
    const int rechts = reihe[Z(platz + 1)];
    int mehr = vorliebe_[Ort(rechts, links)] - vorliebe_[Ort(links, rechts)];
    mehr += Trennung(zeile, links, rechts, true) + Trennung(zeile, rechts, links, false);
    mehr -= Obenkosten(zeile, links, rechts) + Untenkosten(zeile, links, rechts);
    std::swap(reihe[Z(platz)], reihe[Z(platz + 1)]);
    std::swap(platz_[Ort(zeile, links)], platz_[Ort(zeile, rechts)]);
    mehr += Obenkosten(zeile, rechts, links) + Untenkosten(zeile, rechts, links);
    kosten_ += mehr;
    return mehr;
}

} // namespace kw
