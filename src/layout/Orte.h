#pragma once

#include "layout/Differenzen.h"
#include "layout/Reihen.h"
#include "layout/Strecken.h"

#include <vector>

namespace kw {

/// Everybody's x for rows in a given order, such that all lines together are shortest, in steps of the raster.
class Orte {
  public:
    Orte(const Familiengraph &graph, const Gerüst &gerüst, const Abstände &abstände);
    std::vector<int> Finden(const Reihen::Folgen &zeilen) const;
    /// Thousandths of a centimetre in a step.
    std::int64_t Schritt() const { return schritt_; }

  private:
    using Paare = std::vector<std::pair<int, int>>;
    int Abstand(int zeile, int links, int rechts) const;
    int Schritte(double cm) const;
    bool ReihenHalten(const Reihen::Folgen &zeilen, Differenzen &orte) const;
    void Gewichten(const Reihen::Folgen &zeilen, Differenzen &orte, Paare &innen) const;

    const Familiengraph &graph_;
    const Gerüst &gerüst_;
    const Abstände &abstände_;
    std::int64_t schritt_;
};

/// The heights of all bars, such that their lines cross least. Thousandths.
std::vector<std::int64_t> BalkenHängen(const Gerüst &gerüst, const std::vector<Punkt> &personen,
                                       const Abstände &abstände);

} // namespace kw
