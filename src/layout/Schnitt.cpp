#include "layout/Schnitt.h"

#include <algorithm>
#include <cstddef>

namespace kw {

namespace {

constexpr std::size_t Z(int zahl) { return static_cast<std::size_t>(zahl); }

} // namespace

Schnitt::Schnitt(int knoten)
    : quelle_(knoten), senke_(knoten + 1), erste_(Z(knoten + 2), -1), schicht_(Z(knoten + 2)), eigen_(Z(knoten), 0) {}

void Schnitt::Anhängen(int a, int b, std::int64_t hin) {
    kanten_.push_back({b, erste_[Z(a)], hin});
    erste_[Z(a)] = static_cast<int>(kanten_.size()) - 1;
    kanten_.push_back({a, erste_[Z(b)], 0});
    erste_[Z(b)] = static_cast<int>(kanten_.size()) - 1;
}

void Schnitt::Paar(int a, int b, std::int64_t kosten) {
    if (kosten > 0) Anhängen(a, b, kosten);
}

/// Distances from the source along what still has room; whether the sink can be reached.
bool Schnitt::Schichten() {
    std::fill(schicht_.begin(), schicht_.end(), -1);
    schicht_[Z(quelle_)] = 0;
    reihe_.assign(1, quelle_);
    for (std::size_t i = 0; i < reihe_.size() && schicht_[Z(senke_)] < 0; i++)
        for (int k = erste_[Z(reihe_[i])]; k >= 0; k = kanten_[Z(k)].Nächste) {
            const Kante &kante = kanten_[Z(k)];
            if (kante.Rest <= 0 || schicht_[Z(kante.Nach)] >= 0) continue;
            schicht_[Z(kante.Nach)] = schicht_[Z(reihe_[i])] + 1;
            reihe_.push_back(kante.Nach);
        }
    return schicht_[Z(senke_)] >= 0;
}

/// Sends what one shortest path can carry; 0 when there is none left of this length.
std::int64_t Schnitt::Weg() {
    weg_.clear();
    int knoten = quelle_;
    while (knoten != senke_) {
        int &k = aktuell_[Z(knoten)];
        while (k >= 0 && (kanten_[Z(k)].Rest <= 0 || schicht_[Z(kanten_[Z(k)].Nach)] != schicht_[Z(knoten)] + 1))
            k = kanten_[Z(k)].Nächste;
        if (k >= 0) {
            weg_.push_back(k);
            knoten = kanten_[Z(k)].Nach;
            continue;
        }
        if (weg_.empty()) return 0;
        schicht_[Z(knoten)] = -1; // a dead end
        knoten = kanten_[Z(weg_.back() ^ 1)].Nach;
        weg_.pop_back();
    }
    std::int64_t fluss = Verboten;
    for (const int k : weg_) fluss = std::min(fluss, kanten_[Z(k)].Rest);
    for (const int k : weg_) {
        kanten_[Z(k)].Rest -= fluss;
        kanten_[Z(k ^ 1)].Rest += fluss;
    }
    return fluss;
}

std::vector<char> Schnitt::Menge() {
    std::int64_t gewinn = 0;
    for (int i = 0; i < quelle_; i++) {
        const std::int64_t kosten = eigen_[Z(i)];
        if (kosten < 0) Anhängen(quelle_, i, -kosten);
        else if (kosten > 0) Anhängen(i, senke_, kosten);
        if (kosten < 0) gewinn -= kosten;
    }
    while (gewinn > 0 && Schichten()) {
        aktuell_ = erste_;
        while (const std::int64_t fluss = Weg()) gewinn -= fluss;
    }
    if (gewinn <= 0) return {};
    std::vector<char> menge(eigen_.size());
    for (std::size_t i = 0; i < menge.size(); i++) menge[i] = schicht_[i] >= 0 ? 1 : 0;
    return menge;
}

} // namespace kw
