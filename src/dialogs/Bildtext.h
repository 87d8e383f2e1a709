#pragma once

#include "dialogs/Formular.h"
#include "rendering/Zeichenflaeche.h"

namespace kw {

/// Width in cm of a preview label's caption in the label's own font. `fläche` measures, and is left as it was.
double Bildtextbreite(Zeichenfläche &fläche, const Steuerelement &label);

} // namespace kw
