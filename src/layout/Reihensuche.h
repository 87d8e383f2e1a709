#pragma once

#include "layout/Reihen.h"
#include "layout/Stuecke.h"
#include "layout/Unruhe.h"
#include "layout/Zufall.h"

#include <functional>

namespace kw {

/// The rows as somebody would tell of the family: a couple, their children with partners and children of their own,
/// each partner's own family behind them or before. Begins with anybody.
Reihen::Folgen ErzählteReihen(const Gerüst &gerüst, Zufall &zufall);

/// Carries and turns persons, and partners in a run, with somebody restless among them, until all are calm.
void ReihenSetzenlassen(Reihen &reihen, Unruhe &unruhe);

/// What is found when rows are drawn.
using Probe = std::function<Lagebefund(const Reihen::Folgen &)>;

/// The cheapest rows found: told in many ways, each left to settle, the best one shaken; of the few cheapest ones those
/// that are best when they are drawn.
Reihen::Folgen BesteReihen(const Familiengraph &graph, const Gerüst &gerüst, const Probe &probe);

} // namespace kw
