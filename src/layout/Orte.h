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
    enum class Güte { Genau, Ungefähr }; ///< all but exact: within about a centimetre, in much less time
    /// From the page's edge where all have a place, else from the leftmost on.
    std::vector<int> Finden(const Reihen::Folgen &zeilen, Güte güte) const;
    /// Thousandths of a centimetre in a step.
    std::int64_t Schritt() const { return schritt_; }

  private:
    using Paare = std::vector<std::pair<int, int>>;
    std::vector<int> Anfang(const Reihen::Folgen &zeilen) const;
    int Abstand(int zeile, int links, int rechts) const;
    int Schritte(double cm) const;
    bool ReihenHalten(const Reihen::Folgen &zeilen, Differenzen &orte) const;
    void Halten(const Reihen::Folgen &zeilen, Differenzen &orte) const;
    void Gewichten(const Reihen::Folgen &zeilen, Differenzen &orte, Paare &innen) const;

    const Familiengraph &graph_;
    const Gerüst &gerüst_;
    const Abstände &abstände_;
    std::int64_t schritt_;
    bool gezeichnet_; ///< whether all have a place
};

/// Whether somebody is there, and all have a place.
bool HabenPlatz(const Familiengraph &graph);

/// The height of each row: as far below each other as has to be, or where they are drawn. Thousandths.
std::vector<std::int64_t> Zeilenhöhen(const Familiengraph &graph, const Gerüst &gerüst, const Abstände &abstände);

/// The heights of all bars below those rows, such that their lines cross least; where a family has one, that, as long
/// as nothing more crosses. Thousandths.
std::vector<std::int64_t> BalkenHängen(const Gerüst &gerüst, const std::vector<Punkt> &personen,
                                       const std::vector<std::int64_t> &zeilenhöhen, const Abstände &abstände);

} // namespace kw
