#include "editing/Geometrie.h"

#include "document/Zahlen.h"

#include <algorithm>
#include <cmath>

namespace kw {

namespace {

constexpr double LinienToleranz = 0.1;

} // namespace

bool Zwischen(double wert, double unten, double oben) { return Kleiner(unten, wert) && Kleiner(wert, oben); }

bool AchsenlinieGetroffen(double x1, double y1, double x2, double y2, double x, double y) {
    const auto [minX, maxX] = std::minmax(x1, x2);
    const auto [minY, maxY] = std::minmax(y1, y2);
    if (minX == maxX && Zwischen(y, minY, maxY)) return Zwischen(x, minX - LinienToleranz, minX + LinienToleranz);
    if (minY == maxY && Zwischen(x, minX, maxX)) return Zwischen(y, minY - LinienToleranz, minY + LinienToleranz);
    return false;
}

bool SegmentGetroffen(double x1, double y1, double x2, double y2, double x, double y) {
    if (AchsenlinieGetroffen(x1, y1, x2, y2, x, y)) return true;
    const auto [minX, maxX] = std::minmax(x1, x2);
    const auto [minY, maxY] = std::minmax(y1, y2);
    if (!Zwischen(x, minX, maxX) || !Zwischen(y, minY, maxY)) return false;
    const double dx = x1 - x2;
    const double dy = y1 - y2;
    return Kleiner(std::fabs((-dx * y + dy * x) - (-dx * y1 + dy * x1)), 1.0);
}

double AbstandVonStrecke(double x1, double y1, double x2, double y2, double x, double y) {
    const double dx = x2 - x1;
    const double dy = y2 - y1;
    const double quadrat = dx * dx + dy * dy;
    const double t = quadrat > 0 ? std::clamp(((x - x1) * dx + (y - y1) * dy) / quadrat, 0.0, 1.0) : 0;
    return std::hypot(x - x1 - t * dx, y - y1 - t * dy);
}

bool Auswahlkasten::Überlappt(double links, double oben, double rechts, double unten) const {
    return Kleiner(Links, rechts) && Kleiner(links, Rechts) && Kleiner(Oben, unten) && Kleiner(oben, Unten);
}

void Umgebung::Aufnehmen(double x, double y, double breite, double höhe) {
    Links = Leer ? x : std::min(Links, x);
    Oben = Leer ? y : std::min(Oben, y);
    Rechts = Leer ? x + breite : std::max(Rechts, x + breite);
    Unten = Leer ? y + höhe : std::max(Unten, y + höhe);
    Leer = false;
}

bool StreckeTrifft(double x1, double y1, double x2, double y2, const Umgebung &u) {
    double von = 0;
    double bis = 1;
    const auto zwischen = [&](double ort, double weite, double anfang, double ende) {
        if (weite == 0) return ort > anfang && ort < ende;
        const auto [a, b] = std::minmax({(anfang - ort) / weite, (ende - ort) / weite});
        von = std::max(von, a);
        bis = std::min(bis, b);
        return von < bis;
    };
    return zwischen(x1, x2 - x1, u.Links, u.Rechts) && zwischen(y1, y2 - y1, u.Oben, u.Unten);
}

} // namespace kw
