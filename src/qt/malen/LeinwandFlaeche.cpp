#include "qt/malen/LeinwandFlaeche.h"

#include <algorithm>
#include <cmath>

namespace kw {

namespace {

constexpr int GrößteSeite = 20000; ///< pixels; no screen's zoom comes near it

} // namespace

LeinwandFläche::LeinwandFläche(double pixelverhältnis) : pixelverhältnis_(pixelverhältnis) { AnPixelnAusrichten(); }

void LeinwandFläche::Cls() {
    const auto pixel = [&](int twips) {
        return std::clamp(static_cast<int>(std::lround(twips * pixelverhältnis_ / TwipsJePixel)), 1, GrößteSeite);
    };
    Beenden();
    const QSize größe(pixel(Width()), pixel(Height()));
    if (bild_.size() != größe) bild_ = QImage(größe, QImage::Format_RGB32);
    bild_.setDevicePixelRatio(1); // the painter counts physical pixels
    bild_.fill(Qt::white);
    // Not by the picture's own size, which is rounded: polygons count in exactly these pixels.
    const double pixelJeCm = BildschirmPixelJeCm * Faktor();
    Beginnen(bild_, pixelJeCm * pixelverhältnis_, pixelJeCm);
    bild_.setDevicePixelRatio(pixelverhältnis_);
}

} // namespace kw
