#pragma once

#include "layout/Familiengraph.h"

#include <cstddef>
#include <vector>

// What stands in which row before anybody's place in it is known.
namespace kw {

/// Positions are ints here, as in the graph; containers count otherwise.
constexpr std::size_t Z(int zahl) { return static_cast<std::size_t>(zahl); }

/// What hangs between a row and the next one: a family's bar with its children, or the line of a person that passes.
struct Gehänge {
    int Familie = -1; ///< -1: a line that passes
    int A = 0, B = 0; ///< the persons between whom it hangs; one twice under one alone, and of a line that passes
    std::vector<int> Kinder; ///< in the order that siblings should have
    bool Lang = false;       ///< whether one of the lines passes a row
};

/// A person takes a column of the page: its own row, those above through which its parents' line comes, and those below
/// through which its legs reach down to a low bar. Lines that pass a row are thereby upright.
struct Spalte {
    int Ebene = 0;
    int Oben = 0, Unten = 0; ///< first and last row of the column
};

/// Checked families and the levels of everybody.
struct Gerüst {
    int Zeilen = 0;
    std::vector<Spalte> Spalten;   ///< a person
    std::vector<Familie> Familien; ///< as in the graph, without what can't be, children in the order of their ages
    std::vector<int> Balkenzeile;  ///< the row below which a family's bar hangs; -1 none
    std::vector<Gehänge> Gehängte;
    std::vector<std::vector<int>> Partner; ///< of a person, all of them
};

/// Without what can't be: see `Familie`.
std::vector<Familie> GeprüfteFamilien(const Familiengraph &graph);
/// The generation of everybody, the oldest of those who belong together 0: children below their parents, partners on
/// one level, siblings too where that lengthens no line. Where the data go round in a circle, one of its bonds is let
/// go.
std::vector<int> Ebenen(const Familiengraph &graph, const std::vector<Familie> &familien);
/// Partners, parents and children of each, as their lines join them.
std::vector<std::vector<int>> Verwandte(const Gerüst &gerüst);
Gerüst GerüstBauen(const Familiengraph &graph, std::vector<Familie> familien, const std::vector<int> &ebenen);

} // namespace kw
