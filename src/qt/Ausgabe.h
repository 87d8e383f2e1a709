#pragma once

#include "rendering/Zeichnung.h"

#include <string>
#include <string_view>

// Export of the page to a file, by the file's ending.
namespace kw {

constexpr int KleinsteDpi = 10;
constexpr int GrößteDpi = 2400;

/// Whether `ziel` ends in .pdf, .svg, .png, .jpg, .jpeg or .bmp, in letters of any case.
bool IstAusgabeformat(std::string_view ziel);

/// Writes the page as a print run draws it: nothing that is only for the screen. PDF and SVG are vectors,
/// pictures have `dpi` dots an inch. Empty on success, else one plain line; then nothing was written.
/// Needs a QGuiApplication, no display.
std::string Exportieren(Zeichnung &zeichnung, const std::string &ziel, int dpi, const std::string &titel);

} // namespace kw
