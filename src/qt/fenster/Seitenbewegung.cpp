// How the page moves in its frame: by wheel, two fingers, hand, and a drag at the edge.
#include "app/frmMain.h"
#include "qt/fenster/Arbeitsflaeche.h"
#include "rendering/Zeichenflaeche.h"

#include <QMouseEvent>
#include <QPointingDevice>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace kw {

namespace {

constexpr int Raste = 120; ///< eighths of a degree of one wheel notch

} // namespace

Rahmenort Arbeitsflaeche::ImRahmen(QPointF ort) const {
    const QPointF twips = ort * TwipsJePixel;
    return {static_cast<int>(std::lround(twips.x())) - anblick_->bereich.picBack.Left,
            static_cast<int>(std::lround(twips.y()))};
}

/// The wheel zooms. With Shift it scrolls, with Alt sideways, as a tilted one does; two fingers do both.
void Arbeitsflaeche::wheelEvent(QWheelEvent *ereignis) {
    ereignis->accept();
    if (!haupt_) return;
    ort_ = ereignis->position();
    QPoint drehung = ereignis->angleDelta();
    const Qt::KeyboardModifiers dazu = ereignis->modifiers();
    if (dazu & Qt::AltModifier && drehung.x() == 0) drehung = drehung.transposed(); // some platforms did so already
    const QPoint finger = ereignis->pixelDelta();
    const bool tastfeld = !finger.isNull() || ereignis->device()->type() == QInputDevice::DeviceType::TouchPad;
    const bool quer = std::abs(drehung.x()) > std::abs(drehung.y());
    if (dazu & Qt::ControlModifier || !(dazu & Qt::ShiftModifier || tastfeld || quer))
        return ZoomVormerken(drehung.y());
    const QPointF rasten = QPointF(drehung) / Raste;
    if (!finger.isNull()) haupt_->ScrollenUm(-finger.x() * TwipsJePixel, -finger.y() * TwipsJePixel);
    else if (dazu & Qt::ShiftModifier && !quer) haupt_->MitRadScrollen(0, rasten.y());
    else haupt_->MitRadScrollen(rasten.x(), tastfeld ? rasten.y() : 0);
    SeiteUnterZeigerMelden();
}

/// Counts whole notches; the page is drawn when no more wait.
void Arbeitsflaeche::ZoomVormerken(int drehung) {
    radrest_ += drehung;
    if (std::abs(radrest_) < Raste) return;
    for (; std::abs(radrest_) >= Raste; radrest_ -= radrest_ > 0 ? Raste : -Raste) haupt_->MausradZählen(radrest_ > 0);
    if (!std::exchange(zoomSteht_, true))
        QTimer::singleShot(0, this, [this] {
            zoomSteht_ = false;
            haupt_->MausradFolgen(ImRahmen(ort_));
            SeiteUnterZeigerMelden();
        });
}

/// The middle button, or Space and the left one, take the page in hand.
bool Arbeitsflaeche::SchiebenBeginnen(const QMouseEvent &ereignis) {
    const bool links = ereignis.button() == Qt::LeftButton;
    if (leer_ && links) leerVerbraucht_ = true;
    if (!haupt_ || imModell_ || taste_ != Qt::NoButton || schiebt_ != Qt::NoButton) return schiebt_ != Qt::NoButton;
    if (ereignis.button() != Qt::MiddleButton && !(leer_ && links)) return false;
    schiebt_ = ereignis.button();
    ort_ = ereignis.position();
    haupt_->SeiteFassen(ImRahmen(ort_));
    ZeigerSetzen();
    return true;
}

void Arbeitsflaeche::SchiebenBeenden() {
    schiebt_ = Qt::NoButton;
    ZeigerSetzen();
}

void Arbeitsflaeche::AmRandScrollen() {
    if (imModell_) return;
    const Rahmenort zeiger = ImRahmen(ort_);
    if (importzeile_ ? haupt_->BeimImportScrollen(zeiger) : haupt_->AmRandScrollen(zeiger)) {
        if (importzeile_) Auffrischen();
        else SeiteUnterZeigerMelden();
    }
}

/// With Space held the left button draws the page, and Space itself then means nothing more.
void Arbeitsflaeche::LeertasteHalten(bool unten) {
    if (unten) leerVerbraucht_ = taste_ == Qt::LeftButton;
    leer_ = unten;
    ZeigerSetzen();
}

} // namespace kw
