#include "document/Nachschlagen.h"
#include "document/saetze/Pfeil.h"
#include "rendering/Ebenen.h"

#include <array>
#include <cmath>
#include <unordered_set>

namespace kw {

namespace {

constexpr double PfeilPi = 3.14159265; ///< as precise as the arrow's directions have always been
constexpr double Widerhaken = 0.16;    ///< length of the head's barbs, cm
constexpr int Füllschritte = 100;
constexpr double GriffHälfte = 0.08;

/// Setback of the head's base along the shaft, as a share of the shaft, by the arrow's rounded length
/// (cm): a short arrow doesn't end in an oversized head.
constexpr std::array<double, 29> Rücksprung{0,     0.2,  0.12,  0.072, 0.05,   0.034, 0.028, 0.028,  0.028, 0.024,
                                            0.024, 0.02, 0.017, 0.017, 0.015,  0.014, 0.013, 0.0124, 0.012, 0.011,
                                            0.01,  0.01, 0.01,  0.01,  0.0095, 0.009, 0.008, 0.008,  0.008};

struct Pfeil {
    double x1, y1, x2, y2;
    Pfeil Umgekehrt() const { return {x2, y2, x1, y1}; }
};

double Richtung(const Pfeil &p) {
    const double dx = p.x2 - p.x1;
    const double dy = p.y2 - p.y1;
    if (dx == 0) return dy >= 0 ? PfeilPi / 2 : 3 * PfeilPi / 2;
    return std::atan(dy / dx) + (dx < 0 ? PfeilPi : 0);
}

/// The filled head at the second end. A length outside the table leaves the setback `w` as the head
/// before left it.
void SpitzeZeichnen(Zeichenfläche &f, const Pfeil &p, Farbe farbe, double &w) {
    const double länge = Gerundet(std::hypot(p.x2 - p.x1, p.y2 - p.y1), 0);
    if (länge >= 1 && länge < static_cast<double>(Rücksprung.size())) w = Rücksprung[static_cast<size_t>(länge)];
    const double fußX = (1 - w) * p.x2 + w * p.x1;
    const double fußY = (1 - w) * p.y2 + w * p.y1;
    const double a1 = Richtung(p) - 3 * PfeilPi / 4;
    const double a2 = a1 - PfeilPi / 2;
    const double bx = fußX + Widerhaken * std::cos(a1);
    const double by = fußY + Widerhaken * std::sin(a1);
    const double cx = fußX + Widerhaken * std::cos(a2);
    const double cy = fußY + Widerhaken * std::sin(a2);
    f.Line(LinieFarbig, p.x2, p.y2, bx, by, farbe);
    f.Line(LinieFarbig, p.x2, p.y2, cx, cy, farbe);
    for (int i = 0; i <= Füllschritte; ++i) {
        const double t = static_cast<double>(i) / Füllschritte;
        f.Line(LinieFarbig, (1 - t) * cx + t * bx, (1 - t) * cy + t * by, p.x2, p.y2, farbe);
    }
}

void GriffeZeichnen(Zeichenfläche &f, const Pfeil &p) {
    f.ForeColor = Rot;
    f.FillStyle = Durchsichtig;
    for (const auto &[x, y] : {std::pair(p.x1, p.y1), std::pair(p.x2, p.y2)})
        f.Line(Kasten, x - GriffHälfte, y - GriffHälfte, x + GriffHälfte, y + GriffHälfte);
    f.ForeColor = Hellgrau;
}

} // namespace

Pfeilbefund PfeilEbene(Zeichenfläche &f, const Zeichnung &z) {
    f.Ebene("pfeile");
    Pfeilbefund befund;
    const Farbe farbe = befund.Pfeilfarbe = PfeilfarbeFür(z.ansicht.Farbschema);
    std::unordered_set<int> gewählt;
    if (!z.Druck) {
        befund.Markiert = false;
        gewählt = PositionenAus(z.auswahl.lstMovedPfeile, z.dokument.cboPfeile, 0);
    }
    double w = 0;
    for (int i = 0; i < z.dokument.cboPfeile.Anzahl(); ++i) {
        const PfeilSatz satz(z.dokument.cboPfeile.Satz(i));
        if (!satz.Vollständig()) continue;
        const Pfeil p{satz.X1(), satz.Y1(), satz.X2(), satz.Y2()};
        f.ForeColor = farbe;
        f.DrawWidth = z.Strichbreite();
        f.Line(LinieFarbig, p.x1, p.y1, p.x2, p.y2, farbe);
        SpitzeZeichnen(f, p, farbe, w);
        if (satz.Pfeilart() == "2") SpitzeZeichnen(f, p.Umgekehrt(), farbe, w);
        if (!gewählt.contains(i)) continue;
        GriffeZeichnen(f, p);
        befund.Markiert = true;
    }
    return befund;
}

} // namespace kw
