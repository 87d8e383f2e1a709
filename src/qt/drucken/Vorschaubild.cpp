#include "qt/drucken/Vorschaubild.h"

#include "app/Einzelbild.h"
#include "document/Dateien.h"
#include "platform/Drucker.h"
#include "qt/drucken/Ausgabe.h"
#include "qt/malen/Spielraum.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>

#include <algorithm>
#include <cmath>
#include <new>

namespace kw {

namespace {

/// No line of a picture is thinner than a pixel: so small, all would be one blot. It is drawn larger and taken down,
/// and thin lines become pale ones.
constexpr int Übermaß = 3;

QImage Verkleinert(const Druckauftrag &seite, int kante) {
    const double jeCm = kante / std::max(seite.SeitenBreite, seite.SeitenHöhe);
    const auto pixel = [jeCm](double cm) { return std::max(1, static_cast<int>(std::lround(cm * jeCm))); };
    const QSize größe(pixel(seite.SeitenBreite), pixel(seite.SeitenHöhe));
    QImage bild(größe * Übermaß, QImage::Format_RGB32);
    SpielraumVerlangen(bild);
    bild.fill(Qt::white);
    if (!SeiteDrucken(seite, bild, jeCm * Übermaß)) return {};
    return bild.scaled(größe, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

std::string VorschaubildSchreiben(Einzelbild &bild, const std::string &ziel, int kante) {
    if (kante < KleinsteKante || kante > GrößteKante) return "the size is out of range";
    try {
        const QImage klein = Verkleinert(GanzeSeite(bild, {}), kante);
        QByteArray inhalt;
        QBuffer puffer(&inhalt);
        puffer.open(QIODevice::WriteOnly);
        if (klein.isNull() || !QImageWriter(&puffer, "png").write(klein)) return "cannot draw the page";
        return DateiSchreiben(ziel, {inhalt.constData(), static_cast<std::size_t>(inhalt.size())}).Meldung;
    } catch (const std::bad_alloc &) {
        return "not enough memory for the page";
    }
}

} // namespace kw
