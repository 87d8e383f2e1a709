#include "qt/malen/LeinwandFlaeche.h"

#include "qt/malen/Spielraum.h"

#include <algorithm>
#include <cmath>

namespace kw {

namespace {

constexpr int GrößteSeite = 20000; ///< pixels; no screen's zoom comes near it

/// Null where the memory doesn't suffice: nothing is drawn then, and the next redraw tries again.
QImage Bildspeicher(QSize größe) {
    QImage bild(größe, QImage::Format_RGB32);
    try {
        SpielraumVerlangen(bild);
        return bild;
    } catch (const std::bad_alloc &) {
        return {};
    }
}

} // namespace

LeinwandFläche::LeinwandFläche(double pixelverhältnis) : pixelverhältnis_(pixelverhältnis) { AnPixelnAusrichten(); }

/// How many physical pixels a line of width 1 has. Without a scale it is one. The page is a part of the screen, so a
/// scale makes the screen's logical pixels larger and nothing on the page: lines of whole logical pixels would cover
/// texts as small as before. Only on a screen with more pixels than usual the texts have more of them too.
double LeinwandFläche::Linienpixel() const {
    constexpr QSizeF Üblich(1920, 1080);
    if (bildschirm_.isEmpty()) return pixelverhältnis_;
    const double texte = std::min(bildschirm_.width() / Üblich.width(), bildschirm_.height() / Üblich.height());
    return std::clamp(texte * pixelverhältnis_, 1.0, std::max(1.0, pixelverhältnis_));
}

void LeinwandFläche::Cls() {
    const auto pixel = [&](int twips) {
        return std::clamp(static_cast<int>(std::lround(twips * pixelverhältnis_ / TwipsJePixel)), 1, GrößteSeite);
    };
    Beenden();
    const QSize größe(pixel(Width()), pixel(Height()));
    if (bild_.size() != größe) bild_ = Bildspeicher(größe);
    geändert_ = QRect(QPoint(), größe);
    bild_.setDevicePixelRatio(1); // the painter counts physical pixels
    bild_.fill(Qt::white);
    // Not by the picture's own size, which is rounded: polygons count in exactly these pixels.
    const double pixelJeCm = BildschirmPixelJeCm * Faktor();
    StrichmaßSetzen(Linienpixel() / pixelverhältnis_);
    Beginnen(bild_, pixelJeCm * pixelverhältnis_, pixelJeCm);
    bild_.setDevicePixelRatio(pixelverhältnis_);
}

void LeinwandFläche::Line(int flags, double x1, double y1, double x2, double y2, Farbe farbe) {
    QtFläche::Line(flags, x1, y1, x2, y2, farbe);
    if (geändert_.size() == bild_.size()) return;
    const double k = BildschirmPixelJeCm * Faktor() * pixelverhältnis_;
    const double luft = DrawWidth * pixelverhältnis_ + 2;
    const QRectF ort = QRectF(QPointF(x1, y1) * k, QPointF(x2, y2) * k).normalized();
    geändert_ |= ort.adjusted(-luft, -luft, luft, luft).toAlignedRect();
}

} // namespace kw
