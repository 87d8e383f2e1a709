// The redraw, set against a bare loop of the same primitives on the same kind of target: recorded once as plain values,
// pens made beforehand, texts prepared.

#include "app/Einzelbild.h"
#include "qt/grund/QtPlattform.h"
#include "qt/malen/LeinwandFlaeche.h"
#include "rendering/Ebenen.h"

#include "Familien.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QStaticText>

#include <benchmark/benchmark.h>

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

BENCHMARK(Redraw)->Apply(AlleGrößen);
BENCHMARK(RedrawBareLoop)->Apply(AlleGrößen);

} // namespace
} // namespace kw
