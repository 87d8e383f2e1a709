#include "qt/malen/QtFlaeche.h"

#include "qt/grund/Text.h"

#include <QPagedPaintDevice>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>

namespace kw {

namespace {

constexpr double JeCm = 1200 / 2.54; ///< units of 1/1200 inch
constexpr double JePunkt = 1200.0 / 72;
constexpr double GrößteSchrift = 500; ///< points; with more the width of a long text overflows inside Qt
constexpr double FernerRand = 1000;   ///< cm; what reaches further is cut off there
constexpr double SpitzesteEcke = 10;  ///< length of a mitre by the line's width; lets triangles keep their tips
constexpr int TextStift = 0x8000;     ///< in a pen's key: the pen of texts, which has only a colour

std::uint64_t Schlüssel(Farbe farbe, int breite, int stil) {
    return static_cast<std::uint64_t>(Aufgelöst(farbe)) << 32U | static_cast<std::uint64_t>(breite) << 8U |
           static_cast<std::uint64_t>(stil);
}

bool Fern(double wert) { return !(std::abs(wert) <= FernerRand); }

double Herangeholt(double wert) { return std::clamp(wert, -FernerRand, FernerRand); }

/// Whether the way from `a` to `c` is the same without `b`.
bool GehtGeradeaus(QPointF a, QPointF b, QPointF c) {
    constexpr double Nichts = 1e-6; // of what steps of a hundredth of a centimetre make at the least
    const QPointF hin = b - a;
    const QPointF weiter = c - b;
    return std::abs(hin.x() * weiter.y() - hin.y() * weiter.x()) < Nichts && QPointF::dotProduct(hin, weiter) > 0;
}

/// Cuts a line to the far edge, so that its slope stays. False when none of it is inside.
bool Geschnitten(double &x1, double &y1, double &x2, double &y2) {
    double von = 0;
    double bis = 1;
    const double dx = x2 - x1;
    const double dy = y2 - y1;
    for (const auto &[d, platz] : {std::pair(-dx, x1 + FernerRand), std::pair(dx, FernerRand - x1),
                                   std::pair(-dy, y1 + FernerRand), std::pair(dy, FernerRand - y1)}) {
        if (d == 0 && platz < 0) return false;
        if (d < 0) von = std::max(von, platz / d);
        if (d > 0) bis = std::min(bis, platz / d);
    }
    if (!(von <= bis)) return false;
    const double ausX = x1;
    const double ausY = y1;
    x1 = ausX + von * dx;
    y1 = ausY + von * dy;
    x2 = ausX + bis * dx;
    y2 = ausY + bis * dy;
    return std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2);
}

} // namespace

QtFläche::~QtFläche() { Beenden(); }

bool QtFläche::Beginnen(QPaintDevice &gerät, double geräteJeCm, double pixelJeCm, const QTransform &aufGerät) {
    if (!maler_.begin(&gerät)) return false;
    maler_.setTransform(aufGerät);
    geräteJeEinheit_ = geräteJeCm / JeCm;
    pixelJeCm_ = pixelJeCm;
    maler_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    maler_.scale(geräteJeEinheit_, geräteJeEinheit_);
    füllbar_ = maler_.paintEngine()->type() == QPaintEngine::Raster;
    gerastert_ = ausrichten_ || füllbar_;
    xml_ = maler_.paintEngine()->type() == QPaintEngine::SVG;
    stift_ = füllung_ = ~std::uint64_t{0};
    schrift_ = 0;
    stifte_.clear();
    return true;
}

bool QtFläche::NeuesBlatt() {
    auto *blätter = dynamic_cast<QPagedPaintDevice *>(maler_.device());
    return blätter && blätter->newPage();
}

bool QtFläche::Beenden() { return !maler_.isActive() || maler_.end(); }

void QtFläche::Cls() { maler_.fillRect(QRectF(0, 0, ScaleWidth() * JeCm, ScaleHeight() * JeCm), Qt::white); }

bool QtFläche::Sichtbar(double links, double oben, double rechts, double unten) const {
    constexpr double Rand = 1; // no pen is wider
    return rechts >= -Rand && unten >= -Rand && links <= ScaleWidth() + Rand && oben <= ScaleHeight() + Rand;
}

/// In device units. A width is a real length: a cosmetic pen would have another one on every device. Only
/// what a picture can't show is made thicker.
double QtFläche::Strichbreite() const {
    const double breite = DrawWidth * strichmaß_ / pixelJeCm_ * JeCm * geräteJeEinheit_;
    if (!gerastert_) return breite;
    return std::max(1.0, ausrichten_ ? std::round(breite) : breite);
}

