#pragma once

#include "document/Importdaten.h"
#include "document/Nachschlagen.h"

#include <string_view>

// Persons: placing, selecting, moving, deleting, their size.
namespace kw {

struct Auswahlkasten;
struct Dokument;
struct Ereignis;
struct Gruppenzug;
struct Umgebung;
struct Werkbank;

/// Position of the first person under the point, -1 none: the square round the centre, for round symbols too.
int PersonBei(const Dokument &dokument, double x, double y);
/// Whether a marquee takes the person of that record in; a damaged one never.
bool PersonImKasten(std::string_view satz, const Auswahlkasten &kasten);
void PersonUmgeben(std::string_view satz, Umgebung &umgebung);

/// Selects the person at `position` alone: lists, marker, drag mask and panel; `Aktion::PersonGewählt`.
void PersonAuswählen(Werkbank &w, int position);

// Placing.

/// A person of the armed tool's kind at the pointer's last place, snapped. Only while the tool is armed. One that was
/// dragged out of the import list is as that list has it.
void PersonAnlegen(Werkbank &w, const Importperson *import = nullptr);
/// A couple with its partnership line; the pointer's last place is the left one, the father. Kept on the page,
/// and 5 cm from its right edge.
void ElternAnlegen(Werkbank &w);

// A press: with a tool in hand that places somebody; on a person. Each says whether the event ends with it.
bool PersonSetzen(Werkbank &w, const Ereignis &e);
bool PersonTreffen(Werkbank &w, const Ereignis &e);
/// What the press on the person at `position` does, whatever lies over it.
void PersonFassen(Werkbank &w, int position, const Ereignis &e);

/// Only the mask follows the pointer; a small drag leaves it unshown, that is the whole threshold.
void PersonZiehen(Werkbank &w, const Ereignis &e);

// The release: of a tool, of a person in hand.
void PersonGesetzt(Werkbank &w, const Ereignis &e);
void PersonLoslassen(Werkbank &w, const Ereignis &e);

/// Carries all lines of person `nr` along to (x, y), cm; `raster` is the snap step.
void LinienDerPersonNachziehen(Dokument &dokument, const Bezüge &bezüge, std::string_view nr, double x, double y,
                               double raster);
/// Moves the persons of a group with all their lines.
void PersonenMitbewegen(Dokument &dokument, const Gruppenzug &zug);

/// Person `PersNr` with every line that names it. Within a group, and of a single selected person, no redraw and no
/// snapshot.
void PersonLöschen(Werkbank &w);

// Size (Symbolgroesse.cpp).

/// One step of a size command, cm.
constexpr double GrößenSchritt = 0.3;
/// Adds `delta` to the size of every selected person, within the limits of its family: 0.3 to 1.2 for small kinds,
/// 0.9 to 1.8 for the others. Lines join centres, so none changes. One snapshot, when somebody's size changes.
void GrößeÄndern(Werkbank &w, double delta);
/// Context menu: one step, then the states of both entries.
void mnuSymbolVergrößern(Werkbank &w);
void mnuSymbolVerkleinern(Werkbank &w);
/// Enables both context entries as the selected person's size allows.
void GrößeMenüsPrüfen(Werkbank &w);

} // namespace kw
