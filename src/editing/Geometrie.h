#pragma once

// What lies where: hit tests of strokes, and boxes. All in cm on the page. Every test is strict: a point exactly on an
// edge misses.
namespace kw {

/// Whether `wert` lies between the two, and not on one of them.
bool Zwischen(double wert, double unten, double oben);

/// Near an upright or level line, within 0.1; no other line is ever hit.
bool AchsenlinieGetroffen(double x1, double y1, double x2, double y2, double x, double y);

/// Near the straight line from (x1, y1) to (x2, y2): within 0.1 of an upright or level one, else within its box
/// and distance times length below 1. The measure isn't normalised: the longer the line, the nearer the point must
/// be. Meant.
bool SegmentGetroffen(double x1, double y1, double x2, double y2, double x, double y);

/// How far the point (x, y) is from the straight stretch between the two others.
double AbstandVonStrecke(double x1, double y1, double x2, double y2, double x, double y);

/// A marquee.
struct Auswahlkasten {
    double Links, Oben, Rechts, Unten;

    bool Enthält(double x, double y) const { return Zwischen(x, Links, Rechts) && Zwischen(y, Oben, Unten); }
    bool Überlappt(double links, double oben, double rechts, double unten) const;
};

/// The smallest box that holds some places.
struct Umgebung {
    double Links = 0, Oben = 0, Rechts = 0, Unten = 0;
    bool Leer = true;

    double MitteX() const { return (Links + Rechts) / 2; }
    double MitteY() const { return (Oben + Unten) / 2; }
    void Aufnehmen(double x, double y, double breite = 0, double höhe = 0);
};

/// Whether the straight stretch from (x1, y1) to (x2, y2) has a part within the box.
bool StreckeTrifft(double x1, double y1, double x2, double y2, const Umgebung &u);

} // namespace kw
