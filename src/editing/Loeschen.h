#pragma once

#include "editing/Werkbank.h"

// Deleting. Nothing asks: the snapshot at the end of each command is what makes it undoable.
namespace kw {

/// The selected person with every line that names it, or the selected text box. Within a group no redraw and no
/// snapshot.
void SymbolLöschen(Werkbank &w);
/// Everything in the selection lists but partnership lines: those go with a partner only.
void AuswahlLöschen(Werkbank &w);

/// The delete command: what is selected, as `Aktion` tells.
void mnuLöschen1(Werkbank &w);
/// Context menu of a person.
void mnuSymbolLöschen(Werkbank &w);
/// The delete button of the palette. It deletes a group's partnership lines too, without freeing their children,
/// and leaves its arrows. Meant.
void cmdDelete(Werkbank &w);

} // namespace kw
