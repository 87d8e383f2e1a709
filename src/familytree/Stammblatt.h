#pragma once

#include "familytree/Uebernahme.h"

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

// A part of a family tree as a page.
namespace kw {

struct Dokument;

/// How wide names stand under a symbol: the wider of both, cm.
using Namensmaß = std::function<double(std::string_view vorname, std::string_view nachname)>;

/// A sheet of the document's papers, one way up.
struct Blattwahl {
    int Papiercode = 9;
    int Seitenlage = 2;          ///< 1 upright, 2 across
    double Symbol = 1.2;         ///< size of the persons, cm
    double Breite = 0, Höhe = 0; ///< of the sheet, cm
};

/// What was laid out, and on which sheet it fits.
struct Stammblatt {
    std::size_t Personen = 0;
    int Generationen = 0;
    std::size_t BreitesteReihe = 0;
    double Breite = 0, Höhe = 0;    ///< that it needs without margins, with symbols of the usual size, cm
    std::optional<Blattwahl> Blatt; ///< the smallest that holds it; nothing where none does
};

/// Fills `dokument`, an empty one, with persons and lines at their places on the smallest sheet that holds them,
/// symbols of the usual size before smaller ones. `proband` is a place in `übernahme.Personen`, and becomes the index
/// person. Where no sheet holds them nothing is filled in. At most 999 persons and as many couples; more are an error
/// of the caller's.
Stammblatt BlattFüllen(const Übernahme &übernahme, std::uint32_t proband, const Namensmaß &maß, Dokument &dokument);

} // namespace kw
