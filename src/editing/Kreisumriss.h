#pragma once

#include "document/saetze/Kreislinie.h"
#include "editing/Geometrie.h"
#include "rendering/basKurvenGlaettung.h"

#include <string_view>
#include <vector>

// Circle lines by what they hold: laid round something, and asked whether something is in them. cm on the page.
namespace kw {

/// Points round a box, clockwise from the left end of its upper side, at some distance and with round corners.
std::vector<Kreispunkt> KreisUm(const Umgebung &u);

/// Points of one stroke round all of `drinnen` and past all of `draußen`, on a page of that size: it follows the boxes,
/// and goes from one to the next on the shortest free way. Empty where there is none.
std::vector<Kreispunkt> KreisUmAlle(const std::vector<Umgebung> &drinnen, const std::vector<Umgebung> &draußen,
                                    double seitenBreite, double seitenHöhe);

/// How something lies to a closed stroke.
enum class Kreislage { Drinnen, Draußen, AufDemStrich };

/// What the closed stroke of a record goes round, as it is drawn. A damaged one goes round nothing.
class Kreisinneres {
  public:
    Kreisinneres(std::string_view kreis, int glättungsgrad);

    bool Hält(double x, double y) const;
    Kreislage Lage(const Umgebung &kasten) const;

  private:
    std::vector<Kurvenort> zug_;
};

/// The same of one place.
bool Umschließt(std::string_view kreis, int glättungsgrad, double x, double y);

} // namespace kw
