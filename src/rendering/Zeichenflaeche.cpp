#include "rendering/Zeichenflaeche.h"

namespace kw {

void Zeichenfläche::GrößeSetzen(int breiteTwips, int höheTwips) {
    breite_ = breiteTwips;
    höhe_ = höheTwips;
    ScaleCm();
}

void Zeichenfläche::ScaleCm() {
    skalaBreite_ = breite_ / TwipsJeCm;
    skalaHöhe_ = höhe_ / TwipsJeCm;
    SkalaGeändert();
}

void Zeichenfläche::Scale(double breite, double höhe, double faktor) {
    skalaBreite_ = breite;
    skalaHöhe_ = höhe;
    faktor_ = faktor;
    SkalaGeändert();
}

void Zeichenfläche::Linienzug(std::span<const Zeichenort> orte, Farbe farbe) {
    for (std::size_t i = 1; i < orte.size(); ++i)
        Line(LinieFarbig, orte[i - 1].X, orte[i - 1].Y, orte[i].X, orte[i].Y, farbe);
}

void Zeichenfläche::Diagonalen(int flags, double x1, double y1, double x2, double y2, Farbe farbe) {
    Line(flags, x1, y1, x2, y2, farbe);
    Line(flags, x1, y2, x2, y1, farbe);
}

void Zeichenfläche::Print(std::string_view text) {
    if (!text.empty()) TextZeichnen(text);
    CurrentX = 0;
    CurrentY += TextHeight();
}

} // namespace kw
