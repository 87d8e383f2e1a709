#pragma once

#include "editing/Gruppenart.h"

// Arrows and double arrows.
namespace kw {

struct Ereignis;
struct Werkbank;

/// Position of the first arrow whose shaft lies under the point, -1 none.
int PfeilBei(const Dokument &dokument, double x, double y);
/// 2 near the second end of the arrow at that position, 1 near its first, 0 near none.
int PfeilEndeBei(const Dokument &dokument, int position, double x, double y);

// A press: with the tool in hand, on a shaft, on an end of the last arrow. Each says whether the event ends with it.
bool PfeilBeginnen(Werkbank &w, const Ereignis &e);
bool PfeilTreffer(Werkbank &w, double x, double y);
bool PfeilEndeTreffer(Werkbank &w, double x, double y);
/// What these do with the arrow at `position`, whatever lies over it: 2 takes its second end, 1 its first, 0 the whole.
void PfeilFassen(Werkbank &w, int position, int ende);

// What moves with the pointer: a new arrow's second end; an arrow, or the end in hand.
void PfeilAufziehen(Werkbank &w, const Ereignis &e);
void PfeilZiehen(Werkbank &w, const Ereignis &e);

// The release: a new arrow is stored, an end or the whole of one stands where it was dragged to.
void PfeilGezogen(Werkbank &w, const Ereignis &e);
void PfeilEndeLoslassen(Werkbank &w, const Ereignis &e);
void PfeilLoslassen(Werkbank &w, const Ereignis &e);

/// The selected arrow. One snapshot.
void PfeilLöschen(Werkbank &w);

/// Arrows as a part of marquees, groups and the clipboard.
extern const Gruppenart PfeileInGruppen;

} // namespace kw
