#include "qt/malen/Svgsinnbild.h"

#include "qt/grund/Text.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

#include <utility>

/// The linker leaves out what nobody names. Outside of any namespace, as the toolkit wants it.
static void ZeichnungenLaden() { Q_INIT_RESOURCE(sinnbilder); }

namespace kw {

namespace {

// As the files say them.
constexpr char Strichfarbe[] = "currentColor";
constexpr char Akzentfarbe[] = "#2f86dd";

constexpr QColor AkzentAufHell{31, 120, 209};
constexpr QColor AkzentAufDunkel{104, 180, 245};
constexpr int Mitte = 128; ///< text lighter than this stands on a dark theme

struct Farben {
    QColor Strich;
    QColor Akzent;
};

/// Menus tell their styles of the row under the pointer as `Active`, toolbars of the button there: only the first
/// one stands on a highlight. The text's own colour reads on that in light and dark themes, an accent doesn't.
Farben FarbenFür(QIcon::Mode zustand, bool imMenü) {
    const QPalette palette = QGuiApplication::palette();
    const auto einfarbig = [](const QColor &farbe) { return Farben{farbe, farbe}; };
    if (zustand == QIcon::Disabled) return einfarbig(palette.color(QPalette::Disabled, QPalette::WindowText));
    if (zustand == QIcon::Selected) return einfarbig(palette.color(QPalette::Active, QPalette::HighlightedText));
    const QColor farbe = palette.color(QPalette::Active, QPalette::WindowText);
    if (zustand == QIcon::Active && imMenü) return einfarbig(farbe);
    return {farbe, qGray(farbe.rgb()) > Mitte ? AkzentAufDunkel : AkzentAufHell};
}

class Svgbild : public QIconEngine {
  public:
    Svgbild(QByteArray svg, bool imMenü) : svg_(std::move(svg)), imMenü_(imMenü) {}

    void paint(QPainter *p, const QRect &feld, QIcon::Mode zustand, QIcon::State) override {
        const Farben farben = FarbenFür(zustand, imMenü_);
        QByteArray svg = svg_;
        svg.replace(Strichfarbe, farben.Strich.name().toLatin1()).replace(Akzentfarbe, farben.Akzent.name().toLatin1());
        QSvgRenderer zeichner(svg);
        zeichner.setAspectRatioMode(Qt::KeepAspectRatio);
        zeichner.render(p, feld);
    }
    QPixmap pixmap(const QSize &größe, QIcon::Mode zustand, QIcon::State lage) override {
        QPixmap bild(größe);
        bild.fill(Qt::transparent);
        QPainter p(&bild);
        paint(&p, bild.rect(), zustand, lage);
        return bild;
    }
    QIconEngine *clone() const override { return new Svgbild(*this); }

  private:
    QByteArray svg_;
    bool imMenü_;
};

QIcon Laden(std::string_view name, bool imMenü) {
    ZeichnungenLaden();
    QFile datei(QStringLiteral(":/sinnbilder/%1.svg").arg(Text(name)));
    return datei.open(QIODevice::ReadOnly) ? QIcon(new Svgbild(datei.readAll(), imMenü)) : QIcon();
}

} // namespace

/// As pictures: the desktop takes them from the window as they are, and knows no sizes of others.
QIcon Programmsinnbild() {
    QIcon sinnbild;
    const QIcon zeichnung = Svgsinnbild("kinwright");
    for (const int kante : {16, 24, 32, 48, 64, 128}) sinnbild.addPixmap(zeichnung.pixmap(kante));
    return sinnbild;
}

QIcon Svgsinnbild(std::string_view name) { return Laden(name, false); }

QIcon SvgsinnbildImMenü(std::string_view name) { return Laden(name, true); }

} // namespace kw
