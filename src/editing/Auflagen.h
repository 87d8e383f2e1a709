#pragma once

#include <array>

namespace kw {

/// Where a shape stands that is out of the way. Hiding alone isn't enough: gestures read places.
constexpr double Geparkt = -1000;

/// A line over the page, cm.
struct Auflagenlinie {
    double X1 = Geparkt;
    double Y1 = Geparkt;
    double X2 = Geparkt;
    double Y2 = Geparkt;
    bool Visible = false;

    bool operator==(const Auflagenlinie &) const = default;
    void Parken() { X1 = Y1 = X2 = Y2 = Geparkt; }
    void Legen(double x1, double y1, double x2, double y2) {
        X1 = x1;
        Y1 = y1;
        X2 = x2;
        Y2 = y2;
    }
};

enum class Umriss { Rechteck = 0, Quadrat = 1, Oval = 2, Kreis = 3 };

/// A box or round shape over the page, cm.
struct Auflagenform {
    double Left = Geparkt;
    double Top = Geparkt;
    double Width = 0;
    double Height = 0;
    bool Visible = false;
    Umriss Shape = Umriss::Rechteck;

    bool operator==(const Auflagenform &) const = default;
    void Legen(double left, double top, double width, double height) {
        Left = left;
        Top = top;
        Width = width;
        Height = height;
    }
    void Parken() { Left = Top = Geparkt; }
};

/// The shapes that lie over the page and give feedback while a gesture runs. They are no part of the document:
/// moving them costs no redraw. The face paints them over the kept picture.
struct Auflagen {
    Auflagenlinie Line1;                   ///< rubber line of relationship and partnership; a dragged bar
    Auflagenlinie Line2;                   ///< rubber line of a child
    Auflagenlinie Line5;                   ///< arrow in the making or in hand
    std::array<Auflagenlinie, 5> MarkLine; ///< outline of a link target that is no box and no circle
    Auflagenform shpMask;                  ///< what is dragged: a person, a text box, the legend
    Auflagenform shpBox{.Visible = true};  ///< marquee and group frame
    Auflagenform shpPerson;                ///< link target
    Auflagenform shpCursor;                ///< where the keyboard is
    std::array<Auflagenlinie, 2> Kreuz;    ///< the same with a tool in hand

    bool operator==(const Auflagen &) const = default;
};

} // namespace kw
