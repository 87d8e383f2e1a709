#include "qt/malen/Zeilenbild.h"

#include "commands/Bildertafel.h"
#include "document/Zahlen.h"
#include "qt/malen/QtFlaeche.h"
#include "qt/malen/Svgsinnbild.h"
#include "rendering/Sinnbilder.h"

#include <QIconEngine>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kw {

namespace {

/// A symbol in a menu. It is drawn for the white of the page, so it brings a plate of that along.
class Symbolicon : public QIconEngine {
  public:
    Symbolicon(Sinnbild sinnbild, const Uhr &uhr) : sinnbild_(std::move(sinnbild)), uhr_(uhr) {}

    void paint(QPainter *p, const QRect &feld, QIcon::Mode zustand, QIcon::State lage) override {
        const double maßstab = p->device()->devicePixelRatioF();
        p->drawPixmap(feld, scaledPixmap(feld.size() * maßstab, zustand, lage, maßstab));
    }
    QPixmap pixmap(const QSize &größe, QIcon::Mode zustand, QIcon::State lage) override {
        return scaledPixmap(größe, zustand, lage, 1);
    }
    QPixmap scaledPixmap(const QSize &größe, QIcon::Mode zustand, QIcon::State, qreal maßstab) override {
        constexpr double Rundung = 2;
        constexpr double Blass = 0.3;
        QPixmap bild(größe);
        bild.fill(Qt::transparent);
        bild.setDevicePixelRatio(maßstab);
        QPainter p(&bild);
        p.setRenderHint(QPainter::Antialiasing);
        if (zustand == QIcon::Disabled) p.setOpacity(Blass);
        const int kante = static_cast<int>(std::min(größe.width(), größe.height()) / maßstab);
        p.setPen(Qt::NoPen);
        p.setBrush(Qt::white);
        p.drawRoundedRect(0, 0, kante, kante, Rundung, Rundung);
        p.drawPixmap(0, 0, Symbolbild(sinnbild_, uhr_, kante, maßstab));
        return bild;
    }
    QIconEngine *clone() const override { return new Symbolicon(*this); }

  private:
    Sinnbild sinnbild_;
    const Uhr &uhr_;
};

} // namespace

/// At the size of the icon lines are as wide as on the page at 100 %, one pixel.
QPixmap Symbolbild(const Sinnbild &sinnbild, const Uhr &uhr, int kante, double pixelverhältnis) {
    const int pixel = static_cast<int>(std::lround(kante * pixelverhältnis));
    QImage bild(pixel, pixel, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::transparent);
    const double pixelJeCm = kante / sinnbild.Kante;
    QtFläche fläche;
    fläche.AnPixelnAusrichten();
    fläche.Scale(sinnbild.Kante, sinnbild.Kante, pixelJeCm / BildschirmPixelJeCm);
    if (fläche.Beginnen(bild, pixelJeCm * pixelverhältnis, pixelJeCm)) SinnbildZeichnen(fläche, sinnbild, uhr);
    fläche.Beenden();
    bild.setDevicePixelRatio(pixelverhältnis);
    return QPixmap::fromImage(bild);
}

QIcon Sinnbildicon(Sinnbild sinnbild, const Uhr &uhr) { return QIcon(new Symbolicon(std::move(sinnbild), uhr)); }

QIcon Menübild(std::string_view zeile, const Uhr &uhr) {
    constexpr std::string_view Palettenknopf = "cmdSymb(";
    const std::string_view bild = Bildname(zeile);
    if (bild.empty()) return {};
    if (!bild.starts_with(Palettenknopf)) return SvgsinnbildImMenü(bild);
    const int nummer = static_cast<int>(ZahlLesen(bild.substr(Palettenknopf.size())));
    return Sinnbildicon(WerkzeugSinnbild(nummer), uhr);
}

} // namespace kw
