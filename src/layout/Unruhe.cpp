#include "layout/Unruhe.h"

#include <algorithm>

namespace kw {

Unruhe::Unruhe(const Gerüst &gerüst)
    : gerüst_(gerüst), verwandte_(Verwandte(gerüst)), unruhig_(Z(gerüst.Zeilen) * gerüst.Spalten.size(), 0),
      anzahl_(Z(gerüst.Zeilen), 0) {}

void Unruhe::Wecken(int zeile, int person) {
    const Spalte &spalte = gerüst_.Spalten[Z(person)];
    if (zeile < spalte.Oben || zeile > spalte.Unten) return;
    char &unruhig = unruhig_[Ort(zeile, person)];
    if (!unruhig) anzahl_[Z(zeile)]++;
    unruhig = 1;
}

void Unruhe::Überall() {
    for (std::size_t person = 0; person < verwandte_.size(); person++)
        for (int z = gerüst_.Spalten[person].Oben; z <= gerüst_.Spalten[person].Unten; z++)
            Wecken(z, static_cast<int>(person));
}

void Unruhe::Stiften(int zeile, int person) {
    for (int z = zeile - 1; z <= zeile + 1; z++) Wecken(z, person);
    for (const int anderer : verwandte_[Z(person)])
        for (int z = zeile - 1; z <= zeile + 1; z++) Wecken(z, anderer);
}

void Unruhe::Stiften(const Reihen &vorher, const Reihen &jetzt) {
    std::vector<int> links(verwandte_.size(), -1);
    for (int z = 0; z < jetzt.Anzahl(); z++) {
        const std::vector<int> &alt = vorher.Zeile(z);
        const std::vector<int> &neu = jetzt.Zeile(z);
        if (alt == neu) continue;
        for (std::size_t i = 0; i < alt.size(); i++) links[Z(alt[i])] = i > 0 ? alt[i - 1] : -1;
        for (std::size_t i = 0; i < neu.size(); i++) {
            if (links[Z(neu[i])] == (i > 0 ? neu[i - 1] : -1)) continue;
            Stiften(z, neu[i]);
            if (i > 0) Stiften(z, neu[i - 1]);
        }
    }
}

std::vector<char> Unruhe::Abnehmen(int zeile) {
    const auto anfang = unruhig_.begin() + static_cast<std::ptrdiff_t>(Ort(zeile, 0));
    const auto ende = anfang + static_cast<std::ptrdiff_t>(verwandte_.size());
    std::vector<char> bisher(anfang, ende);
    std::fill(anfang, ende, 0);
    anzahl_[Z(zeile)] = 0;
    return bisher;
}

} // namespace kw
