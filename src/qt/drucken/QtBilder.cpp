#include "qt/drucken/QtBilder.h"

#include "document/Dateien.h"
#include "qt/drucken/Ausgabe.h"
#include "qt/malen/LeinwandFlaeche.h"
#include "qt/malen/Spielraum.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImageWriter>
#include <QMimeData>
#include <QPainter>

#include <cmath>
#include <memory>
#include <new>
#include <string_view>

namespace kw {

namespace {

/// Where a format keeps the resolution, and what says there that none is known.
struct Auflösungsfeld {
    const char *Format;
    qsizetype Stelle;
    std::string_view Unbekannt;
};
constexpr Auflösungsfeld Auflösungsfelder[] = {{"bmp", 38, {"\0\0\0\0\0\0\0\0", 8}}, {"jpeg", 13, {"\0\0\1\0\1", 5}}};

/// The picture without a resolution, which would say nothing true about the page. The toolkit writes the screen's.
/// Empty when the encoder refuses it; throws where there is no memory for it.
QByteArray Kodiert(QImage bild, const char *format, int qualität = -1) {
    SpielraumVerlangen(bild);
    QByteArray inhalt;
    QBuffer puffer(&inhalt);
    puffer.open(QIODevice::WriteOnly);
    bild.setDevicePixelRatio(1);
    QImageWriter schreiber(&puffer, format);
    if (qualität >= 0) schreiber.setQuality(qualität);
    if (!schreiber.write(bild)) return {};
    for (const auto &[name, stelle, unbekannt] : Auflösungsfelder)
        if (std::string_view(name) == format)
            inhalt.replace(stelle, static_cast<qsizetype>(unbekannt.size()),
                           QByteArray(unbekannt.data(), static_cast<qsizetype>(unbekannt.size())));
    return inhalt;
}

/// Nothing is written but a whole picture.
Ursache Schreiben(const std::string &datei, const QByteArray &inhalt) {
    if (inhalt.isEmpty()) return Ursache::Sonstiges;
    return DateiSchreiben(datei, {inhalt.constData(), static_cast<size_t>(inhalt.size())}).Grund;
}

} // namespace

QImage QtBilder::Ausschnitt(const Bildausschnitt &ausschnitt) const {
    const double verhältnis = leinwand_.Pixelverhältnis() / TwipsJePixel;
    const auto pixel = [&](double twips) { return static_cast<int>(std::lround(twips * verhältnis)); };
    // What of the region lies beside the page is white, as the page is.
    QImage bild(pixel(ausschnitt.Width), pixel(ausschnitt.Height), QImage::Format_RGB32);
    QImage ganz = leinwand_.Bild();
    if (bild.isNull() || ganz.isNull()) throw std::bad_alloc();
    bild.fill(Qt::white);
    ganz.setDevicePixelRatio(1); // pixel upon pixel
    QPainter(&bild).drawImage(-pixel(ausschnitt.Left), -pixel(ausschnitt.Top), ganz);
    return bild;
}

Ursache QtBilder::SavePicture(const std::string &datei, const std::optional<Bildausschnitt> &ausschnitt) {
    return Schreiben(datei, Kodiert(ausschnitt ? Ausschnitt(*ausschnitt) : leinwand_.Bild(), "bmp"));
}

Ursache QtBilder::AlsJpeg(const std::string &datei, unsigned char quality) {
    return Schreiben(datei, Kodiert(leinwand_.Bild(), "jpeg", quality));
}

Ursache QtBilder::AlsPng(const std::string &datei, const Bildausschnitt &ausschnitt) {
    return Schreiben(datei, Kodiert(Ausschnitt(ausschnitt), "png"));
}

Ursache QtBilder::SeiteAls(const std::string &datei, const Druckauftrag &seite) { return SeiteSchreiben(seite, datei); }

void QtBilder::InZwischenablage(const Bildausschnitt &ausschnitt) {
    const QImage bild = Ausschnitt(ausschnitt);
    auto inhalt = std::make_unique<QMimeData>();
    inhalt->setImageData(bild);
    inhalt->setData(QStringLiteral("image/png"), Kodiert(bild, "png"));
    inhalt->setData(QStringLiteral("image/bmp"), Kodiert(bild, "bmp"));
    QGuiApplication::clipboard()->setMimeData(inhalt.release());
}

} // namespace kw
