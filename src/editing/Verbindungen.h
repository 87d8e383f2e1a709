#pragma once

#include "document/Importdaten.h"
#include "editing/Werkbank.h"

// Placing persons, and joining them: partnerships, relationships, parents.
namespace kw {

/// A person of the armed tool's kind at the pointer's last place, snapped. Only while the tool is armed. One that was
/// dragged out of the import list is as that list has it.
void PersonAnlegen(Werkbank &w, const Importperson *import = nullptr);
/// A couple with its partnership line; the pointer's last place is the left one, the father. Kept within 5 cm of
/// the page's right edge, and nowhere else.
void ElternAnlegen(Werkbank &w);

/// Finds the selected person's centre, from which a rubber line starts.
void RubberStart(Werkbank &w);
/// Each starts a link gesture from the selected person.
void mnuPartnerschaftsLinie(Werkbank &w);
void mnuBeziehungErstellen2(Werkbank &w);
void mnuKindVon(Werkbank &w);

/// A partnership line between link target and selected person; while `Aktion` is 23 between `PersNrA` and
/// `PersNrB`. Nothing when the same pair has one, in the same order.
void PartnerschaftAnlegen(Werkbank &w);
/// A relationship line between link target and selected person, and its form. Nothing when they have one.
void BeziehungAnlegen(Werkbank &w);
/// Takes the line away again whose form has been left without OK, while `Aktion` 12 tells that it is new. No snapshot:
/// there was none of it. A line that was there before stays.
void BezLAbbrechen(Werkbank &w);

/// `Aktion` 12 or 13 under the pointer: sets `ZielPerson`, the rubber line and the marks on the target.
void LinkZiehen(Werkbank &w, double x, double y);

} // namespace kw
