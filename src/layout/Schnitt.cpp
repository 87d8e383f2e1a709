#include "layout/Schnitt.h"

#include <algorithm>
#include <cstddef>

namespace kw {

namespace {

constexpr std::size_t Z(int zahl) { return static_cast<std::size_t>(zahl); }

} // namespace

Schnitt::Schnitt(int knoten)
    : quelle_(knoten), senke_(knoten + 1), erste_(Z(knoten + 2), -1), schicht_(Z(knoten + 2)), eigen_(Z(knoten), 0),
      eigenkante_(Z(knoten), -1) {}

void Schnitt::Anhängen(int a, int b, std::int64_t hin, std::int64_t zurück) {
    kanten_.push_back({b, erste_[Z(a)], hin});
    erste_[Z(a)] = static_cast<int>(kanten_.size()) - 1;
    kanten_.push_back({a, erste_[Z(b)], zurück});
    erste_[Z(b)] = static_cast<int>(kanten_.size()) - 1;
}

void Schnitt::Paar(int a, int b, std::int64_t nurA, std::int64_t nurB) {
    if (nurA > 0 || nurB > 0) Anhängen(a, b, nurA, nurB);
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

/// Sends what all shortest paths can carry.
void Schnitt::Füllen() {
    aktuell_ = erste_;
    weg_.clear();
    int knoten = quelle_;
    while (gewinn_ > 0) {
        if (knoten == senke_) {
            knoten = Senden();
            continue;
        }
        int &k = aktuell_[Z(knoten)];
        while (k >= 0 && (kanten_[Z(k)].Rest <= 0 || schicht_[Z(kanten_[Z(k)].Nach)] != schicht_[Z(knoten)] + 1))
            k = kanten_[Z(k)].Nächste;
        if (k >= 0) {
            weg_.push_back(k);
            knoten = kanten_[Z(k)].Nach;
            continue;
        }
        if (weg_.empty()) return;
        schicht_[Z(knoten)] = -1; // a dead end
        knoten = kanten_[Z(weg_.back() ^ 1)].Nach;
        weg_.pop_back();
    }
}

/// Sends what the path can carry; it then ends where it has no room left, at that node.
int Schnitt::Senden() {
    std::size_t engste = 0;
    for (std::size_t i = 1; i < weg_.size(); i++)
        if (kanten_[Z(weg_[i])].Rest < kanten_[Z(weg_[engste])].Rest) engste = i;
    const std::int64_t fluss = kanten_[Z(weg_[engste])].Rest;
    for (const int k : weg_) Fließen(k, fluss);
    gewinn_ -= fluss;
    const int knoten = kanten_[Z(weg_[engste] ^ 1)].Nach;
    weg_.resize(engste);
    return knoten;
}

void Schnitt::Fließen(int kante, std::int64_t fluss) {
    kanten_[Z(kante)].Rest -= fluss;
    kanten_[Z(kante ^ 1)].Rest += fluss;
}

/// Those who stand close in a row push each other along it, hundreds of them in one line: what the ones gain by that
/// and the others lose is set off in one go; searching paths of that length one by one takes seconds.
void Schnitt::Vorweg() {
    std::vector<int> zwang(eigen_.size(), -1); // the bond by which a node takes another one along
    std::vector<char> folgt(eigen_.size(), 0);
    for (std::size_t i = 0; i < zwang.size(); i++)
        for (int k = erste_[i]; k >= 0 && zwang[i] < 0; k = kanten_[Z(k)].Nächste)
            if (kanten_[Z(k)].Rest == Verboten) zwang[i] = k;
    for (const int k : zwang)
        if (k >= 0) folgt[Z(kanten_[Z(k)].Nach)] = 1;
    std::vector<char> gesehen(eigen_.size(), 0);
    for (int i = 0; i < quelle_; i++)
        if (!folgt[Z(i)]) Entlang(i, zwang, gesehen);
}

void Schnitt::Entlang(int anfang, const std::vector<int> &zwang, std::vector<char> &gesehen) {
    struct Gewinn {
        std::size_t Ort;
        int Kante;
    };
    std::vector<Gewinn> gewinne; // not used up, the nearest last
    std::vector<std::int64_t> hinzu;
    weg_.clear();
    for (int knoten = anfang; !gesehen[Z(knoten)]; knoten = kanten_[Z(weg_.back())].Nach) {
        gesehen[Z(knoten)] = 1;
        const int eigen = eigenkante_[Z(knoten)];
        hinzu.push_back(0);
        if (eigen >= 0 && eigen_[Z(knoten)] < 0) gewinne.push_back({hinzu.size() - 1, eigen});
        while (eigen >= 0 && eigen_[Z(knoten)] > 0 && kanten_[Z(eigen)].Rest > 0 && !gewinne.empty()) {
            const Gewinn &von = gewinne.back();
            const std::int64_t fluss = std::min(kanten_[Z(von.Kante)].Rest, kanten_[Z(eigen)].Rest);
            Fließen(von.Kante, fluss);
            Fließen(eigen, fluss);
            gewinn_ -= fluss;
            hinzu[von.Ort] += fluss;
            hinzu.back() -= fluss;
            if (kanten_[Z(von.Kante)].Rest == 0) gewinne.pop_back();
        }
        if (zwang[Z(knoten)] < 0) break;
        weg_.push_back(zwang[Z(knoten)]);
    }
    std::int64_t fluss = 0;
    for (std::size_t i = 0; i < weg_.size() && i < hinzu.size(); i++) Fließen(weg_[i], fluss += hinzu[i]);
}

std::vector<char> Schnitt::Menge() {
    for (int i = 0; i < quelle_; i++) {
        const std::int64_t kosten = eigen_[Z(i)];
        if (kosten == 0) continue;
        eigenkante_[Z(i)] = static_cast<int>(kanten_.size());
        if (kosten < 0) Anhängen(quelle_, i, -kosten);
        else Anhängen(i, senke_, kosten);
        if (kosten < 0) gewinn_ -= kosten;
    }
    Vorweg();
    while (gewinn_ > 0 && Schichten()) Füllen();
    if (gewinn_ <= 0) return {};
    std::vector<char> menge(eigen_.size());
    for (std::size_t i = 0; i < menge.size(); i++) menge[i] = schicht_[i] >= 0 ? 1 : 0;
    return menge;
}

} // namespace kw
