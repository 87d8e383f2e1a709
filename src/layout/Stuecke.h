#pragma once

#include "layout/Geruest.h"

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

} // namespace kw
