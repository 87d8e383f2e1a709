#include "qt/malen/Auflagenmaler.h"

#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace kw {

namespace {

constexpr QColor Gummifarbe{30, 90, 200};
constexpr QColor Maskenfarbe{70, 70, 70};
constexpr QColor Rahmenfarbe{20, 60, 150};
constexpr QColor Cursorfarbe{0, 0, 0};
constexpr QColor Zielfarbe{251, 59, 15};
constexpr QColor Hof{255, 255, 255, 200}; ///< on both sides of a stroke: what it crosses doesn't swallow it
constexpr double Hofbreite = 1.5;
constexpr double Strich = 1.5; ///< logical pixels, as all below
constexpr double Zielstrich = 2;
constexpr double Rahmenluft = 3;     ///< a group's frame is as narrow as can be, and would hide the edges of symbols
constexpr double Spitze = 9;         ///< length of an arrow's head
constexpr double Spitzenwinkel = 22; ///< degrees, between its side and the shaft

bool Zeigt(const Auflagenlinie &l) { return l.Visible && l.X1 != Geparkt; }

bool Zeigt(const Auflagenform &f) { return f.Visible && f.Left != Geparkt && (f.Width > 0 || f.Height > 0); }

QPen Stift(const QColor &farbe, double breite, Qt::PenStyle stil = Qt::SolidLine) {
    QPen stift(farbe, breite, stil, Qt::FlatCap, Qt::MiterJoin);
    if (stil == Qt::DashLine) stift.setDashPattern({4, 3});
    if (stil == Qt::DotLine) stift.setDashPattern({1.5, 1.5});
    return stift;
}

class Maler {
  public:
    Maler(QPainter &p, double pixelJeCm) : p_(&p), k_(pixelJeCm) { p.setRenderHint(QPainter::Antialiasing); }
    /// Paints nothing, tells where it would.
    Maler(QRegion &spur, double pixelJeCm) : spur_(&spur), k_(pixelJeCm) {}

    void Linie(const Auflagenlinie &l, const QColor &farbe, double breite = Strich) {
        if (!Zeigt(l)) return;
        const QLineF linie(l.X1 * k_, l.Y1 * k_, l.X2 * k_, l.Y2 * k_);
        if (spur_) return Merken(linie);
        MitHof(Stift(farbe, breite), Hofbreite, [&] { p_->drawLine(linie); });
    }

    void Pfeil(const Auflagenlinie &l, int art) {
        Linie(l, Gummifarbe);
        const QLineF schaft(l.X2 * k_, l.Y2 * k_, l.X1 * k_, l.Y1 * k_);
        if (!Zeigt(l) || schaft.length() < Spitze) return;
        PfeilspitzeMalen(schaft);
        if (art == 2) PfeilspitzeMalen({schaft.p2(), schaft.p1()});
    }

    /// `luft` is what the stroke keeps away from what the shape is round, `hof` what is bright beside it, logical
    /// pixels.
    void Form(const Auflagenform &f, const QColor &farbe, double breite, Qt::PenStyle stil = Qt::SolidLine,
              double luft = 0, double hof = Hofbreite) {
        if (!Zeigt(f)) return;
        QRectF r(f.Left * k_, f.Top * k_, f.Width * k_, f.Height * k_);
        r = r.normalized().adjusted(-luft, -luft, luft, luft);
        if (f.Shape == Umriss::Quadrat || f.Shape == Umriss::Kreis) {
            const double kante = std::min(r.width(), r.height());
            r = QRectF(r.center() - QPointF(kante, kante) / 2, QSizeF(kante, kante));
        }
        const bool rund = f.Shape == Umriss::Kreis || f.Shape == Umriss::Oval;
        if (spur_) return rund ? Merken(r) : RandMerken(r);
        p_->setBrush(Qt::NoBrush);
        MitHof(Stift(farbe, breite, stil), hof, [&] { rund ? p_->drawEllipse(r) : p_->drawRect(r); });
    }

