#pragma once

#include "qt/malen/QtFlaeche.h"

#include <QImage>
#include <QRect>

#include <utility>

namespace kw {

/// The canvas: a kept picture in the screen's own resolution. The window copies it, exports take it.
class LeinwandFläche : public QtFläche {
  public:
    explicit LeinwandFläche(double pixelverhältnis);
    ~LeinwandFläche() override { Beenden(); }

    const QImage &Bild() const { return bild_; }
    double Pixelverhältnis() const { return pixelverhältnis_; }
    /// The screen that the page's size comes from, in logical pixels: lines are then as heavy beside the texts as on a
    /// screen without a scale.
    void BildschirmSetzen(QSize größe) { bildschirm_ = größe; }
    /// Physical by logical pixels of the screen; the next redraw has the new resolution.
    void PixelverhältnisSetzen(double verhältnis) { pixelverhältnis_ = verhältnis; }

    /// Clears; makes the picture anew when size or resolution have changed.
    void Cls() override;
    /// A gesture adds lines, and nothing else, to a picture that is drawn.
    void Line(int flags, double x1, double y1, double x2, double y2, Farbe farbe) override;
    /// Forgets and gives where the picture, in its own pixels, has changed since the last call: all of it after a
    /// redraw.
    QRect Geändertes() { return std::exchange(geändert_, QRect()); }

  private:
    double Linienpixel() const;

    QImage bild_;
    QRect geändert_;
    QSize bildschirm_;
    double pixelverhältnis_;
};

} // namespace kw