QColor QtFläche::Farbton(Farbe farbe) const {
    const Farbe f = Aufgelöst(farbe);
    const auto anteil = [f](unsigned bits) { return static_cast<int>(f >> bits & 0xFFU); };
    const QColor bunt(anteil(0), anteil(8), anteil(16));
    const int hell = qGray(bunt.rgb());
    return grau_ ? QColor(hell, hell, hell) : bunt;
}

const QPen &QtFläche::Stift(Farbe farbe) {
    const auto schlüssel = Schlüssel(farbe, DrawWidth, DrawStyle);
    const auto bekannt = stifte_.find(schlüssel);
    if (bekannt != stifte_.end()) return bekannt->second;
    QPen stift(Farbton(farbe), Strichbreite() / geräteJeEinheit_, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
    stift.setMiterLimit(SpitzesteEcke);
    if (DrawStyle == StilGepunktet) stift.setDashPattern({2, 3});
    if (DrawStyle == StilStrichpunkt) stift.setDashPattern({5, 3, 1, 3});
    if (DrawStyle != StilDurchgezogen) stift.setCapStyle(Qt::FlatCap);
    return stifte_.emplace(schlüssel, stift).first->second;
}

void QtFläche::StiftSetzen(Farbe farbe) {
    const auto schlüssel = Schlüssel(farbe, DrawWidth, DrawStyle);
    if (schlüssel == stift_) return;
    maler_.setPen(Stift(farbe));
    stift_ = schlüssel;
}

void QtFläche::FüllungSetzen() {
    const std::uint64_t schlüssel = FillStyle == Gefüllt ? Aufgelöst(FillColor) : 0xFF000000U;
    if (schlüssel == füllung_) return;
    if (FillStyle == Gefüllt) maler_.setBrush(Farbton(FillColor));
    else maler_.setBrush(Qt::NoBrush);
    füllung_ = schlüssel;
}

/// Where the stroke along a line at `gerät` (device units) begins: on a whole pixel, the nearest to its real
/// place. The small shift decides ties alike, whatever the last digits of a product are.
double QtFläche::StrichAnfang(double gerät) const {
    constexpr double Nichts = 1e-6;
    return std::floor(gerät - Strichbreite() / 2 + 0.5 + Nichts);
}

double QtFläche::StrichMitte(double einheiten) const {
    return (StrichAnfang(einheiten * geräteJeEinheit_) + Strichbreite() / 2) / geräteJeEinheit_;
}

QPointF QtFläche::StrichMitte(QPointF p) const {
    return gerastert_ ? QPointF(StrichMitte(p.x()), StrichMitte(p.y())) : p;
}

/// Edges in device units.
void QtFläche::RechteckFüllen(double links, double oben, double rechts, double unten, Farbe farbe) {
    if (rechts <= links || unten <= oben) return;
    // A thousandth of a pixel more on each side: without it rounding leaves black at 1 of 255.
    const QRectF gerät = QRectF(links, oben, rechts - links, unten - oben) + QMarginsF(0.001, 0.001, 0.001, 0.001);
    maler_.fillRect(QRectF(gerät.topLeft() / geräteJeEinheit_, gerät.size() / geräteJeEinheit_), Farbton(farbe));
}

/// What a pen with square caps would mark.
void QtFläche::AchsenlinieFüllen(QPointF von, QPointF bis, Farbe farbe) {
    const double breite = Strichbreite();
    const QRectF r = QRectF(von * geräteJeEinheit_, bis * geräteJeEinheit_).normalized();
    RechteckFüllen(StrichAnfang(r.left()), StrichAnfang(r.top()), StrichAnfang(r.right()) + breite,
                   StrichAnfang(r.bottom()) + breite, farbe);
}

void QtFläche::KastenFüllen(QPointF von, QPointF bis, Farbe farbe) {
    const double halb = Strichbreite() / 2;
    const QRectF r = QRectF(von * geräteJeEinheit_, bis * geräteJeEinheit_).normalized();
    if (FillStyle == Gefüllt)
        RechteckFüllen(StrichAnfang(r.left()) + halb, StrichAnfang(r.top()) + halb, StrichAnfang(r.right()) + halb,
                       StrichAnfang(r.bottom()) + halb, FillColor);
    const QPointF ecken[] = {von, {bis.x(), von.y()}, bis, {von.x(), bis.y()}};
    for (int i = 0; i < 4; ++i) AchsenlinieFüllen(ecken[i], ecken[(i + 1) % 4], farbe);
}

void QtFläche::Line(int flags, double x1, double y1, double x2, double y2, Farbe farbe) {
    if (!Sichtbar(std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2))) return;
    const bool kasten = (flags & Kasten) == Kasten;
    if (Fern(x1) || Fern(y1) || Fern(x2) || Fern(y2)) {
        if (std::isnan(x1 + x2) || std::isnan(y1 + y2)) return;
        if (kasten) {
            for (double *wert : {&x1, &y1, &x2, &y2}) *wert = Herangeholt(*wert);
        } else if (!Geschnitten(x1, y1, x2, y2)) return;
    }
    const QPointF von(x1 * JeCm, y1 * JeCm);
    const QPointF bis(x2 * JeCm, y2 * JeCm);
    const Farbe strich = flags & FarbeGilt ? farbe : ForeColor;
    const bool achse = x1 == x2 || y1 == y2;
    // On a picture this is ten times faster than the painter's own lines, and sharp.
    if (füllbar_ && DrawStyle == StilDurchgezogen && (kasten || achse))
        return kasten ? KastenFüllen(von, bis, strich) : AchsenlinieFüllen(von, bis, strich);
    StiftSetzen(strich);
    if (kasten) {
        FüllungSetzen();
        maler_.drawRect(QRectF(StrichMitte(von), StrichMitte(bis)).normalized());
    } else if (achse) {
        maler_.drawLine(StrichMitte(von), StrichMitte(bis));
    } else {
        maler_.drawLine(von, bis);
    }
}

