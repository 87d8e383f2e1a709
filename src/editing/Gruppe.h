#pragma once

// Several elements at once: the marquee that selects them, the frame that moves them, and deleting what is selected.
// Nothing asks before it deletes: the snapshot at the end of each command is what makes it undoable.
namespace kw {

struct Auflagen;
struct Ereignis;
struct Werkbank;

/// A press on the empty page begins a marquee, or opens the page's menu. Says whether the event ends with it.
bool RahmenBeginnen(Werkbank &w, const Ereignis &e);
/// The marquee follows the pointer, unsnapped but for the corner where it began.
void RahmenZiehen(Werkbank &w, const Ereignis &e);
/// The end of a marquee: fills the selection lists with what `shpBox` holds. Ends in `GruppeGewählt` with the
/// frame as dragged, or in `Nichts` without it.
void RahmenAuswählen(Werkbank &w);
/// The release of a marquee.
void RahmenLoslassen(Werkbank &w, const Ereignis &e);

/// Whether the point lies in the frame of a group.
bool ImRahmen(const Auflagen &auflagen, double x, double y);
/// A press with a group selected takes the frame, or ends the selection. Says whether the event ends with it.
bool GruppeFassen(Werkbank &w, const Ereignis &e);
/// What that does with the frame, wherever the point lies: it is taken, or its menu opens.
void RahmenFassen(Werkbank &w, const Ereignis &e);
/// The frame follows the pointer by whole steps of the raster, as far as it stays on the page.
void GruppeZiehen(Werkbank &w, const Ereignis &e);
/// The frame goes back to where it was taken.
void GruppeZurücksetzen(Werkbank &w);
/// Everything selected goes the frame's way. The frame stays, ready for another move.
void GruppeLoslassen(Werkbank &w, const Ereignis &e);

/// Everything in the selection lists, with all that names it; one snapshot.
void AuswahlLöschen(Werkbank &w);
/// The delete command, by key, menu and button: what is selected, as `Aktion` tells.
void mnuLöschen1(Werkbank &w);
/// Context menu of a person: the selected person with every line that names it, or the text box that was selected last.
void mnuSymbolLöschen(Werkbank &w);

} // namespace kw
