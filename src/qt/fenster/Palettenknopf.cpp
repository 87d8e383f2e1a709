#include "qt/fenster/Palettenknopf.h"

#include "qt/grund/Tastatur.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kw {

namespace {

/// The faces of a button. The symbols are drawn for a light one on every theme.
struct Knopffarben {
    QColor Frei, Gesperrt, Überfahren, Gedrückt, Rand;
    QColor Akzent; ///< reads on the face as on what is around it
};
constexpr Knopffarben AufHell{{255, 255, 255}, {236, 236, 236}, {232, 241, 253},
                              {190, 214, 248}, {150, 150, 150}, {25, 95, 200}};
/// Softer than the page, so that what the pointer is on can be brighter; what can't be pressed goes back into the dark.
constexpr Knopffarben AufDunkel{{208, 208, 212}, {96, 96, 100},   {250, 252, 255},
                                {140, 188, 248}, {120, 120, 124}, {40, 120, 230}};
constexpr double Blass = 0.3;
constexpr double BlassAufDunkel = 0.55; ///< dark lines on a dark face

bool IstDunkel(const QWidget &feld) {
    constexpr int Mitte = 128;
    return qGray(feld.palette().color(QPalette::Window).rgb()) < Mitte;
}

const Knopffarben &FarbenFür(const QWidget &feld) { return IstDunkel(feld) ? AufDunkel : AufHell; }

double BlässeFür(const QWidget &feld) { return IstDunkel(feld) ? BlassAufDunkel : Blass; }

constexpr double Rundung = 4;
constexpr int Luft = 3;         ///< between edge and icon
constexpr int Hinweisbild = 40; ///< the picture beside a name

/// Makes the icon anew only when its size on the screen has changed.
void BildHolen(QPixmap &pixmap, const Bildmacher &bild, const QWidget &feld) {
    const int kante = std::max(1, std::min(feld.width(), feld.height()) - 2 * Luft);
    const double verhältnis = feld.devicePixelRatioF();
    const int pixel = static_cast<int>(std::lround(kante * verhältnis));
    if (pixmap.width() != pixel || pixmap.devicePixelRatio() != verhältnis) pixmap = bild(kante, verhältnis);
}

void BildMalen(QPainter &p, const QPixmap &pixmap, QSize feld) {
    const QSizeF größe = pixmap.deviceIndependentSize();
    // On whole device pixels: the icon was drawn sharp for them.
    const double maßstab = pixmap.devicePixelRatio();
    const auto mitte = [&](double innen, double außen) { return std::floor((außen - innen) / 2 * maßstab) / maßstab; };
    p.drawPixmap(QPointF(mitte(größe.width(), feld.width()), mitte(größe.height(), feld.height())), pixmap);
}

QColor Grund(const QAbstractButton &knopf) {
    const Knopffarben &farben = FarbenFür(knopf);
    if (!knopf.isEnabled()) return farben.Gesperrt;
    if (knopf.isChecked() || knopf.isDown()) return farben.Gedrückt;
    return knopf.underMouse() ? farben.Überfahren : farben.Frei;
}

} // namespace

Palettenknopf::Palettenknopf(Bildmacher bild, QWidget *palette) : QAbstractButton(palette), bild_(std::move(bild)) {
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus); // the palette gives one of its buttons a place in the tab order
    EnterDrückt(*this);
}

void Palettenknopf::paintEvent(QPaintEvent *) {
    BildHolen(pixmap_, bild_, *this);
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const bool gedrückt = isChecked() || isDown();
    const bool betont = isEnabled() && (hasFocus() || gedrückt || underMouse());
    const double strich = hasFocus() || gedrückt ? 2 : 1;
    const Knopffarben &farben = FarbenFür(*this);
    p.setPen(QPen(betont ? farben.Akzent : farben.Rand, strich));
    p.setBrush(Grund(*this));
    const QRectF außen = QRectF(rect()).adjusted(strich / 2, strich / 2, -strich / 2, -strich / 2);
    p.drawRoundedRect(außen, Rundung, Rundung);
    if (hasFocus() && gedrückt) { // else the ring of the focus would be that of the pressed button
        p.setPen(QPen(AufHell.Frei, 1));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(außen.adjusted(strich, strich, -strich, -strich), Rundung / 2, Rundung / 2);
    }
    if (!isEnabled()) p.setOpacity(BlässeFür(*this));
    BildMalen(p, pixmap_, size());
}

