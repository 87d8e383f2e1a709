#pragma once

#include "layout/Familienlage.h"
#include "layout/Geruest.h"
#include "layout/Strecken.h"

#include <vector>

namespace kw {

/// Everybody's x for rows in a given order, such that all lines together are shortest, in steps of the raster.
class Orte {
  public:
    Orte(const Familiengraph &graph, const Gerüst &gerüst, const Abstände &abstände);
    /// `x` is where to begin, from an order that is nearly the same, or empty. False: these rows can't be, since lines
    /// that pass them would have to be upright and change sides.
    bool Finden(const std::vector<std::vector<int>> &zeilen, std::vector<int> &x) const;
    /// Thousandths of a centimetre in a step.
    std::int64_t Schritt() const { return schritt_; }

  private:
    int Abstand(int zeile, int links, int rechts) const;
    int Schritte(double cm) const;

    const Familiengraph &graph_;
    const Gerüst &gerüst_;
    const Abstände &abstände_;
    std::int64_t schritt_;
};

/// Rows in which columns of several rows keep one order in all of them.
std::vector<std::vector<int>> Widerspruchsfrei(const Gerüst &gerüst, std::vector<std::vector<int>> zeilen);

/// The heights of all bars, such that their lines cross least. Thousandths.
std::vector<std::int64_t> BalkenHängen(const Gerüst &gerüst, const std::vector<Punkt> &personen,
                                       const Abstände &abstände);

} // namespace kw
