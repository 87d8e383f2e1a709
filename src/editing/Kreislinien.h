#pragma once

#include "document/saetze/Kreislinie.h"
#include "editing/Gruppenart.h"

// Circle lines: closed strokes drawn by hand.
namespace kw {

struct Ereignis;
struct Werkbank;

/// Position of the first circle line whose drawn stroke is at most 0.15 cm away from the point, -1 none: whoever stands
/// inside a circle stays within reach.
int KreisLinieBei(const Dokument &dokument, double x, double y, int glättungsgrad);
/// Selects the circle line at `position` (from 0) alone; `Aktion::KreisGewählt`.
void KreisAuswählen(Werkbank &w, int position);

// A press: with the tool in hand; on a line, which is looked for in every state; with a line selected. Each says
// whether the event ends with it.
bool KreisBeginnen(Werkbank &w, const Ereignis &e);
bool KreisTreffen(Werkbank &w, const Ereignis &e);
bool KreisGewählt(Werkbank &w, const Ereignis &e);

// What follows the pointer: the selected line, whose record changes at once; the stroke in the making.
void KreisZiehen(Werkbank &w, const Ereignis &e);
void KreisZeichnen(Werkbank &w, const Ereignis &e);
/// The selected line stands as far from where it was taken as `e` from the place of the press; however near that is.
void KreisVerschieben(Werkbank &w, const Ereignis &e);
/// The stroke in the making goes on to that place, however near it is.
void KreisPunktSetzen(Werkbank &w, Kreispunkt ort);

// The release: a line that was dragged gets its snapshot; a stroke is closed, and stored if it has two points.
void KreisLoslassen(Werkbank &w, const Ereignis &e);
void KreisSchließen(Werkbank &w, const Ereignis &e);

/// The selected line. One snapshot.
void KreisLinieLöschen(Werkbank &w);

/// Circle lines as a part of marquees, groups and the clipboard: whole, if one point is in.
extern const Gruppenart KreislinienInGruppen;

} // namespace kw
