// Speed of what a user waits for, by the size of the document. The redraw is set against a bare loop of
// the same primitives on the same kind of target: recorded once as plain values, pens made beforehand,
// texts prepared.

#include "app/Einzelbild.h"
#include "document/Dateien.h"
#include "document/Profil.h"
#include "document/ProjektDatei.h"
#include "document/Zahlen.h"
#include "qt/fenster/Hauptfenster.h"
#include "qt/grund/QtPlattform.h"
#include "qt/malen/LeinwandFlaeche.h"
#include "rendering/Ebenen.h"

#include "Familien.h"

#include <QApplication>
#include <QPaintEngine>
#include <QPainterPath>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <utility>
#include <vector>

namespace kw {
namespace {

/// A canvas as at 100 % on a screen of 1920 x 1080, with a document drawn on it.
struct Blatt {
    explicit Blatt(int n) : bild(uhr, "") {
        bild.dokument = Familien(n);
        bild.ansicht.bRasterAnzeigen = false;
        Zeichnen(leinwand);
    }
    void Zeichnen(Zeichenfläche &fläche) {
        fläche.GrößeSetzen(25920, 14580);
        bild.Übernehmen(VorschauZeichnen(fläche, bild.DasBild()));
    }
    QtUhr uhr;
    LeinwandFläche leinwand{1};
    Einzelbild bild;
};

/// What one redraw hands to the painter, as plain values.
struct Marke {
    enum class Art { Strich, Kasten, Kreis, Pfad, Vieleck, Text };
    Art Was;
    int Stift;
    int Füllung;
    QLineF Linie;
    QRectF Rahmen;
    QPainterPath Pfad;
    QPolygonF Ecken;
    QStaticText Text;
    QFont Schrift;
};

/// A paint device that only keeps what is painted on it.
class Mitschrift : public QPaintDevice, public QPaintEngine {
  public:
    Mitschrift(int breite, int höhe) : QPaintEngine(AllFeatures), breite_(breite), höhe_(höhe) {}
    std::vector<Marke> Marken;
    std::vector<QPen> Stifte;
    std::vector<QBrush> Füllungen;
    QTransform Abbildung;

    QPaintEngine *paintEngine() const override { return const_cast<Mitschrift *>(this); }
    int metric(PaintDeviceMetric m) const override {
        return m == PdmWidth ? breite_ : m == PdmHeight ? höhe_ : m == PdmDevicePixelRatioScaled ? 65536 : 96;
    }
    Type type() const override { return User; }
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &s) override {
        if (s.state() & DirtyPen) Stifte.push_back(s.pen());
        if (s.state() & DirtyBrush) Füllungen.push_back(s.brush());
        if (s.state() & DirtyTransform) Abbildung = s.transform();
    }
    void drawLines(const QLineF *linien, int n) override {
        for (int i = 0; i < n; ++i) Neu(Marke::Art::Strich).Linie = linien[i];
    }
    void drawRects(const QRectF *kästen, int n) override {
        for (int i = 0; i < n; ++i) Neu(Marke::Art::Kasten).Rahmen = kästen[i];
    }
    void drawEllipse(const QRectF &rahmen) override { Neu(Marke::Art::Kreis).Rahmen = rahmen; }
    void drawPath(const QPainterPath &pfad) override { Neu(Marke::Art::Pfad).Pfad = pfad; }
    void drawPolygon(const QPointF *p, int n, PolygonDrawMode) override {
        Neu(Marke::Art::Vieleck).Ecken = QPolygonF(QList<QPointF>(p, p + n));
    }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawTextItem(const QPointF &grundlinie, const QTextItem &t) override {
        Marke &m = Neu(Marke::Art::Text);
        m.Schrift = t.font();
        m.Text = QStaticText(t.text());
        m.Text.setTextFormat(Qt::PlainText);
        m.Text.setPerformanceHint(QStaticText::AggressiveCaching);
        m.Text.prepare(QTransform(), m.Schrift);
        m.Rahmen = QRectF(grundlinie - QPointF(0, t.ascent()), QSizeF(1, 1));
    }