void Palettenknopf::keyPressEvent(QKeyEvent *ereignis) {
    if (TasteWeitergeben && TasteWeitergeben(ereignis->key())) return;
    if (ereignis->key() == Qt::Key_Space) return QAbstractButton::keyPressEvent(ereignis);
    ereignis->ignore();
}

void Palettenknopf::Berühren(bool darauf) {
    update();
    if (Berührt) Berührt(darauf);
}

Merkmalfeld::Merkmalfeld(Bildmacher bild, QWidget *palette) : QLabel(palette), bild_(std::move(bild)) {}

void Merkmalfeld::Zeigen(const QString &name, bool gilt) {
    gilt_ = gilt;
    setToolTip(name);
    update();
}

void Merkmalfeld::paintEvent(QPaintEvent *) {
    BildHolen(pixmap_, bild_, *this);
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    if (!gilt_) p.setOpacity(Blass);
    p.setPen(Qt::NoPen); // a plate, but no button's
    p.setBrush(FarbenFür(*this).Frei);
    p.drawRoundedRect(rect(), Rundung, Rundung);
    BildMalen(p, pixmap_, size());
}

Palettenhinweis::Palettenhinweis(QWidget *fläche) : QLabel(fläche) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextFormat(Qt::PlainText);
    setPalette(QToolTip::palette());
    setFont(QToolTip::font());
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setAutoFillBackground(true);
    setFrameStyle(QFrame::Box);
}

void Palettenhinweis::Zeigen(const QString &name, const QString &aussehen, Bildmacher bild) {
    setText(name);
    aussehen_ = aussehen;
    bild_ = std::move(bild);
    update();
}

QSize Palettenhinweis::sizeHint() const {
    const QFontMetrics maß = fontMetrics();
    const int breite = std::max(maß.horizontalAdvance(text()), maß.horizontalAdvance(aussehen_));
    const int höhe = maß.height() * (aussehen_.isEmpty() ? 1 : 2);
    return {Hinweisbild + breite + 5 * Luft, std::max(Hinweisbild, höhe) + 2 * Luft};
}

void Palettenhinweis::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    drawFrame(&p);
    const QRect bild(Luft, (height() - Hinweisbild) / 2, Hinweisbild, Hinweisbild);
    p.fillRect(bild, FarbenFür(*this).Frei);
    if (bild_) p.drawPixmap(bild.topLeft(), bild_(Hinweisbild, devicePixelRatioF()));
    p.setPen(palette().color(foregroundRole()));
    const QRect rest = rect().adjusted(Hinweisbild + 3 * Luft, 0, -Luft, 0);
    p.drawText(rest, Qt::AlignVCenter, aussehen_.isEmpty() ? text() : text() + u'\n' + aussehen_);
}

QPixmap Papierkorb(int kante, double pixelverhältnis) {
    QPixmap bild(QSize(kante, kante) * pixelverhältnis);
    bild.setDevicePixelRatio(pixelverhältnis);
    bild.fill(Qt::transparent);
    QPainter p(&bild);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(kante / 22.0, kante / 22.0);
    p.setPen(QPen(QColor(60, 60, 60), 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPainterPath tonne(QPointF(5, 6.5));
    for (const QPointF ecke : {QPointF(6, 19), QPointF(16, 19), QPointF(17, 6.5)}) tonne.lineTo(ecke);
    p.setBrush(QColor(225, 225, 225));
    p.drawPath(tonne);
    p.drawLine(QPointF(3.5, 5.5), QPointF(18.5, 5.5)); // lid and its handle
    p.drawPolyline(QPolygonF{QPointF(9, 5), QPointF(9, 3), QPointF(13, 3), QPointF(13, 5)});
    for (const double x : {9.0, 13.0}) p.drawLine(QPointF(x, 9.5), QPointF(x, 16));
    return bild;
}

} // namespace kw
