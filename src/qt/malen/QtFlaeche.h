#pragma once

#include "qt/malen/Textvorrat.h"
#include "rendering/Zeichenflaeche.h"

#include <QPainter>
#include <QPen>
#include <QTransform>

#include <cstdint>
#include <span>
#include <unordered_map>

namespace kw {

/// Draws with a QPainter: on the canvas image, a printer, a PDF, an SVG, a picture. Inside it counts in
/// 1/1200 inch of the page, the unit in which fonts have whole sizes, so nothing is rescaled between a
/// line and a text. Lines, circles and
/// texts that lie off the page or are no numbers aren't handed on.
class QtFläche : public Zeichenfläche {
  public:
    QtFläche() = default;
    ~QtFläche() override;

    /// Starts on `gerät`, `geräteJeCm` of whose units are a centimetre of the page. `pixelJeCm` is the
    /// surface's own pixel, in which `DrawWidth` and polygons count. False when the device can't be painted.
    /// On a picture lines of the axes keep to the grid of its pixels, so that they are sharp, and no line is
    /// thinner than a pixel. `aufGerät` puts the page elsewhere than into the device's corner.
    bool Beginnen(QPaintDevice &gerät, double geräteJeCm, double pixelJeCm, const QTransform &aufGerät = {});
    /// Goes on on the next sheet. False where the device has none, or reports a failure.
    bool NeuesBlatt();
    /// Ends painting; false when the device reports a failure.
    bool Beenden();
    /// For a screen, before `Beginnen`: lines are also a whole number of device pixels wide.
    void AnPixelnAusrichten() { ausrichten_ = true; }
    /// Every colour as the grey of its lightness, whatever the device can show.
    void InGrau() { grau_ = true; }

    void Cls() override;
    void Line(int flags, double x1, double y1, double x2, double y2, Farbe farbe) override;
    /// In a file of vectors as one line, in which its stretches meet without a seam and which is a fraction as long.
    void Linienzug(std::span<const Zeichenort> orte, Farbe farbe) override;
    void Diagonalen(int flags, double x1, double y1, double x2, double y2, Farbe farbe) override;
    void Circle(int flags, double x, double y, double radius, Farbe farbe) override;
    void Torte(int flags, double x, double y, double radius, Farbe farbe, double von, double bis) override;
    void Polygon(std::span<const Bildpunkt> punkte) override;
    double TextWidth(std::string_view text) override;
    double TextHeight() override;

  protected:
    void TextZeichnen(std::string_view text) override;
    QPainter &Maler() { return maler_; }
    /// Of the widths that are asked for this part is drawn, from the next `Beginnen` on.
    void StrichmaßSetzen(double maß) { strichmaß_ = maß; }

  private:
    Schriftsatz &Satz();
    QColor Farbton(Farbe farbe) const;
    void StiftSetzen(Farbe farbe);
    void FüllungSetzen();
    const QPen &Stift(Farbe farbe);
    double Strichbreite() const;
    double StrichAnfang(double gerät) const;
    double StrichMitte(double einheiten) const;
    QPointF StrichMitte(QPointF p) const;
    void RechteckFüllen(double links, double oben, double rechts, double unten, Farbe farbe);
    void AchsenlinieFüllen(QPointF von, QPointF bis, Farbe farbe);
    void KastenFüllen(QPointF von, QPointF bis, Farbe farbe);
    void StreifenFüllen(std::span<const QLineF> wege, Farbe farbe);
    void TextgrundFüllen(const QRectF &grund);
    void Unterstreichen(const Schriftsatz &satz, QPointF ort, double breite);
    /// Whether any of the rectangle (user units) can show.
    bool Sichtbar(double links, double oben, double rechts, double unten) const;

    QPainter maler_;
    Textvorrat vorrat_;
    double geräteJeEinheit_ = 1;
    double pixelJeCm_ = 1;
    double strichmaß_ = 1;
    bool ausrichten_ = false;
    bool grau_ = false;
    bool gerastert_ = false; ///< the device is made of pixels
    bool xml_ = false;       ///< the device writes the names of fonts into its file as they stand
    bool füllbar_ = false;   ///< filling a rectangle is cheaper there than drawing a line
    std::unordered_map<std::uint64_t, QPen> stifte_;
    std::uint64_t stift_ = ~std::uint64_t{0};   ///< key of the painter's pen
    std::uint64_t füllung_ = ~std::uint64_t{0}; ///< key of the painter's brush
    int schrift_ = 0;                           ///< number of the painter's font
};

} // namespace kw