  private:
    Marke &Neu(Marke::Art art) {
        Marken.push_back(
            {art, static_cast<int>(Stifte.size()) - 1, static_cast<int>(Füllungen.size()) - 1, {}, {}, {}, {}, {}, {}});
        return Marken.back();
    }
    int breite_;
    int höhe_;
};

/// The same primitives in a bare loop.
void BloßMalen(QImage &bild, const Mitschrift &m) {
    bild.fill(Qt::white);
    QPainter p(&bild);
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    p.setTransform(m.Abbildung);
    int stift = -1;
    int füllung = -1;
    const QFont *schrift = nullptr;
    for (const Marke &marke : m.Marken) {
        if (std::exchange(stift, marke.Stift) != marke.Stift) p.setPen(m.Stifte[static_cast<size_t>(stift)]);
        if (std::exchange(füllung, marke.Füllung) != marke.Füllung)
            p.setBrush(m.Füllungen[static_cast<size_t>(füllung)]);
        switch (marke.Was) {
        case Marke::Art::Strich: p.drawLine(marke.Linie); break;
        case Marke::Art::Kasten: p.drawRect(marke.Rahmen); break;
        case Marke::Art::Kreis: p.drawEllipse(marke.Rahmen); break;
        case Marke::Art::Pfad: p.drawPath(marke.Pfad); break;
        case Marke::Art::Vieleck: p.drawPolygon(marke.Ecken); break;
        case Marke::Art::Text:
            if (!schrift || *schrift != marke.Schrift) p.setFont(marke.Schrift);
            schrift = &marke.Schrift;
            p.drawStaticText(marke.Rahmen.topLeft(), marke.Text);
        }
    }
}

void Mitschreiben(Blatt &blatt, Mitschrift &m) {
    const QImage &bild = blatt.leinwand.Bild();
    QtFläche fläche;
    fläche.AnPixelnAusrichten();
    fläche.GrößeSetzen(blatt.leinwand.Width(), blatt.leinwand.Height());
    fläche.Scale(blatt.leinwand.ScaleWidth(), blatt.leinwand.ScaleHeight(), blatt.leinwand.Faktor());
    fläche.Beginnen(m, bild.width() / fläche.ScaleWidth(), BildschirmPixelJeCm * fläche.Faktor());
    LinienEbene(fläche, blatt.bild.DasBild(), fläche.Faktor());
    PersonenEbene(fläche, blatt.bild.DasBild(), fläche.Faktor());
    fläche.Beenden();
}

void Redraw(benchmark::State &zustand) {
    Blatt blatt(static_cast<int>(zustand.range(0)));
    for (auto _ : zustand) blatt.Zeichnen(blatt.leinwand);
}

void RedrawBareLoop(benchmark::State &zustand) {
    Blatt blatt(static_cast<int>(zustand.range(0)));
    QImage bild(blatt.leinwand.Bild().size(), QImage::Format_RGB32);
    Mitschrift m(bild.width(), bild.height());
    Mitschreiben(blatt, m);
    for (auto _ : zustand) BloßMalen(bild, m);
}

void Load(benchmark::State &zustand) {
    Profil quelle;
    ProjektEintragen(Familien(static_cast<int>(zustand.range(0))), quelle);
    const std::string inhalt = quelle.Inhalt();
    for (auto _ : zustand) {
        Dokument d;
        const Profil profil{std::string(inhalt)};
        ProjektLesen(profil, d);
        d.FreieNummernAufbauen();
        benchmark::DoNotOptimize(d);
    }
}

void Save(benchmark::State &zustand) {
    const Dokument d = Familien(static_cast<int>(zustand.range(0)));
    Profil alt;
    ProjektEintragen(d, alt);
    const std::string inhalt = alt.Inhalt();
    for (auto _ : zustand) {
        Profil profil{std::string(inhalt)};
        ProjektEintragen(d, profil);
        benchmark::DoNotOptimize(profil.Inhalt());
    }
}

void SaveToDisk(benchmark::State &zustand) {
    Profil profil;
    ProjektEintragen(Familien(static_cast<int>(zustand.range(0))), profil);
    const std::string inhalt = profil.Inhalt();
    for (auto _ : zustand) benchmark::DoNotOptimize(DateiSchreiben("bench.tmp", inhalt));
    std::remove("bench.tmp");
}

#define KW_SIZES Arg(10)->Arg(100)->Arg(200)->Arg(300)->Arg(400)->Arg(900)->Unit(benchmark::kMicrosecond)
BENCHMARK(Redraw)->KW_SIZES;
BENCHMARK(RedrawBareLoop)->KW_SIZES;
BENCHMARK(Load)->KW_SIZES;
BENCHMARK(Save)->KW_SIZES;
BENCHMARK(SaveToDisk)->Arg(100)->Arg(900)->Unit(benchmark::kMicrosecond);

/// Shows the usual table, then growth from size to size and the redraw's ratio to the bare loop. With
/// repetitions the fastest of each counts.
class Bericht : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run> &läufe) override {
        ConsoleReporter::ReportRuns(läufe);
        for (const Run &lauf : läufe) {
            if (lauf.run_type != Run::RT_Iteration) continue;
            double &zeit = zeiten_[lauf.run_name.function_name][std::stoi(lauf.run_name.args)];
            const double dauer = lauf.GetAdjustedRealTime();
            zeit = zeit == 0 ? dauer : std::min(zeit, dauer);
        }
    }
    void Schluss() {
        std::printf("\nGrowth: time by time, for persons by persons\n");
        for (const auto &[name, werte] : zeiten_)
            for (auto i = werte.begin(); std::next(i) != werte.end(); ++i)
                std::printf("  %-16s %4d -> %4d   %.2f for %.2f\n", name.c_str(), i->first, std::next(i)->first,
                            std::next(i)->second / i->second, 1.0 * std::next(i)->first / i->first);
        std::printf("\nRedraw by bare loop\n");
        for (const auto &[n, zeit] : zeiten_["Redraw"])
            std::printf("  %4d persons   %.2f\n", n, zeit / zeiten_["RedrawBareLoop"][n]);
    }

  private:
    std::map<std::string, std::map<int, double>> zeiten_;
};

