#pragma once

#include "layout/Reihen.h"

#include <vector>

namespace kw {

/// Who might stand better elsewhere since something changed around them: the places where it is worth to look.
class Unruhe {
  public:
    explicit Unruhe(const Gerüst &gerüst);

    void Überall();
    /// Round a person who came to stand elsewhere in that row: them, and whoever a line joins them to.
    void Stiften(int zeile, int person);
    /// Round all those who have another neighbour now.
    void Stiften(const Reihen &vorher, const Reihen &jetzt);

    bool Herrscht(int zeile) const { return anzahl_[Z(zeile)] > 0; }
    bool Herrscht(int zeile, int person) const { return unruhig_[Ort(zeile, person)] != 0; }
    /// Who is restless in that row, by person; then it is calm.
    std::vector<char> Abnehmen(int zeile);

  private:
    std::size_t Ort(int zeile, int person) const { return Z(zeile) * verwandte_.size() + Z(person); }
    void Wecken(int zeile, int person);

    const Gerüst &gerüst_;
    std::vector<std::vector<int>> verwandte_; ///< partners, parents and children
    std::vector<char> unruhig_;               ///< by row and person
    std::vector<int> anzahl_;                 ///< of them, by row
};

} // namespace kw