  private:
    /// At the beginning of `schaft`.
    void PfeilspitzeMalen(const QLineF &schaft) {
        if (spur_) return Merken(QRectF(schaft.p1(), QSizeF()).adjusted(-Spitze, -Spitze, Spitze, Spitze));
        QPolygonF ecken{schaft.p1()};
        for (const double winkel : {-Spitzenwinkel, Spitzenwinkel})
            ecken += schaft.p1() + QLineF::fromPolar(Spitze, schaft.angle() + winkel).p2();
        p_->setPen(Qt::NoPen);
        p_->setBrush(Gummifarbe);
        p_->drawPolygon(ecken);
    }

    template <typename Zug> void MitHof(const QPen &stift, double hof, Zug zug) {
        p_->setPen(Stift(Hof, stift.widthF() + 2 * hof));
        zug();
        p_->setPen(stift);
        zug();
    }

    void Merken(const QRectF &r) {
        constexpr double Luft = Zielstrich / 2 + Hofbreite + 2;
        constexpr QRectF Nah(-1e5, -1e5, 2e5, 2e5); // no window is farther away
        *spur_ += (r.normalized().adjusted(-Luft, -Luft, Luft, Luft) & Nah).toAlignedRect();
    }

    /// Piece by piece: the one rectangle round a line across the page is the page.
    void Merken(const QLineF &l) {
        constexpr double Stück = 64;
        constexpr double Höchstzahl = 32;
        const double quer = std::min(std::abs(l.dx()), std::abs(l.dy()));
        const int n = static_cast<int>(std::clamp(std::ceil(quer / Stück), 1.0, Höchstzahl));
        for (int i = 0; i < n; ++i) Merken(QRectF(l.pointAt(static_cast<double>(i) / n), l.pointAt((i + 1.0) / n)));
    }

    void RandMerken(const QRectF &r) {
        Merken(QLineF(r.topLeft(), r.topRight()));
        Merken(QLineF(r.bottomLeft(), r.bottomRight()));
        Merken(QLineF(r.topLeft(), r.bottomLeft()));
        Merken(QLineF(r.topRight(), r.bottomRight()));
    }

    QPainter *p_ = nullptr;
    QRegion *spur_ = nullptr;
    double k_; ///< logical pixels a centimetre
};

void Alle(Maler &maler, const Auflagen &a, int pfeilArt) {
    maler.Form(a.shpPerson, Zielfarbe, Zielstrich);
    for (const Auflagenlinie &l : a.MarkLine) maler.Linie(l, Zielfarbe, Zielstrich);
    maler.Linie(a.Line1, Gummifarbe);
    maler.Linie(a.Line2, Gummifarbe);
    maler.Pfeil(a.Line5, pfeilArt);
    maler.Form(a.shpMask, Maskenfarbe, Strich);
    maler.Form(a.shpBox, Rahmenfarbe, Strich, Qt::DashLine, Rahmenluft);
}

void Cursor(Maler &maler, const Auflagen &a) {
    maler.Form(a.shpCursor, Cursorfarbe, Zielstrich, Qt::DotLine, 0, 0); // a name stands close below
    for (const Auflagenlinie &l : a.Kreuz) maler.Linie(l, Cursorfarbe, Zielstrich);
}

} // namespace

void AuflagenMalen(QPainter &p, const Auflagen &a, int pfeilArt, double pixelJeCm) {
    Maler maler(p, pixelJeCm);
    Alle(maler, a, pfeilArt);
}

void CursorMalen(QPainter &p, const Auflagen &a, double pixelJeCm) {
    Maler maler(p, pixelJeCm);
    Cursor(maler, a);
}

QRegion AuflagenSpur(const Auflagen &a, int pfeilArt, double pixelJeCm) {
    QRegion spur;
    Maler maler(spur, pixelJeCm);
    Alle(maler, a, pfeilArt);
    Cursor(maler, a);
    return spur;
}

} // namespace kw
