#include "layout/Reihensuche.h"

namespace kw {

namespace {

/// Visits persons and families from a heap of what is still to be told, the next thing on top.
class Erzählung {
  public:
    Erzählung(const Gerüst &gerüst, Zufall &zufall)
        : gerüst_(gerüst), zufall_(zufall), zeilen_(Z(gerüst.Zeilen)), genannt_(gerüst.Spalten.size(), 0),
          erzählt_(gerüst.Familien.size(), 0), eigene_(gerüst.Spalten.size()), herkunft_(gerüst.Spalten.size()) {
        for (std::size_t f = 0; f < gerüst.Familien.size(); f++) {
            for (const int partner : gerüst.Familien[f].Partner)
                eigene_[Z(partner)].push_back(-1 - static_cast<int>(f));
            for (const int kind : gerüst.Familien[f].Kinder) herkunft_[Z(kind)].push_back(-1 - static_cast<int>(f));
        }
    }

    std::vector<std::vector<int>> Von(int anfang) {
        const int anzahl = static_cast<int>(genannt_.size());
        for (int i = 0; i < anzahl; i++) {
            Person((anfang + i) % anzahl);
            while (!offen_.empty()) {
                const int nächstes = offen_.back();
                offen_.pop_back();
                if (nächstes >= 0) Person(nächstes);
                else Familie(-1 - nächstes);
            }
        }
        return std::move(zeilen_);
    }

  private:
    void Person(int person) {
        if (genannt_[Z(person)]) return;
        genannt_[Z(person)] = 1;
        const Spalte &spalte = gerüst_.Spalten[Z(person)];
        for (int z = spalte.Oben; z <= spalte.Unten; z++) zeilen_[Z(z)].push_back(person);
        const bool herkunftZuerst = zufall_.Unter(2) == 0;
        if (!herkunftZuerst) Merken(herkunft_[Z(person)]);
        Merken(eigene_[Z(person)]);
        if (herkunftZuerst) Merken(herkunft_[Z(person)]);
    }

    void Familie(int f) {
        if (erzählt_[Z(f)]) return;
        erzählt_[Z(f)] = 1;
        const kw::Familie &familie = gerüst_.Familien[Z(f)];
        Merken(familie.Kinder);
        Merken(familie.Partner);
    }

    /// The first of them comes next.
    void Merken(const std::vector<int> &was) { offen_.insert(offen_.end(), was.rbegin(), was.rend()); }

    const Gerüst &gerüst_;
    Zufall &zufall_;
    std::vector<std::vector<int>> zeilen_;
    std::vector<char> genannt_, erzählt_;
    std::vector<std::vector<int>> eigene_, herkunft_; ///< families of a person; they count down from -1
    std::vector<int> offen_;                          ///< persons and families
};

} // namespace

Reihen::Folgen ErzählteReihen(const Gerüst &gerüst, Zufall &zufall) {
    return Erzählung(gerüst, zufall).Von(zufall.Unter(static_cast<int>(gerüst.Spalten.size())));
}

} // namespace kw
