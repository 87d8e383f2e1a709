#pragma once

#include "layout/Reihen.h"
#include "layout/Zufall.h"

#include <vector>

namespace kw {

/// The rows as a teller of the family would name its members: a couple, their children with partners and children of
/// their own, each partner's own family behind them. `anfang` is the first one named.
std::vector<std::vector<int>> ErzählteReihen(const Gerüst &gerüst, int anfang);

/// Seeks a cheap order: lays aside and turns runs of neighbours, dearer ones too at first (the colder, the less), and
/// ends where no single move pays. `züge` bounds the work.
void ReihenSuchen(Reihen &reihen, Zufall &zufall, int züge);

/// Carries whole runs of a row to where they cost least, until that no longer pays.
void ReihenSetzenlassen(Reihen &reihen);

} // namespace kw
