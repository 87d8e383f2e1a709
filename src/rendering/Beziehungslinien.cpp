#include "document/saetze/Beziehung.h"
#include "rendering/Ebenen.h"

#include <cmath>

namespace kw {

namespace {

constexpr double Parallelabstand = 0.1;
constexpr double Strichperiode = 0.35;
constexpr double Lücke = 0.2; ///< of a cutoff, and half the length of its bars
constexpr double Zackenperiode = 0.4;
constexpr double Zackenhöhe = 0.2;
constexpr int HöchstSchritte = 32767; ///< counters are 16 bits; longer lines are damage and draw no further

struct Strecke {
    double x1, y1, x2, y2;
    double Länge() const { return std::sqrt((y1 - y2) * (y1 - y2) + (x2 - x1) * (x2 - x1)); }
};

struct Vektor {
    double X, Y;
};

/// At right angles to the line, 0.1 long. The 0.001 keeps the length above zero when the ends coincide.
Vektor Querversatz(const Strecke &s) {
    const double a = s.y1 - (s.y2 - 0.001);
    const double b = s.x2 - (s.x1 - 0.001);
    const double k = std::sqrt(a * a + b * b) / Parallelabstand;
    return {a / k, b / k};
}

void Eng(Zeichenfläche &f, const Strecke &s, Farbe farbe) {
    const auto [ox, oy] = Querversatz(s);
    f.Line(LinieFarbig, s.x1 - ox, s.y1 - oy, s.x2 - ox, s.y2 - oy, farbe);
    f.Line(LinieFarbig, s.x1 + ox, s.y1 + oy, s.x2 + ox, s.y2 + oy, farbe);
}

/// Two lines only, the second on the minus side alone: the asymmetry is meant.
void Verschmolzen(Zeichenfläche &f, const Strecke &s, Farbe farbe) {
    f.ForeColor = farbe;
    const auto [ox, oy] = Querversatz(s);
    f.Line(Linie, s.x1, s.y1, s.x2, s.y2);
    f.Line(Linie, s.x1 - ox, s.y1 - oy, s.x2 - ox, s.y2 - oy);
}

void Distanziert(Zeichenfläche &f, const Strecke &s, Farbe farbe) {
    const double perioden = Gerundet(s.Länge() / Strichperiode, 0);
    if (!(perioden < HöchstSchritte)) return;
    const int n = static_cast<int>(perioden);
    const double sx = (s.x2 - s.x1) / (n + 1);
    const double sy = (s.y1 - s.y2) / (n + 1);
    for (int i = 0; i <= n; ++i) {
        const double x = s.x1 + i * sx;
        const double y = s.y1 - i * sy;
        f.Line(LinieFarbig, x, y, x + sx / 2, y - sy / 2, farbe);
    }
}

void AbbruchWaagrecht(Zeichenfläche &f, const Strecke &s, Farbe farbe) {
    const double h = (s.x2 > s.x1 ? s.x2 - s.x1 - Lücke : s.x2 - s.x1 + Lücke) / 2;
    f.Line(LinieFarbig, s.x1, s.y1, s.x1 + h, s.y2, farbe);
    f.Line(LinieFarbig, s.x2 - h, s.y1, s.x2, s.y2, farbe);
    f.Line(LinieFarbig, s.x1 + h, s.y1 - Lücke, s.x1 + h, s.y1 + Lücke, farbe);
    f.Line(LinieFarbig, s.x2 - h, s.y1 - Lücke, s.x2 - h, s.y1 + Lücke, farbe);
}

/// A line under 0.2 long has a negative half: its two halves overlap.
void Abbruch(Zeichenfläche &f, const Strecke &s, Farbe farbe) {
    if (s.y1 == s.y2) return AbbruchWaagrecht(f, s, farbe);
    const double a = s.y1 - s.y2;
    const double b = s.x2 - s.x1;
    const double länge = s.Länge();
    const double hälfte = (länge - Lücke) / 2;
    const double p = a * hälfte / länge;
    const double q = b * hälfte / länge;
    f.Line(LinieFarbig, s.x1, s.y1, s.x1 + q, s.y1 - p, farbe);
    f.Line(LinieFarbig, s.x2 - q, s.y2 + p, s.x2, s.y2, farbe);
    const double u = a * Lücke / länge;
    const double v = b * Lücke / länge;
    f.Line(LinieFarbig, s.x1 + q - u, s.y1 - p - v, s.x1 + q + u, s.y1 - p + v, farbe);
    f.Line(LinieFarbig, s.x2 - q - u, s.y2 + p - v, s.x2 - q + u, s.y2 + p + v, farbe);
}

/// The last period isn't cut: the zig-zag overshoots the far end by up to one.
void Konflikt(Zeichenfläche &f, const Strecke &s, Farbe farbe) {
    const double a = s.x2 - s.x1;
    const double b = s.y1 - s.y2;
    const double länge = s.Länge();
    if (!(länge > 0)) return;
    const double c = länge / Zackenperiode;
    const double px = a / c;
    const double py = b / c;
    const double e = länge / Zackenhöhe;
    const double wx = a / e;
    const double wy = b / e;
    const double letzte = OhneRauschen(c + c - 1);
    for (int i = 1; i <= letzte && i <= HöchstSchritte; i += 2) {
        const double x = s.x1 + (i - 1) * px / 2 - wy;
        const double y = s.y1 - (i - 1) * py / 2 - wx;
        const double spitzeX = s.x1 + i * px / 2 + wy;
        const double spitzeY = s.y1 - i * py / 2 + wx;
        f.Line(LinieFarbig, x, y, spitzeX, spitzeY, farbe);
        f.Line(LinieFarbig, spitzeX, spitzeY, x + px, y - py, farbe);
    }
}

/// Base style and conflict mark by kind; ' ' is no base style.
struct Stil {
    char Basis;
    bool Konflikt;
};
constexpr Stil Stile[] = {{'0', false}, {'1', false}, {'2', false}, {'3', false},
                          {'4', false}, {' ', true},  {'1', true},  {'2', true}};

} // namespace

void BeziehungZeichnen(Zeichenfläche &f, const ElementFarben &farben, std::string_view art, char &basis, double x1,
                       double y1, double x2, double y2) {
    const Strecke s{x1, y1, x2, y2};
    bool konflikt = false;
    if (art.size() == 1 && art[0] >= '0' && art[0] <= '7') {
        const Stil &stil = Stile[art[0] - '0'];
        basis = stil.Basis;
        konflikt = stil.Konflikt;
    }
    switch (basis) {
    case '0': f.Line(LinieFarbig, x1, y1, x2, y2, farben[EngeFarbe]); break;
    case '1': Eng(f, s, farben[EngeFarbe]); break;
    case '2': Verschmolzen(f, s, farben[EngeFarbe]); break;
    case '3': Distanziert(f, s, farben[EngeFarbe]); break;
    case '4': Abbruch(f, s, farben[KonfliktFarbe]); break;
    default: break;
    }
    if (konflikt) Konflikt(f, s, farben[KonfliktFarbe]);
}

void BeziehungslinienZeichnen(Zeichenfläche &f, const Zeichnung &z) {
    char basis = ' ';
    for (const auto &text : z.dokument.cboBeziehungsLinien) {
        const BeziehungSatz satz(text);
        if (!satz.HatLinie()) continue;
        BeziehungZeichnen(f, z.ansicht.Linienfarben, satz.Beziehungsart(), basis, satz.LinieX1(), satz.LinieY1(),
                          satz.LinieX2(), satz.LinieY2());
    }
}

} // namespace kw
