#include "qt/malen/Zeigerbild.h"

#include "editing/Leinwandlage.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <cmath>

namespace kw {

namespace {

constexpr int Kante = 32; ///< logical pixels; what every desktop takes as it is
constexpr int Heiß = 10;

/// Hairs that leave the middle free, so that one sees what one aims at.
QPainterPath Fadenkreuz() {
    QPainterPath pfad;
    constexpr double M = Heiß + 0.5;
    for (const QPointF arm : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)}) {
        pfad.moveTo(QPointF(M, M) + arm * 2);
        pfad.lineTo(QPointF(M, M) + arm * 8);
    }
    return pfad;
}

QPainterPath Büste() {
    QPainterPath pfad;
    pfad.addEllipse(QPointF(22.5, 17.5), 3, 3);
    pfad.moveTo(16.5, 29.5);
    pfad.cubicTo(16.5, 20.5, 28.5, 20.5, 28.5, 29.5);
    pfad.closeSubpath();
    return pfad;
}

QPainterPath Textkasten() {
    QPainterPath pfad;
    pfad.addRect(14.5, 14.5, 15, 12);
    pfad.moveTo(18.5, 17.5);
    pfad.lineTo(25.5, 17.5);
    pfad.moveTo(22, 17.5);
    pfad.lineTo(22, 23.5);
    return pfad;
}

QCursor Gezeichnet(const QPainterPath &beiwerk, double pixelverhältnis) {
    QPixmap bild(QSize(Kante, Kante) * std::ceil(pixelverhältnis));
    bild.setDevicePixelRatio(std::ceil(pixelverhältnis));
    bild.fill(Qt::transparent);
    QPainter p(&bild);
    p.setRenderHint(QPainter::Antialiasing);
    const QPainterPath kreuz = Fadenkreuz();
    for (const auto &[farbe, breite] :
         {std::pair(QColor(255, 255, 255, 230), 3.0), std::pair(QColor(Qt::black), 1.0)}) {
        p.setPen(QPen(farbe, breite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPath(kreuz);
        p.setBrush(Qt::white);
        p.drawPath(beiwerk);
        p.setBrush(Qt::NoBrush);
    }
    p.end();
    return QCursor(bild, Heiß, Heiß);
}

} // namespace

QCursor Zeigerbild(Mauszeiger zeiger, double pixelverhältnis) {
    switch (zeiger) {
    case Mauszeiger::Verschieben: return Qt::SizeAllCursor;
    case Mauszeiger::Person: return Gezeichnet(Büste(), pixelverhältnis);
    case Mauszeiger::Textfeld: return Gezeichnet(Textkasten(), pixelverhältnis);
    case Mauszeiger::Kreuz: return Qt::CrossCursor;
    case Mauszeiger::Hand: return Qt::OpenHandCursor;
    case Mauszeiger::Griff: return Qt::ClosedHandCursor;
    default: return Qt::ArrowCursor;
    }
}

} // namespace kw