void QtFläche::Linienzug(std::span<const Zeichenort> orte, Farbe farbe) {
    const auto fern = [](const Zeichenort &o) { return Fern(o.X) || Fern(o.Y); };
    if (gerastert_ || std::any_of(orte.begin(), orte.end(), fern)) return Zeichenfläche::Linienzug(orte, farbe);
    QPolygonF zug;
    for (const Zeichenort &o : orte) {
        const QPointF ort = QPointF(o.X, o.Y) * JeCm;
        if (!zug.isEmpty() && zug.last() == ort) continue;
        if (zug.size() > 1 && GehtGeradeaus(zug.end()[-2], zug.last(), ort)) zug.last() = ort;
        else zug += ort;
    }
    const QRectF r = zug.boundingRect();
    if (zug.size() < 2 || !Sichtbar(r.left() / JeCm, r.top() / JeCm, r.right() / JeCm, r.bottom() / JeCm)) return;
    QPen stift = Stift(farbe);
    stift.setJoinStyle(Qt::RoundJoin); // a hand turns sharply: mitres would be thorns
    maler_.setPen(stift);
    stift_ = ~std::uint64_t{0};
    maler_.drawPolyline(zug);
}

/// With flat ends in the middle of the outline's corners: a square end sticks out there, and so does one that isn't on
/// the outline's pixels. On a picture as shapes, for a thin line of the painter's own is darker in one direction than
/// in the other.
void QtFläche::Diagonalen(int flags, double x1, double y1, double x2, double y2, Farbe farbe) {
    if (Fern(x1) || Fern(y1) || Fern(x2) || Fern(y2)) return;
    if (!Sichtbar(std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2))) return;
    const QPointF von = StrichMitte(QPointF(x1, y1) * JeCm);
    const QPointF bis = StrichMitte(QPointF(x2, y2) * JeCm);
    const Farbe strich = flags & FarbeGilt ? farbe : ForeColor;
    const QLineF wege[] = {{von, bis}, {QPointF(von.x(), bis.y()), QPointF(bis.x(), von.y())}};
    if (gerastert_) return StreifenFüllen(wege, strich);
    QPen stift = Stift(strich);
    stift.setCapStyle(Qt::FlatCap);
    maler_.setPen(stift);
    stift_ = ~std::uint64_t{0};
    maler_.drawLines(std::data(wege), static_cast<int>(std::size(wege)));
}

/// The shape of lines with flat ends.
void QtFläche::StreifenFüllen(std::span<const QLineF> wege, Farbe farbe) {
    QPainterPath streifen;
    streifen.setFillRule(Qt::WindingFill);
    for (const QLineF &weg : wege) {
        if (!(weg.length() > 0)) continue;
        const double halb = Strichbreite() / geräteJeEinheit_ / 2 / weg.length();
        const QPointF quer(-weg.dy() * halb, weg.dx() * halb);
        streifen.addPolygon(QPolygonF({weg.p1() - quer, weg.p2() - quer, weg.p2() + quer, weg.p1() + quer}));
        streifen.closeSubpath();
    }
    maler_.fillPath(streifen, Farbton(farbe));
}

void QtFläche::Circle(int flags, double x, double y, double radius, Farbe farbe) {
    if (Fern(x) || Fern(y) || Fern(radius) || !Sichtbar(x - radius, y - radius, x + radius, y + radius)) return;
    StiftSetzen(flags & FarbeGilt ? farbe : ForeColor);
    FüllungSetzen();
    maler_.drawEllipse(QPointF(x, y) * JeCm, radius * JeCm, radius * JeCm);
}

