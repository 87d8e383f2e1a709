// One step of a drag at the real page: from the pointer's event to the pixels that show.

#include "app/frmMain.h"
#include "qt/drucken/QtBilder.h"
#include "qt/fenster/Arbeitsflaeche.h"
#include "qt/malen/LeinwandFlaeche.h"
#include "replay/Einblick.h"
#include "replay/Plattform.h"

#include "Familien.h"

#include <QApplication>
#include <QMouseEvent>

#include <benchmark/benchmark.h>

#include <sstream>

namespace kw {
namespace {

constexpr double TwipsJePixel = 15;

/// The page at 100 % on a screen of 1920 x 1080, with a document of so many persons; what it asks a user goes nowhere.
struct Fensterseite {
    explicit Fensterseite(int n) {
        seite.Verbinden(haupt, [] {});
        haupt.Laden();
        seite.resize(1820, 940);
        seite.show();
        innen.bereich.GrößeÄndern(seite.Innengröße().width(), seite.Innengröße().height());
        innen.dokument = Familien(n);
        innen.fenster.Vorschau();
        innen.fenster.Sichern();
        seite.Auffrischen();
        QApplication::processEvents();
    }
    /// cm on the page as pixels of the widget.
    QPointF Pixel(double x, double y) const {
        const Arbeitsbereich &b = innen.bereich;
        const Steuerfläche blatt = b.picVorschau();
        const QPointF ecke((b.picBack.Left + blatt.Left) / TwipsJePixel,
                           (b.picBack.Top + blatt.Top - Arbeitsbereich::FrameOben) / TwipsJePixel);
        return ecke + QPointF(x, y) * (blatt.Width / TwipsJePixel / innen.ansicht.SeitenBreite);
    }
    void Maus(QEvent::Type art, QPointF ort, Qt::MouseButton taste, Qt::MouseButtons unten) {
        QMouseEvent ereignis(art, ort, seite.mapToGlobal(ort), taste, unten, Qt::NoModifier);
        QApplication::sendEvent(&seite, &ereignis);
        QApplication::processEvents();
    }

    std::ostringstream aus;
    std::string wirkungen;
    DrehbuchBenutzer benutzer{aus, wirkungen};
    DrehbuchDrucker drucker{wirkungen};
    DrehbuchUhr uhr;
    LeinwandFläche leinwand{1};
    QtBilder bilder{leinwand};
    frmMain haupt{{benutzer, drucker, bilder, uhr}, leinwand, {"", "", "", "", 28800, 16200}};
    Einblick innen{haupt};
    Arbeitsflaeche seite{leinwand};
};

/// The first person, to and fro by a step of the raster.
void DragStep(benchmark::State &lauf) {
    Fensterseite f(static_cast<int>(lauf.range(0)));
    const int vorher = f.innen.ring.UndoSchritte();
    f.Maus(QEvent::MouseButtonPress, f.Pixel(1, 1), Qt::LeftButton, Qt::LeftButton);
    double x = 1;
    for (auto _ : lauf) {
        x = x > 5 ? 1 : x + 0.3;
        f.Maus(QEvent::MouseMove, f.Pixel(x, 1.6), Qt::NoButton, Qt::LeftButton);
    }
    f.Maus(QEvent::MouseButtonRelease, f.Pixel(x, 1.6), Qt::LeftButton, Qt::NoButton);
    if (f.innen.ring.UndoSchritte() != vorher + 1) lauf.SkipWithError("nothing was dragged");
}

BENCHMARK(DragStep)->Apply(AlleGrößen);

} // namespace
} // namespace kw
