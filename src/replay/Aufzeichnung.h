#pragma once

#include "rendering/Zeichenflaeche.h"

#include <string>

namespace kw {

/// A surface that writes every primitive as one line of text. Its metrics are fixed, so that the text is
/// the same everywhere: a character is 0.6 x `FontSize` points wide, a line 1.2 x `FontSize` points high.
class Aufzeichnung : public Zeichenfläche {
  public:
    bool Schreibt = false; ///< nothing is written while this is off
    std::string Text;      ///< what was written
    double PixelJeCm = 0;  ///< of a printer; 0 for a canvas, whose zoom gives it

    void Ebene(std::string_view name) override;
    void Cls() override {}
    void Line(int flags, double x1, double y1, double x2, double y2, Farbe farbe) override;
    void Circle(int flags, double x, double y, double radius, Farbe farbe) override;
    void Torte(int flags, double x, double y, double radius, Farbe farbe, double von, double bis) override;
    void Polygon(std::span<const Bildpunkt> punkte) override;
    double TextWidth(std::string_view text) override;
    double TextHeight() override;

  protected:
    void TextZeichnen(std::string_view text) override;

  private:
    Farbe Stift(int flags, Farbe farbe) const { return flags & FarbeGilt ? farbe : ForeColor; }
    std::string Füllung() const;
    double Punkt() const; ///< one point on the surface, in user units
};

/// At most four decimals, no trailing zeros, no "-0".
std::string Knapp(double wert);
/// Quoted, with quotes and backslashes escaped.
std::string InAnführung(std::string_view text);

} // namespace kw
