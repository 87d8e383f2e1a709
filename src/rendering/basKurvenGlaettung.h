#pragma once

#include "rendering/Zeichenflaeche.h"

#include <vector>

// Smooth curves through the points of a stroke: the uniform Catmull-Rom spline.
namespace kw {

using Kurvenort = Zeichenort;

/// P(0) to P(n + 1): the stroke's points are P(1) to P(n), the two at the ends are working places.
using Kurvenpunkte = std::vector<Kurvenort>;

/// The cubic a t^3 + b t^2 + c t + d of a segment, for x and for y, still to be divided by 2.
struct Kurvenkoeffizienten {
    Kurvenort a, b, c, d;
};

/// The segment from P(i) to P(i + 1); needs P(i - 1) and P(i + 2).
Kurvenkoeffizienten KurvenKoeffizienten(const Kurvenpunkte &p, int i);

/// The point at parameter `t`, 0 to 1.
Kurvenort KurvenPunkt(const Kurvenkoeffizienten &k, double teiler, double t);

/// Draws the curve through P(1) to P(n) in `schritte` straight steps a segment, coordinates rounded to
/// two decimals. A closed curve joins smoothly when P(n) equals P(1). Sets the two working places.
void KurveZeichnen(Zeichenfläche &fläche, Kurvenpunkte &p, int n, int schritte, Farbe farbe, bool geschlossen);

/// Where that curve goes, in straight stretches from each place to the next.
std::vector<Kurvenort> KurvenZug(Kurvenpunkte &p, int n, int schritte, bool geschlossen);

/// The same points, rounded to whole numbers; gives their count.
int KurveBerechnen(Kurvenpunkte &p, int n, int schritte, std::vector<Bildpunkt> &punkte, bool geschlossen);

} // namespace kw
