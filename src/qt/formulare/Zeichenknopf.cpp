#include "qt/formulare/Zeichenknopf.h"

#include "qt/grund/Tastatur.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kw {

int Zeichenknopfkante(const QWidget &feld) {
    constexpr double Luft = 1.75; // as high as a combination box beside it
    return static_cast<int>(std::ceil(QFontMetrics(feld.window()->font()).height() * Luft));
}

Zeichenknopf::Zeichenknopf(QWidget *eltern) : QToolButton(eltern) {
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    EnterDrückt(*this);
}

void Zeichenknopf::AusrichtungZeigen(int ausrichtung) {
    ausrichtung_ = std::clamp(ausrichtung, 0, 2);
    update();
}

QSize Zeichenknopf::sizeHint() const {
    const int kante = Zeichenknopfkante(*this);
    return {kante, kante};
}

void Zeichenknopf::paintEvent(QPaintEvent *ereignis) {
    QToolButton::paintEvent(ereignis);
    QPainter p(this);
    if (isChecked()) UntenZeigen(p);
    if (text().isEmpty()) LinienZeigen(p);
}

/// Dark themes hardly tell by themselves which buttons are down.
void Zeichenknopf::UntenZeigen(QPainter &p) const {
    constexpr double Rundung = 3;
    constexpr double Schleier = 0.25;
    QColor farbe = palette().color(QPalette::Highlight);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(farbe, 1.5));
    farbe.setAlphaF(Schleier);
    p.setBrush(farbe);
    const QRectF außen = QRectF(rect()).adjusted(1, 1, -1, -1);
    p.drawRoundedRect(außen, Rundung, Rundung);
    if (hasFocus()) { // else the ring of the focus would be that of the button that is down
        p.setPen(QPen(palette().color(QPalette::Base), 1));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(außen.adjusted(1.5, 1.5, -1.5, -1.5), Rundung / 2, Rundung / 2);
    }
    p.setRenderHint(QPainter::Antialiasing, false);
}

void Zeichenknopf::LinienZeigen(QPainter &p) const {
    const auto gruppe = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QColor farbe = palette().color(gruppe, QPalette::ButtonText);
    constexpr double Längen[] = {1, 0.6, 1, 0.6}; // of the longest line
    constexpr double Anteile[] = {0, 1, 0.5};     // of the room that is left, before the line
    const int breite = width() / 2;
    const int schritt = std::max(3, height() / 7);
    const int dicke = std::max(1, height() / 18);
    int y = (height() - 3 * schritt - dicke + 1) / 2;
    for (const double länge : Längen) {
        const int l = static_cast<int>(std::lround(breite * länge));
        const int x = (width() - breite) / 2 + static_cast<int>(std::lround((breite - l) * Anteile[ausrichtung_]));
        p.fillRect(x, y, l, dicke, farbe);
        y += schritt;
    }
}

} // namespace kw
