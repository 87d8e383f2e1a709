#pragma once

namespace kw {

class Zeichenfläche;
struct Zeichnung;

/// A whole page as the preview of a form, from its corner on; what of the preview is beside it, `breite` and `höhe` cm
/// in all, is grey. The page of `z` is set up.
void SeitenvorschauZeichnen(Zeichenfläche &fläche, const Zeichnung &z, double breite, double höhe);

} // namespace kw
