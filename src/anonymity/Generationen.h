#pragma once

#include <vector>

namespace kw {

struct Dokument;

/// The generation of everybody, by position in the store, from 0 for the topmost on the page. Within a family the lines
/// say it, whatever the heights are; families that no line joins, and persons alone, are matched to the largest family
/// by their heights. Numbers between can be nobody's. The same document gives the same, on every machine.
std::vector<int> Generationen(const Dokument &dokument);

} // namespace kw
