#pragma once

#include "editing/Geometrie.h"
#include "layout/Familienlage.h"
#include "platform/Sprache.h"

#include <optional>
#include <string>
#include <vector>

// A place on the page for what was laid out. cm.
namespace kw {

/// What two lines of names take below a symbol, cm.
constexpr double Namenshöhe = 0.68;

/// The smallest that persons can have, cm.
constexpr double KleinstesSymbol = 0.9;

/// The measures for symbols of that size: those of a page drawn by hand, or what can just be read, cm.
Abstände MaßeFür(double symbol, double raster, bool eng);

struct Platzwunsch {
    std::vector<Umgebung> Kästen;      ///< what is to be placed, as it was laid out
    std::vector<Umgebung> Hindernisse; ///< what it mustn't lie on
    Umgebung Seite;                    ///< where it has to stay
    Ort Ziel;                          ///< where its middle would best be
    double Raster;                     ///< it is moved by whole steps of that
};

/// The box round all of them.
Umgebung UmAlle(const std::vector<Umgebung> &kästen);

/// How far it is to be moved: free of all obstacles, on the page, and nearest to where it would best be. Nothing when
/// there is no such place.
std::optional<Ort> PlatzFinden(const Platzwunsch &wunsch);

/// "41,5 × 15,2 cm".
std::string Maßangabe(double breite, double höhe, Sprache sprache);

} // namespace kw
