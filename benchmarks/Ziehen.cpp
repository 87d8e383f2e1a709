// One step of a drag at the real page: from the pointer's event to the pixels that show.

#include "gui/Probeseite.h"

#include "Familien.h"

#include <benchmark/benchmark.h>

namespace kw {
namespace {

/// The page at 100 % on a screen of 1920 x 1080, with a document of so many persons.
struct Fensterseite : Probeseite<> {
    explicit Fensterseite(int n) : Probeseite({1820, 940}) {
        fläche.show();
        Anpassen();
        innen.dokument = Familien(n);
        innen.fenster.Vorschau();
        innen.fenster.Sichern();
        fläche.Auffrischen();
        QApplication::processEvents();
    }
    /// One event of the pointer, and what the window does about it.
    void Schritt(QEvent::Type art, QPointF ort, Qt::MouseButton taste, Qt::MouseButtons unten) {
        Maus(art, ort, taste, unten);
        QApplication::processEvents();
    }
};

/// The first person, to and fro by a step of the raster.
void DragStep(benchmark::State &lauf) {
    Fensterseite f(static_cast<int>(lauf.range(0)));
    const int vorher = f.innen.ring.UndoSchritte();
    f.Schritt(QEvent::MouseButtonPress, f.Pixel(1, 1), Qt::LeftButton, Qt::LeftButton);
    double x = 1;
    for (auto _ : lauf) {
        x = x > 5 ? 1 : x + 0.3;
        f.Schritt(QEvent::MouseMove, f.Pixel(x, 1.6), Qt::NoButton, Qt::LeftButton);
    }
    f.Schritt(QEvent::MouseButtonRelease, f.Pixel(x, 1.6), Qt::LeftButton, Qt::NoButton);
    if (f.innen.ring.UndoSchritte() != vorher + 1) lauf.SkipWithError("nothing was dragged");
}

BENCHMARK(DragStep)->Apply(AlleGrößen);

} // namespace
} // namespace kw
