#pragma once

#include "rendering/Farben.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace kw {

/// Whole device pixels of a surface, counted from the page's top left corner.
struct Bildpunkt {
    int X = 0;
    int Y = 0;
};

/// A place on the page, user units.
struct Zeichenort {
    double X = 0;
    double Y = 0;
    bool operator==(const Zeichenort &) const = default;
};

/// Flags of `Line` and `Circle`.
enum : int {
    FarbeGilt = 2,                   ///< the colour argument is used, otherwise `ForeColor`
    Linie = 4,                       ///< a line in `ForeColor`
    LinieFarbig = Linie | FarbeGilt, ///< a line in the given colour
    Kasten = 16 | Linie,             ///< the rectangle that the two points span; obeys `FillStyle`
    KastenFarbig = Kasten | FarbeGilt,
};

enum : int { StilDurchgezogen = 0, StilGepunktet = 2, StilStrichpunkt = 3 };
enum : int { Gefüllt = 0, Durchsichtig = 1 };

constexpr double Pi = 3.14159265358979323846;
constexpr double TwipsJeCm = 567;
constexpr int TwipsJePixel = 15;

/// Pixels per centimetre in print and, times the scale factor, on the canvas: 567 twips by 15.
constexpr int DruckPixelJeCm = 236;
constexpr double BildschirmPixelJeCm = 37.8;

/// What every draw routine draws on: the canvas, a printer, a file or a recording. One user unit is one
/// centimetre of paper. The properties are plain values that the next primitive obeys; setting one
/// marks nothing. Layers set what they need and leave it as it stands.
class Zeichenfläche {
  public:
    double CurrentX = 0; ///< text position, user units
    double CurrentY = 0;
    int DrawWidth = 1; ///< pen width, device pixels
    int DrawStyle = StilDurchgezogen;
    int FillStyle = Durchsichtig;
    Farbe FillColor = Schwarz;
    Farbe ForeColor = Schwarz; ///< pen and text
    std::string FontName = "Arial";
    double FontSize = 8; ///< points on the surface: nominal points times the scale factor
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    bool FontTransparent = true; ///< text without a background box

    Zeichenfläche() = default;
    Zeichenfläche(const Zeichenfläche &) = delete;
    Zeichenfläche &operator=(const Zeichenfläche &) = delete;
    virtual ~Zeichenfläche() = default;

    /// Outer size in twips.
    int Width() const { return breite_; }
    int Height() const { return höhe_; }
    void GrößeSetzen(int breiteTwips, int höheTwips);

    /// Size in the scale in force: user units after `Scale`, centimetres of the surface before it and
    /// after `ScaleCm`.
    double ScaleWidth() const { return skalaBreite_; }
    double ScaleHeight() const { return skalaHöhe_; }
    void ScaleCm();
    /// Lays the user units (0, 0) to (breite, höhe) over the surface. `faktor` is what font sizes are
    /// multiplied by: displayed centimetres by user units.
    void Scale(double breite, double höhe, double faktor);
    /// The factor of the last `Scale`: `FontSize` by it is the nominal size in points.
    double Faktor() const { return faktor_; }

    /// A layer begins (seite, raster, linien, kreislinien, pfeile, personen, legende).
    virtual void Ebene(std::string_view /*name*/) {}
    /// Clears to white.
    virtual void Cls() = 0;
    virtual void Line(int flags, double x1, double y1, double x2, double y2, Farbe farbe = Schwarz) = 0;
    /// Lines from each place to the next, solid. A surface that keeps its lines as such may join them.
    virtual void Linienzug(std::span<const Zeichenort> orte, Farbe farbe);
    /// The diagonals of the rectangle that the two points span, as lines. A surface may trim their ends to the outline
    /// that the rectangle has or would have.
    virtual void Diagonalen(int flags, double x1, double y1, double x2, double y2, Farbe farbe = Schwarz);
    /// A whole circle; filled unless `FillStyle` says otherwise.
    virtual void Circle(int flags, double x, double y, double radius, Farbe farbe = Schwarz) = 0;
    /// A pie, counter-clockwise from `von` to `bis` (radians from the positive x axis), with both radii.
    virtual void Torte(int flags, double x, double y, double radius, Farbe farbe, double von, double bis) = 0;
    /// A closed polygon with `ForeColor` as outline, filled unless `FillStyle` says otherwise.
    virtual void Polygon(std::span<const Bildpunkt> punkte) = 0;
    /// Draws the text with its top left corner at the current point, then goes to the start of the next line.
    void Print(std::string_view text);

    /// Size of a text in user units in the current font; the height doesn't depend on the text.
    virtual double TextWidth(std::string_view text) = 0;
    virtual double TextHeight() = 0;

  protected:
    virtual void TextZeichnen(std::string_view text) = 0;
    /// Size or scale are new.
    virtual void SkalaGeändert() {}

  private:
    int breite_ = 0;
    int höhe_ = 0;
    double skalaBreite_ = 0;
    double skalaHöhe_ = 0;
    double faktor_ = 1;
};

} // namespace kw
