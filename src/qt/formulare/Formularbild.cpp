#include "qt/formulare/Formularbild.h"

#include "dialogs/Formular.h"
#include "qt/grund/Text.h"
#include "qt/grund/Vorlesename.h"
#include "qt/malen/QtFlaeche.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kw {

namespace {

constexpr QColor Randfarbe{150, 150, 150};
constexpr double GewohnteZeile = 16; ///< pixels of a line of text at which a preview has the page's size
constexpr int Rand = 1;

/// A text of any number of lines between `Left` and `Left + Width`.
void Schreiben(Zeichenfläche &fläche, const Steuerelement &label) {
    constexpr double Anteil[] = {0, 1, 0.5}; // of the room that is left, before the text
    const double anteil = Anteil[std::clamp(label.Alignment, 0, 2)];
    fläche.FontName = label.FontName.empty() ? "Arial" : label.FontName;
    fläche.FontSize = (label.FontSize > 0 ? label.FontSize : 8) * fläche.Faktor();
    fläche.FontBold = label.FontBold;
    fläche.FontItalic = label.FontItalic;
    fläche.FontUnderline = label.FontUnderline;
    fläche.FontTransparent = true;
    fläche.ForeColor = label.Farbwert;
    fläche.CurrentY = label.Top;
    for (const QString &zeile : Text(label.Caption).split(QLatin1Char('\n'))) {
        const std::string text = zeile.toStdString();
        fläche.CurrentX = label.Left + (label.Width - fläche.TextWidth(text)) * anteil;
        fläche.Print(text);
    }
}

} // namespace

Formularbild::Formularbild(Formular &form, std::string name, QWidget *eltern)
    : QWidget(eltern), form_(form), name_(std::move(name)) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Formularbild::sizeHint() const {
    const auto [breite, höhe] = form_.BildGröße(name_);
    const double jeEinheit =
        BildschirmPixelJeCm * form_.BildMaßstab(name_) * std::max(1.0, QFontMetricsF(font()).height() / GewohnteZeile);
    return {static_cast<int>(std::ceil(breite * jeEinheit)) + 2 * Rand,
            static_cast<int>(std::ceil(höhe * jeEinheit)) + 2 * Rand};
}

void Formularbild::Auffrischen() {
    QStringList texte; // whoever can't see the picture hears what is written in it
    for (const auto &name : form_.Reihenfolge()) {
        const Steuerelement &element = *form_.Finden(name);
        if (element.Bei == name_ && element.Visible && !element.Caption.empty()) texte += Text(element.Caption);
    }
    DazuVorlesen(*this, texte.join(QStringLiteral(", ")));
    updateGeometry();
    update();
}

void Formularbild::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.fillRect(rect(), Randfarbe);
    const QRect innen = rect().adjusted(Rand, Rand, -Rand, -Rand);
    p.fillRect(innen, Qt::white);
    const auto [breite, höhe] = form_.BildGröße(name_);
    const double jeEinheit = std::min(innen.width() / breite, innen.height() / höhe);
    const double verhältnis = devicePixelRatioF();
    const auto pixel = [&](double einheiten) {
        return std::max(1, static_cast<int>(std::lround(einheiten * jeEinheit * verhältnis)));
    };
    QImage bild = Gezeichnet({pixel(breite), pixel(höhe)}, jeEinheit, verhältnis);
    bild.setDevicePixelRatio(verhältnis);
    // On whole device pixels: the picture was drawn sharp for them.
    const auto mitte = [&](int außen, double drin) { return std::floor((außen - drin) / 2 * verhältnis) / verhältnis; };
    const QSizeF größe = bild.deviceIndependentSize();
    p.setClipRect(innen);
    p.drawImage(QPointF(innen.left() + std::max(0.0, mitte(innen.width(), größe.width())),
                        innen.top() + std::max(0.0, mitte(innen.height(), größe.height()))),
                bild);
}

QImage Formularbild::Gezeichnet(QSize pixel, double pixelJeEinheit, double verhältnis) {
    const auto [breite, höhe] = form_.BildGröße(name_);
    QImage bild(pixel, QImage::Format_RGB32);
    bild.fill(Qt::white);
    QtFläche fläche;
    fläche.AnPixelnAusrichten();
    fläche.GrößeSetzen(static_cast<int>(std::lround(breite * pixelJeEinheit * TwipsJePixel)),
                       static_cast<int>(std::lround(höhe * pixelJeEinheit * TwipsJePixel)));
    fläche.Scale(breite, höhe, pixelJeEinheit / BildschirmPixelJeCm);
    if (fläche.Beginnen(bild, pixelJeEinheit * verhältnis, pixelJeEinheit)) {
        form_.BildZeichnen(name_, fläche);
        BeschriftungenZeichnen(fläche);
    }
    fläche.Beenden();
    return bild;
}

void Formularbild::BeschriftungenZeichnen(Zeichenfläche &fläche) const {
    for (const auto &name : form_.Reihenfolge()) {
        const Steuerelement &element = *form_.Finden(name);
        if (element.Kind == Art::Beschriftung && element.Bei == name_ && element.Visible) Schreiben(fläche, element);
    }
}

} // namespace kw
