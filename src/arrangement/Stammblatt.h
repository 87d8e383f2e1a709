#pragma once

#include "document/Papier.h"
#include "familytree/Uebernahme.h"

#include <cstddef>
#include <optional>

// A part of a family tree as a page.
namespace kw {

class Zeichenfläche;
struct Dokument;

/// What a page may be made of.
struct Blattregeln {
    double Raster = 0.3;      ///< on which everybody stands, cm
    bool Kleiner = false;     ///< smaller symbols, where nothing else makes it fit
    int Papiercode = DinA4;   ///< the usual paper: it comes before another of about its size
    bool AuchDarüber = false; ///< where no sheet holds it, over the edge of the usual one
    bool operator==(const Blattregeln &) const = default;
};

/// A sheet of the document's papers, one way up.
struct Blattwahl {
    int Papiercode = DinA4;
    int Seitenlage = 2;          ///< 1 upright, 2 across
    double Symbol = 1.2;         ///< size of the persons, cm
    double Breite = 0, Höhe = 0; ///< of the sheet, cm
};

/// What was laid out, and on which sheet it fits.
struct Stammblatt {
    std::size_t Personen = 0;
    int Generationen = 0;
    std::size_t BreitesteReihe = 0;
    double Breite = 0, Höhe = 0;    ///< of the sheet that it would need, drawn as narrowly as the rules allow, cm
    std::optional<Blattwahl> Blatt; ///< the smallest that holds it; nothing where none does
    bool LiegtDarüber = false;      ///< that sheet doesn't hold it
};

/// Fills `dokument`, an empty one, with persons and lines at their places on the smallest sheet that holds them,
/// drawn as by hand before closer to each other before smaller. `proband` is a place in `übernahme.Personen`, and
/// becomes the index person. Where no sheet holds them nothing is filled in, unless the rules say so. At most 999
/// persons and as many couples; more are an error of the caller's. `fläche` measures names; its font changes.
Stammblatt BlattFüllen(const Übernahme &übernahme, std::uint32_t proband, const Blattregeln &regeln,
                       Zeichenfläche &fläche, Dokument &dokument);

} // namespace kw
