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

void LeinwandFläche::Cls() {
    const auto pixel = [&](int twips) {
        return std::clamp(static_cast<int>(std::lround(twips * pixelverhältnis_ / TwipsJePixel)), 1, GrößteSeite);
    };
    Beenden();
    const QSize größe(pixel(Width()), pixel(Height()));
    if (bild_.size() != größe) bild_ = Bildspeicher(größe);
    bild_.setDevicePixelRatio(1); // the painter counts physical pixels
    bild_.fill(Qt::white);
    // Not by the picture's own size, which is rounded: polygons count in exactly these pixels.
    const double pixelJeCm = BildschirmPixelJeCm * Faktor();
    Beginnen(bild_, pixelJeCm * pixelverhältnis_, pixelJeCm);
    bild_.setDevicePixelRatio(pixelverhältnis_);
}

} // namespace kw
