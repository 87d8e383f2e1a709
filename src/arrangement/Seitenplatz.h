#pragma once

#include "editing/Geometrie.h"
#include "layout/Familienlage.h"

#include <optional>
#include <vector>

// A place on the page for what was laid out. cm.
namespace kw {

/// What two lines of names take below a symbol, cm.
constexpr double Namenshöhe = 0.68;

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

} // namespace kw