void QtFläche::Torte(int flags, double x, double y, double radius, Farbe farbe, double von, double bis) {
    if (Fern(x) || Fern(y) || Fern(radius) || !Sichtbar(x - radius, y - radius, x + radius, y + radius)) return;
    StiftSetzen(flags & FarbeGilt ? farbe : ForeColor);
    FüllungSetzen();
    const auto sechzehntelgrad = [](double bogen) { return static_cast<int>(std::lround(bogen * 16 * 180 / Pi)); };
    const QRectF rahmen(QPointF(x - radius, y - radius) * JeCm, QSizeF(2 * radius, 2 * radius) * JeCm);
    maler_.drawPie(rahmen, sechzehntelgrad(von), sechzehntelgrad(bis - von));
}

void QtFläche::Polygon(std::span<const Bildpunkt> punkte) {
    constexpr std::size_t Höchstzahl = 9;
    std::array<QPointF, Höchstzahl> ecken;
    const std::size_t n = std::min(punkte.size(), Höchstzahl);
    StiftSetzen(ForeColor);
    FüllungSetzen();
    const auto einheiten = [&](int pixel) { return Herangeholt(pixel / pixelJeCm_) * JeCm; };
    for (std::size_t i = 0; i < n; ++i) ecken[i] = StrichMitte({einheiten(punkte[i].X), einheiten(punkte[i].Y)});
    maler_.drawPolygon(ecken.data(), static_cast<int>(n));
}

Schriftsatz &QtFläche::Satz() {
    const double nominal = FontSize / Faktor();
    const double punkte = nominal > 1 ? std::min(nominal, GrößteSchrift) : 1; // also for what is no number
    const std::string name = xml_ ? FürXml(FontName).toStdString() : FontName;
    return vorrat_.Finden({name, static_cast<int>(std::lround(punkte * JePunkt)), FontBold, FontItalic});
}

double QtFläche::TextWidth(std::string_view text) { return text.empty() ? 0 : Satz().Setzen(text).Breite / JeCm; }

double QtFläche::TextHeight() { return Satz().Höhe() / JeCm; }

/// On a picture in whole pixels: half covered ones would let specks of a line through between two names. The
/// top is rounded, not taken outwards, for right above it is the symbol's outline.
void QtFläche::TextgrundFüllen(const QRectF &grund) {
    if (!gerastert_) return maler_.fillRect(grund, Qt::white);
    const QRectF r(grund.topLeft() * geräteJeEinheit_, grund.size() * geräteJeEinheit_);
    RechteckFüllen(std::floor(r.left()), std::round(r.top()), std::ceil(r.right()), std::ceil(r.bottom()), Weiß);
}

/// Our own line: the painter misplaces that of a prepared text when it is scaled.
void QtFläche::Unterstreichen(const Schriftsatz &satz, QPointF ort, double breite) {
    const QRectF strich(ort.x(), ort.y() + satz.StrichTiefe() - satz.StrichDicke() / 2, breite, satz.StrichDicke());
    if (!gerastert_) return maler_.fillRect(strich, Farbton(ForeColor));
    const QRectF r(strich.topLeft() * geräteJeEinheit_, strich.size() * geräteJeEinheit_);
    const double oben = std::round(r.top());
    RechteckFüllen(r.left(), oben, r.right(), oben + std::max(1.0, std::round(r.height())), ForeColor);
}

void QtFläche::TextZeichnen(std::string_view text) {
    Schriftsatz &satz = Satz();
    const auto &gesetzt = satz.Setzen(text);
    const double breite = gesetzt.Breite / JeCm;
    const double höhe = satz.Höhe() / JeCm;
    if (Fern(CurrentX) || Fern(CurrentY) || !Sichtbar(CurrentX, CurrentY, CurrentX + breite, CurrentY + höhe)) return;
    const QPointF ort(CurrentX * JeCm, CurrentY * JeCm);
    if (!FontTransparent) TextgrundFüllen(QRectF(ort, QSizeF(gesetzt.Breite, satz.Höhe())));
    const auto schlüssel = Schlüssel(ForeColor, TextStift, 0);
    if (schlüssel != stift_) maler_.setPen(Farbton(ForeColor));
    stift_ = schlüssel;
    if (schrift_ != satz.Nummer()) maler_.setFont(satz.Schrift());
    schrift_ = satz.Nummer();
    maler_.drawStaticText(ort, gesetzt.Text);
    if (FontUnderline) Unterstreichen(satz, ort, gesetzt.Breite);
}

} // namespace kw
