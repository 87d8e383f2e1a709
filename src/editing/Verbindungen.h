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

} // namespace kw
