#pragma once

#include "rendering/Farben.h"

#include <optional>
#include <vector>

namespace kw {

struct Ansicht;
struct Dokument;
struct Gestenlage;
struct Legendenblatt;

/// The measures that a text box shows when it has none yet, cm, as a record keeps them.
struct Textmaße {
    int Position = 0;
    double Breite = 0;
    double Höhe = 0;
};

struct Textbefund {
    std::vector<Textmaße> Gemessen;   ///< in the order of the store; empty but after a new text
    bool GesteBeendet = false;        ///< the gesture that placed a text is over
    std::optional<double> RahmenEnde; ///< bottom of a selected box's frame below its top, cm
};

struct Pfeilbefund {
    Farbe Pfeilfarbe = Schwarz;
    std::optional<bool> Markiert; ///< an arrow shows its handles; nothing in print
};

/// The place of the legend on the page and on the raster, and its size, cm.
struct Legendenkasten {
    double X = 0;
    double Y = 0;
    double Breite = 0;
    double Höhe = 0;
};

/// What drawing has found on the page. Whoever goes on working with what was drawn applies it.
struct Zeichenbefund {
    Textbefund Texte;
    Pfeilbefund Pfeile;
    std::optional<Legendenkasten> Legende; ///< nothing while it isn't shown
    std::optional<double> Skalierung;      ///< of the canvas; nothing in print
    std::optional<int> StrichFaktor;       ///< the base line width that a print run leaves
};

/// Writes what was found to where it is kept.
void Anwenden(const Zeichenbefund &befund, Dokument &dokument, Ansicht &ansicht, Gestenlage &geste,
              Legendenblatt &legende);

} // namespace kw
