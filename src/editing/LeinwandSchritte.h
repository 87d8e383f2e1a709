#pragma once

#include "editing/Gesten.h"

// The steps of a press, what moves with the pointer, and how a gesture ends: what the tables of events name. A step of
// a press says whether the event ends with it.
namespace kw {

bool Zurücksetzen(Werkbank &w, const Ereignis &e);
bool OrtMerken(Werkbank &w, const Ereignis &e);
bool MenüWarOffen(Werkbank &w, const Ereignis &e);
bool LinieWarGewählt(Werkbank &w, const Ereignis &e);
bool LinieTreffen(Werkbank &w, const Ereignis &e);
void PersonVerknüpfen(Werkbank &w, const Ereignis &e);
void ZugAbbrechen(Werkbank &w);

} // namespace kw
