#pragma once

#include "document/Nachschlagen.h"
#include "editing/Werkbank.h"

#include <string_view>

// Moving: lines hold their own ends, so whatever moves rewrites every record that names it.
namespace kw {

/// Carries all lines of person `PersNr` to (`NeuX`, `NeuY`). `Aktion` 17 tells a group move. Doesn't redraw.
void ElementeBewegen(Werkbank &w, const Bezüge &bezüge);

/// Puts the child lines of a partnership on its bar.
void KinderAnpassen(Dokument &dokument, const Bezüge &bezüge, std::string_view plinie, double x1, double x2,
                    double balkenY);

/// The end of a group move: everything selected goes the frame's way. The frame stays, ready for another move.
void GruppeBewegen(Werkbank &w);

/// The end of a bar's drag: the bar of `PLinieAuswahl` and its children's lines take the height of `Line1`. False when
/// the bar has that height already.
bool BalkenBewegen(Werkbank &w);

/// Writes a form's values into the line that it was opened for; one snapshot.
void Bez_LinieAnpassen(Werkbank &w, std::string_view beziehungsart);
void P_LinieAnpassen(Werkbank &w, std::string_view distanziert, std::string_view status, std::string_view daten);

} // namespace kw
