#pragma once

#include "layout/Familiengraph.h"

#include <vector>

// Lays out a family as a genogram.
namespace kw {

/// What remains to be weighed in a drawing, counted on the lines as they are drawn.
struct Lagebefund {
    int Überlagert = 0; ///< pairs of persons that stand on each other
    int Durchquert = 0; ///< lines through a stranger's symbol
    int Kreuzungen = 0; ///< pairs of lines of different families that cross or lie on each other
    int Störende = 0;   ///< of these all but those of a leg with the end of another bar of the same person
    int AnFremdem = 0;  ///< children whose line begins on the bar of another couple
    int Getrennt = 0;   ///< couples with a stranger between them
    int Verkehrt = 0;   ///< pairs of siblings in the wrong order
    int Ungleich = 0;   ///< couples on different heights
    double Länge = 0;   ///< of all lines, cm
};

/// Where everything stands, cm. The leftmost person's x and the oldest generation's y are 0; where somebody has a
/// place, it is that of the page.
struct Familienlage {
    std::vector<Ort> Personen;   ///< centres
    std::vector<double> Balken;  ///< height of the bar of each family; meaningless where a family has no partner
    double Breite = 0, Höhe = 0; ///< from centre to centre, and down to the lowest bar
    Lagebefund Befund;
};

/// The same family gets the same places, on every machine. Takes whatever it is given; the work is bounded by its size.
Familienlage FamilieAnordnen(const Familiengraph &graph, const Abstände &abstände = {});

} // namespace kw