/// Whole processes, ours and a bare one of the toolkit by turns; the fastest of each counts.
void ProzesseVergleichen(const char *was, const std::string &unserer, const std::string &bloßer) {
    double zeiten[2] = {1e9, 1e9};
    for (int i = 0; i < 20; ++i) {
        const auto beginn = std::chrono::steady_clock::now();
        if (std::system((i % 2 == 0 ? unserer : bloßer).c_str()) != 0) {
            std::printf("  %s: failed\n", was);
            return;
        }
        const std::chrono::duration<double, std::milli> dauer = std::chrono::steady_clock::now() - beginn;
        zeiten[i % 2] = std::min(zeiten[i % 2], dauer.count());
    }
    std::printf("  %-30s %6.1f ms, bare %6.1f ms   %.2f\n", was, zeiten[0], zeiten[1], zeiten[0] / zeiten[1]);
}

/// Ends the process when its object is painted.
class Stoppuhr : public QObject {
  public:
    bool eventFilter(QObject *, QEvent *ereignis) override {
        if (ereignis->type() == QEvent::Paint) QTimer::singleShot(0, [] { std::_Exit(0); });
        return false;
    }
};

/// The real main window, until it has been painted once.
int FensterMalen(int argc, char **argv) {
    const QApplication anwendung(argc, argv);
    Hauptfenster fenster("");
    Stoppuhr stoppuhr;
    fenster.centralWidget()->installEventFilter(&stoppuhr);
    fenster.show();
    return QApplication::exec();
}

} // namespace
} // namespace kw

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc > 1 && std::string_view(argv[1]) == "--window") return kw::FensterMalen(argc, argv);
    const std::string ordner = kw::Pfad(argv[0]);
    const QGuiApplication anwendung(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    kw::Bericht bericht;
    benchmark::RunSpecifiedBenchmarks(&bericht);
    bericht.Schluss();
    std::printf("\nWhole processes\n");
    kw::ProzesseVergleichen("window painted", std::string(argv[0]) + " --window", ordner + "bare_window");
    kw::ProzesseVergleichen("200 persons to PDF",
                            ordner + "../kinwright --export bench.pdf " KW_SAMPLES "/grossfamilie.kwp",
                            ordner + "bare_pdf bench.pdf");
    std::remove("bench.pdf");
    return 0;
}
