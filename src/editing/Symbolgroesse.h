#pragma once

#include "editing/Werkbank.h"

namespace kw {

/// One step of a size command, cm.
constexpr double GrößenSchritt = 0.3;

/// Adds `delta` to the size of every selected person, within the limits of its family: 0.3 to 1.2 for small kinds,
/// 0.9 to 1.8 for the others. Lines join centres, so none changes. One snapshot, also with nobody selected. Meant.
void GrößeÄndern(Werkbank &w, double delta);

/// Context menu: one step, then the states of both entries.
void mnuSymbolVergrößern(Werkbank &w);
void mnuSymbolVerkleinern(Werkbank &w);

/// Enables both context entries as the selected person's size allows.
void GrößeMenüsPrüfen(Werkbank &w);

} // namespace kw
