#include "qt/Arbeitsflaeche.h"

#include "app/frmMain.h"

#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QSignalBlocker>
#include <QTimer>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace kw {

namespace {

// The page is white and what lies behind it is dark on every theme.
constexpr QColor Hintergrund{35, 35, 35};
constexpr QColor Schatten{15, 15, 15};
constexpr int FrameOben = Arbeitsbereich::FrameOben; ///< the model's inner area begins that far above the widget
constexpr int Zeile = 20 * TwipsJePixel;
constexpr int Raste = 120; ///< eighths of a degree of one wheel notch

double Pixel(int twips) { return static_cast<double>(twips) / TwipsJePixel; }

QRectF Fläche(const Steuerfläche &s) { return {Pixel(s.Left), Pixel(s.Top), Pixel(s.Width), Pixel(s.Height)}; }

/// Moves the painter by less than a pixel so that `ort` falls on a whole device pixel: a picture of the
/// device's own resolution is copied sharp at every scale.
void AufPixelRücken(QPainter &p, QPointF ort) {
    const QPointF gerät = p.deviceTransform().map(ort);
    const double maßstab = p.deviceTransform().m11();
    p.translate((std::round(gerät.x()) - gerät.x()) / maßstab, (std::round(gerät.y()) - gerät.y()) / maßstab);
}

} // namespace

Arbeitsflaeche::Arbeitsflaeche(LeinwandFläche &leinwand) : leinwand_(leinwand) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("Genogramm"));
    for (QScrollBar *leiste : {&vScroll_, &hScroll_}) {
        leiste->setFocusPolicy(Qt::NoFocus); // the keyboard keeps working on the canvas
        leiste->setSingleStep(Zeile);
        leiste->hide();
        connect(leiste, &QScrollBar::valueChanged, this, [this] { Scrollen(); });
    }
}

void Arbeitsflaeche::Verbinden(frmMain &haupt, std::function<void()> erstesBild) {
    haupt_ = &haupt;
    erstesBild_ = std::move(erstesBild);
}

QSize Arbeitsflaeche::Innengröße() const {
    return {(width() - vScroll_.sizeHint().width()) * TwipsJePixel + Arbeitsbereich::BalkenRechts,
            (height() - hScroll_.sizeHint().height()) * TwipsJePixel + FrameOben - Arbeitsbereich::BalkenUnten};
}

void Arbeitsflaeche::resizeEvent(QResizeEvent *) {
    if (!haupt_) return;
    haupt_->bereich.GrößeÄndern(Innengröße().width(), Innengröße().height());
    Auffrischen();
}

void Arbeitsflaeche::LeisteStellen(QScrollBar &leiste, const Bildlaufleiste &modell) {
    const QSignalBlocker still(leiste);
    leiste.setRange(0, std::max(modell.Max, 0));
    leiste.setPageStep(leiste.orientation() == Qt::Vertical ? modell.Height : modell.Width);
    leiste.setValue(modell.Value);
    leiste.setVisible(modell.Visible);
}

void Arbeitsflaeche::Auffrischen() {
    if (!haupt_) return;
    const Arbeitsbereich &b = haupt_->bereich;
    const int breite = vScroll_.sizeHint().width();
    const int höhe = hScroll_.sizeHint().height();
    const QRect senkrecht = Fläche(b.VScroll1).translated(0, -Pixel(FrameOben)).toRect();
    const QRect waagrecht = Fläche(b.HScroll1).translated(0, -Pixel(FrameOben)).toRect();
    vScroll_.setGeometry(senkrecht.left(), senkrecht.top(), breite, senkrecht.height());
    hScroll_.setGeometry(waagrecht.left(), waagrecht.top(), waagrecht.width(), höhe);
    LeisteStellen(vScroll_, b.VScroll1);
    LeisteStellen(hScroll_, b.HScroll1);
    update();
}

void Arbeitsflaeche::Scrollen() {
    haupt_->bereich.Scrollen(hScroll_.value(), vScroll_.value());
    update();
}

void Arbeitsflaeche::paintEvent(QPaintEvent *ereignis) {
    QPainter p(this);
    p.fillRect(ereignis->rect(), Hintergrund);
    if (!haupt_) return;
    if (leinwand_.Pixelverhältnis() != devicePixelRatioF()) { // the window came to another screen
        leinwand_.PixelverhältnisSetzen(devicePixelRatioF());
        haupt_->Vorschau();
    }
    const Arbeitsbereich &b = haupt_->bereich;
    // The page shows up to the scroll bars, which stand a little outside the frame that it is laid out in.
    const QRectF rahmen = Fläche(b.picBack).translated(0, -Pixel(FrameOben));
    const double unten = b.HScroll1.Visible ? Pixel(b.HScroll1.Top - FrameOben) : height();
    p.setClipRect(QRectF(rahmen.left(), 0, width() - rahmen.left(), unten));
    p.translate(rahmen.topLeft());
    const QRectF seite = Fläche(b.picVorschau());
    p.fillRect(Fläche(b.shpSchatten), Schatten);
    AufPixelRücken(p, seite.topLeft());
    p.drawImage(seite.topLeft(), leinwand_.Bild());
    if (auto erstesBild = std::exchange(erstesBild_, nullptr)) QTimer::singleShot(0, this, erstesBild);
}

void Arbeitsflaeche::wheelEvent(QWheelEvent *ereignis) {
    ereignis->accept();
    radrest_ += ereignis->angleDelta().y();
    for (; std::abs(radrest_) >= Raste; radrest_ -= radrest_ > 0 ? Raste : -Raste)
        haupt_->bereich.Mausrad(radrest_ > 0);
}

} // namespace kw
