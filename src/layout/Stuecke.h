#pragma once

#include "layout/Geruest.h"
#include "layout/Zufall.h"

#include <vector>

namespace kw {

/// Some of the family who hang on the others by one bond, or nearly so: what can be carried to another place, or turned
/// round, as a whole.
struct Stück {
    std::vector<std::vector<int>> Zeilen; ///< who of it stands in each row from `Erste` on
    int Erste = 0;
    int Anker = 0; ///< the row of the bond, counted like all rows
};

/// What hangs on one bond alone (of the two sides the smaller one), and of each family its descendants with those
/// partners who have no parents here.
std::vector<Stück> StückeFinden(const Gerüst &gerüst);

/// Which piece is carried next.
class Stückwahl {
  public:
    explicit Stückwahl(const Gerüst &gerüst);

    /// One of `StückeFinden`, or some who are near to each other; empty where nobody is near to anybody.
    Stück Irgendeines(Zufall &zufall) const;
    /// Who stands in that row for `person`'s partners and their partners, but for `ohne`; where these lead there too,
    /// `person` alone.
    Stück Partner(int zeile, int person, int ohne) const;

  private:
    Stück Klumpen(Zufall &zufall) const;

    const Gerüst &gerüst_;
    std::vector<Stück> stücke_;
    std::vector<std::vector<int>> nächste_; ///< partners, parents and children
};

} // namespace kw
