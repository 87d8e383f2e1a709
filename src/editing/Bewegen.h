#pragma once

#include "document/Nachschlagen.h"
#include "editing/Werkbank.h"

#include <string_view>

// Moving: lines hold their own ends, so whatever moves rewrites every record that names it.
namespace kw {

/// Carries all lines of person `PersNr` to (`NeuX`, `NeuY`). `Aktion` 17 tells a group move. Doesn't redraw.
void ElementeBewegen(Werkbank &w, const Bezüge &bezüge);

/// The end of a group move: everything selected goes the frame's way. The frame stays, ready for another move.
void GruppeBewegen(Werkbank &w);

} // namespace kw
