#pragma once

namespace kw {

class Zeichenfläche;
struct Steuerelement;

/// Width in cm of a preview label's caption in the label's own font. `fläche` measures, and is left as it was.
double Bildtextbreite(Zeichenfläche &fläche, const Steuerelement &label);

} // namespace kw
