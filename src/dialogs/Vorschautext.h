#pragma once

#include "dialogs/Formular.h"
#include "rendering/Zeichenflaeche.h"

namespace kw {

/// Width in cm of a preview label's caption in the label's own font. `fläche` measures, and is left as it was.
double Vorschaubreite(Zeichenfläche &fläche, const Steuerelement &label);

} // namespace kw
