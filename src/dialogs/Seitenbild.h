#pragma once

namespace kw {

class Uhr;
class Zeichenfläche;
struct Ansicht;
struct Dokument;
struct Zeichnung;

/// A whole page as the preview of a form, from its corner on; what of the preview is beside it, `breite` and `höhe` cm
/// in all, is grey. The page of `z` is set up.
void SeitenvorschauZeichnen(Zeichenfläche &fläche, const Zeichnung &z, double breite, double höhe);
/// The same of a document that nobody works on, shown as `ansicht` says: nothing is selected or in hand there. Its
/// paper code becomes the usual one where it is below 1.
void SeitenvorschauZeichnen(Zeichenfläche &fläche, Dokument &dokument, Ansicht ansicht, const Uhr &uhr, double breite,
                            double höhe);
/// What of it shows where there is no page.
void VorschaugrundZeichnen(Zeichenfläche &fläche, double breite, double höhe);

} // namespace kw
