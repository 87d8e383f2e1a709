#pragma once

#include "layout/Reihen.h"
#include "layout/Stuecke.h"
#include "layout/Unruhe.h"
#include "layout/Zufall.h"

namespace kw {

/// The rows as somebody would tell of the family: a couple, their children with partners and children of their own,
/// each partner's own family behind them or before. Begins with anybody.
Reihen::Folgen ErzählteReihen(const Gerüst &gerüst, Zufall &zufall);

/// Carries and turns runs of neighbours with somebody restless among them, until all are calm.
void ReihenSetzenlassen(Reihen &reihen, Unruhe &unruhe);

/// Carries pieces elsewhere and lets the rows settle, so many times; ends with the cheapest rows that were seen.
void ReihenRütteln(Reihen &reihen, const std::vector<Stück> &stücke, Unruhe &unruhe, Zufall &zufall, int mal);

/// The cheapest rows found: told in many ways, each left to settle, the best one shaken.
Reihen::Folgen BesteReihen(const Familiengraph &graph, const Gerüst &gerüst);

} // namespace kw
