#pragma once

#include "rendering/Zeichnung.h"
#include "rendering/basKurvenGlaettung.h"

// The layers of the page. Each takes the surface and the scale factor: displayed centimetres by paper
// centimetres, by which every nominal font size is multiplied. A damaged record (too few fields) is
// passed over, a text box draws what it has; the rest of the store is drawn.
namespace kw {

/// Relationship lines, over them partnership lines, over them child lines, then the marks of selected lines.
void LinienEbene(Zeichenfläche &fläche, const Zeichnung &z, double faktor);
void BeziehungslinienZeichnen(Zeichenfläche &fläche, const Zeichnung &z);
void PartnerschaftslinienZeichnen(Zeichenfläche &fläche, const Zeichnung &z, double faktor);
void KindlinienZeichnen(Zeichenfläche &fläche, const Zeichnung &z, double faktor);

void KreislinienEbene(Zeichenfläche &fläche, const Zeichnung &z);
/// Where a circle line is drawn: straight stretches between those places, cm. Empty for one that isn't drawn.
std::vector<Kurvenort> Kreiszug(std::string_view satz, int glättungsgrad);
/// In the colour of the scheme, which circle lines take at the next redraw.
Pfeilbefund PfeilEbene(Zeichenfläche &fläche, const Zeichnung &z);

/// Persons with their labels, then the text boxes.
Textbefund PersonenEbene(Zeichenfläche &fläche, const Zeichnung &z, double faktor);
/// Draws the text boxes and measures those that have no measures yet.
Textbefund TextboxenZeichnen(Zeichenfläche &fläche, const Zeichnung &z, double faktor);

/// Whether a box waits to be measured: until then one that isn't aligned to the left stands in a wrong place.
bool HatUngemesseneTextboxen(const Dokument &dokument);

/// The box is kept on the page and on the raster: the stored position follows. An empty list draws nothing, has no
/// size and stays where it is.
Legendenkasten LegendenEbene(Zeichenfläche &fläche, const Zeichnung &z, double faktor);

// Pieces that the legend's miniatures share with the layers.

/// One relationship line in the pens of `farben`. `basis` is the base style that the record before left,
/// and takes this one's: an unknown kind draws with it.
void BeziehungZeichnen(Zeichenfläche &fläche, const ElementFarben &farben, std::string_view beziehungsart, char &basis,
                       double x1, double y1, double x2, double y2);

/// The mark of a partnership's state and its date, at a bar whose middle is (mitte, y). Slashes reach `schräge` above
/// the bar and below it.
void PartnerstandZeichnen(Zeichenfläche &fläche, std::string_view status, std::string_view datum, double mitte,
                          double y, double faktor, double schräge = 0.2);

} // namespace kw
