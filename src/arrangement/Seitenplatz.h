#pragma once

#include "editing/Geometrie.h"
#include "layout/Familienlage.h"
#include "platform/Sprache.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// A place on the page for what was laid out. cm.
namespace kw {

/// What two lines of names take below a symbol, cm.
constexpr double Namenshöhe = 0.68;

/// The smallest that persons can have, cm.
constexpr double KleinstesSymbol = 0.9;

/// What stays free beside a symbol, below it to the next generation's, down to a bar, and between two bars, cm. A date
/// stands on a bar, below the names and below the next bar.
struct Luft {
    double Personen, Generationen, Balken, Balkenstufe;
};
constexpr Luft VonHand{0.9, 2.4, 1.2, 0.4};     ///< as pages are drawn by hand
constexpr Luft Schmal{0.6, 2.4, 1.2, 0.4};      ///< the same, but for the width
constexpr Luft Lesbar{0.6, 1.8, 1, 0.35};       ///< as near to each other as can be read
constexpr Luft Gezeichnet{0.3, 1.8, 0.9, 0.25}; ///< as near as those may stay who were drawn so

/// The measures for symbols of that size, cm.
Abstände MaßeFür(double symbol, double raster, const Luft &luft);

struct Platzwunsch {
    std::vector<Umgebung> Kästen;      ///< what is to be placed, as it was laid out
    std::vector<Umgebung> Hindernisse; ///< what it mustn't lie on
    Umgebung Seite;                    ///< where it has to stay
    Ort Ziel;                          ///< where its middle would best be
    double Raster;                     ///< it is moved by whole steps of that
    size_t Linien = 0;                 ///< so many of the boxes, the first ones, are of lines ...
    std::vector<Umgebung> Kreuzbare{}; ///< ... which may lie on these; the others mustn't
    /// By how much, cm, a place may be farther away that hasn't its flaws.
    std::function<double(Ort weg)> Mängel{};
};

/// Whether they lie on each other; touching is none of that.
bool LiegenAufeinander(const Umgebung &a, const Umgebung &b);
/// Puts boxes behind others.
void Anhängen(std::vector<Umgebung> &kästen, const std::vector<Umgebung> &weitere);
/// The box round all of them.
Umgebung UmAlle(const std::vector<Umgebung> &kästen);

/// How far it is to be moved: free of all obstacles, on the page, and nearest to where it would best be, its flaws
/// added to the way. Nothing when there is no such place.
std::optional<Ort> PlatzFinden(const Platzwunsch &wunsch);

/// "41,5 × 15,2 cm".
std::string Maßangabe(double breite, double höhe, Sprache sprache);

} // namespace kw
