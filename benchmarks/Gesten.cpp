// Speed of what the pointer does, by the size of the document, without the redraw's painting: the canvas takes the
// primitives and drops them.

#include "Familien.h"

#include "app/Befehle.h"
#include "app/frmMain.h"
#include "editing/Gruppe.h"
#include "editing/Kinder.h"
#include "editing/Kreislinien.h"
#include "editing/Linien.h"
#include "editing/Personen.h"
#include "editing/Pfeile.h"
#include "editing/Texte.h"
#include "replay/Aufzeichnung.h"
#include "replay/Einblick.h"
#include "replay/Plattform.h"

#include <benchmark/benchmark.h>

#include <sstream>

namespace kw {
namespace {

/// A window with a document of `n` persons.
struct Sitzung {
    explicit Sitzung(benchmark::State &lauf)
        : haupt({benutzer, drucker, bilder, uhr}, leinwand, {"", "", "", "", 28800, 16200}) {
        haupt.Laden();
        innen.dokument = Familien(static_cast<int>(lauf.range(0)));
        innen.fenster.Vorschau();
        innen.fenster.Sichern();
    }
    void Ziehen(double x1, double y1, double x2, double y2) {
        haupt.MouseDown(TasteLinks, x1, y1);
        haupt.MouseMove(TasteLinks, x2, y2);
        haupt.MouseUp(TasteLinks, x2, y2);
    }
    /// A marquee over the left half of the page: half of the persons.
    void HälfteWählen() { Ziehen(0.2, 0.2, 14.8, 20.8); }

    std::ostringstream aus;
    std::string wirkungen;
    DrehbuchBenutzer benutzer{aus, wirkungen};
    DrehbuchDrucker drucker{wirkungen};
    DrehbuchUhr uhr;
    Aufzeichnung leinwand;
    DrehbuchBilder bilder{leinwand, wirkungen};
    frmMain haupt;
    Einblick innen{haupt};
};

/// Every hit test, at a place where all of them miss.
void Treffer(benchmark::State &lauf) {
    const Sitzung s(lauf);
    const Dokument &d = s.innen.dokument;
    for (auto _ : lauf)
        benchmark::DoNotOptimize(KreisLinieBei(d, 29, 20, 10) + PersonBei(d, 29, 20) + BezLinieBei(d, 29, 20) +
                                 PLinieBei(d, 29, 20) + KindLinieBei(d, 29, 20, 1.2) + PfeilBei(d, 29, 20) +
                                 TextboxBei(d, 29, 20));
}

void Rahmen(benchmark::State &lauf) {
    Sitzung s(lauf);
    for (auto _ : lauf) {
        s.HälfteWählen();
        lauf.PauseTiming();
        s.Ziehen(29.5, 20.9, 29.5, 20.9);
        lauf.ResumeTiming();
    }
}

void GruppeBewegen(benchmark::State &lauf) {
    Sitzung s(lauf);
    s.HälfteWählen();
    double weg = 0.3;
    for (auto _ : lauf) {
        const Auflagenform &rahmen = s.innen.auflagen.shpBox;
        const double x = rahmen.Left + 1;
        const double y = rahmen.Top + 1;
        s.Ziehen(x, y, x + weg, y + weg);
        weg = -weg;
    }
}

void Löschen(benchmark::State &lauf) {
    Sitzung s(lauf);
    const Dokument ganz = s.innen.dokument;
    for (auto _ : lauf) {
        lauf.PauseTiming();
        s.innen.dokument = ganz;
        s.HälfteWählen();
        lauf.ResumeTiming();
        mnuLöschen1(s.innen.werkbank);
    }
}

void UndoUndRedo(benchmark::State &lauf) {
    Sitzung s(lauf);
    s.innen.fenster.Sichern();
    Befehlsumgebung umgebung = s.innen;
    const auto [rückgängig, zurück] = BefehlFinden("cmdUndo");
    const auto [wiederholen, vor] = BefehlFinden("cmdredo");
    for (auto _ : lauf) {
        rückgängig(umgebung, zurück);
        wiederholen(umgebung, vor);
    }
}

BENCHMARK(Treffer)->Name("HitTest")->Apply(AlleGrößen);
BENCHMARK(Rahmen)->Name("Marquee")->Apply(AlleGrößen);
BENCHMARK(GruppeBewegen)->Name("MoveHalf")->Apply(AlleGrößen);
BENCHMARK(Löschen)->Name("DeleteHalf")->Apply(AlleGrößen);
BENCHMARK(UndoUndRedo)->Name("UndoAndRedo")->Apply(AlleGrößen);

} // namespace
} // namespace kw
