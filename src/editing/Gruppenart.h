#pragma once

#include "document/Dokument.h"
#include "editing/Ablage.h"
#include "editing/Geometrie.h"
#include "rendering/Auswahl.h"

#include <string>
#include <string_view>

namespace kw {

/// A kind of element that has no number and stands for itself: what marquee, group and clipboard need to know of it.
struct Gruppenart {
    Satzliste Dokument::*Speicher;
    Satzliste Auswahl::*Gewählt;       ///< positions in the store
    int Erste;                         ///< that those are counted from
    Satzliste Zwischenablage::*Ablage; ///< its copies
    /// Whether a marquee takes the element in; a damaged one never. `raster` is the snap step, cm.
    bool (*ImKasten)(std::string_view satz, const Auswahlkasten &kasten, double raster);
    /// The record shifted by (dx, dy), cm.
    std::string (*Verschoben)(std::string_view satz, double dx, double dy);
    void (*Umgeben)(std::string_view satz, Umgebung &umgebung);
};

} // namespace kw
