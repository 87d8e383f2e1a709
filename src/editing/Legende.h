#pragma once

// The legend on the page: it can be dragged, and has a menu.
namespace kw {

struct Ereignis;
struct Werkbank;

/// By the place of the last move, not of the press. Meant.
bool LegendeUnterMaus(const Werkbank &w);

/// A press on it, whatever is armed or selected but what comes before. Says whether the event ends with it.
bool LegendeFassen(Werkbank &w, const Ereignis &e);
// Its mask follows the pointer, snapped; the release moves the legend there and marks the document as changed. There
// is no snapshot of it.
void LegendeZiehen(Werkbank &w, const Ereignis &e);
void LegendeLoslassen(Werkbank &w, const Ereignis &e);

} // namespace kw
