#pragma once

#include <string>

// The page as small as file managers show it.
namespace kw {

class Einzelbild;

constexpr int KleinsteKante = 16;
constexpr int GrößteKante = 2048;

/// Writes the whole page of `bild` to `ziel`, whatever its name ends in, as a PNG that fills a square of `kante` pixels
/// in one direction. Empty on success, else one plain line; then nothing was written. Needs a QGuiApplication, no
/// display.
std::string VorschaubildSchreiben(Einzelbild &bild, const std::string &ziel, int kante);

} // namespace kw
