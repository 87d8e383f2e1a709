#include "qt/fenster/Bandknopf.h"

#include <QAction>
#include <QMenu>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace kw {

namespace {

constexpr double Rundung = 3;
constexpr int Pfeilraum = 16; ///< logical pixels at the right edge

} // namespace

Bandknopf::Bandknopf(QAction &aktion, QWidget *band) : QToolButton(band) {
    setAutoRaise(true);
    setFocusPolicy(Qt::NoFocus); // the band gives one of its buttons a place in the tab order
    setDefaultAction(&aktion);
    if (!ÖffnetMenü()) return;
    setPopupMode(QToolButton::InstantPopup); // only now: an action with a menu has just set another mode
    // No leave reaches the button when the menu is dismissed by a click elsewhere.
    connect(aktion.menu(), &QMenu::aboutToHide, this, [this] {
        setAttribute(Qt::WA_UnderMouse, rect().contains(mapFromGlobal(QCursor::pos())));
        update();
    });
}

bool Bandknopf::ÖffnetMenü() const { return defaultAction()->menu() != nullptr; }

QSize Bandknopf::sizeHint() const { return QToolButton::sizeHint() + QSize(ÖffnetMenü() ? Pfeilraum : 0, 0); }

void Bandknopf::paintEvent(QPaintEvent *) {
    QStylePainter p(this);
    QStyleOptionToolButton stil;
    initStyleOption(&stil);
    stil.features &= ~QStyleOptionToolButton::HasMenu; // the style's own sign for it is tiny
    stil.state &= ~QStyle::State_HasFocus;             // and that for the focus pale
    p.drawComplexControl(QStyle::CC_ToolButton, stil);
    p.setRenderHint(QPainter::Antialiasing);
    if (isChecked()) GedrücktZeigen(p);
    if (hasFocus()) FokusZeigen(p);
    if (ÖffnetMenü()) PfeilZeigen(p);
}

/// Dark themes hardly tell by themselves which buttons are pressed.
void Bandknopf::GedrücktZeigen(QPainter &p) const {
    constexpr float Schleier = 0.2F;
    QColor farbe = palette().color(QPalette::Highlight);
    p.setPen(QPen(farbe, 1.2));
    farbe.setAlphaF(Schleier);
    p.setBrush(farbe);
    p.drawRoundedRect(QRectF(rect()).adjusted(0.6, 0.6, -0.6, -0.6), Rundung, Rundung);
}

/// Inside the edge, where the frame of a pressed button may be.
void Bandknopf::FokusZeigen(QPainter &p) const {
    constexpr double Abstand = 2;
    p.setPen(QPen(palette().color(QPalette::WindowText), 1.4));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(rect()).adjusted(Abstand, Abstand, -Abstand, -Abstand), Rundung, Rundung);
}

void Bandknopf::PfeilZeigen(QPainter &p) const {
    constexpr double Halbe = 3;
    const auto gruppe = isEnabled() ? QPalette::Active : QPalette::Disabled;
    p.setPen(QPen(palette().color(gruppe, QPalette::WindowText), 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    const QPointF spitze(width() - Pfeilraum / 2.0 + 1, (height() + Halbe) / 2.0);
    p.drawPolyline(QPolygonF{spitze + QPointF(-Halbe, -Halbe), spitze, spitze + QPointF(Halbe, -Halbe)});
}

} // namespace kw
