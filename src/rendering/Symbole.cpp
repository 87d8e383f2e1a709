#include "rendering/Symbole.h"

#include "document/Zahlen.h"

#include <algorithm>

namespace kw {

namespace {

constexpr int FehlgeburtGrau = 0x808080;

} // namespace

std::array<Ecke, 3> Dreieck(double x, double y, double größe) {
    const double r = größe / 2;
    return {{{x - r, y + r}, {x + r, y + r}, {x, y - r}}};
}

std::array<Ecke, 6> Sechseck(double x, double y, double größe) {
    const double w1 = größe / 1.731 / 2;
    const double w2 = größe * 1.155 / 2;
    const double oben = y - größe / 2;
    const double b = y + größe / 2;
    return {{{x - w1, oben}, {x + w1, oben}, {x + w2, y}, {x + w1, b}, {x - w1, b}, {x - w2, y}}};
}

const std::array<Symbol::Routine, 13> Symbol::Routinen{nullptr,
                                                       &Symbol::Männlich,
                                                       &Symbol::Weiblich,
                                                       &Symbol::Schwangerschaft,
                                                       &Symbol::Fehlgeburt,
                                                       &Symbol::TotgeburtMännlich,
                                                       &Symbol::TotgeburtWeiblich,
                                                       &Symbol::Abtreibung,
                                                       nullptr,
                                                       &Symbol::Institution,
                                                       &Symbol::WeiblichZuMännlich,
                                                       &Symbol::MännlichZuWeiblich,
                                                       &Symbol::Divers};

Symbol::Symbol(Zeichenfläche &fläche, const Ort &ort, double pixelJeCm, int strichFaktor, int farbschema)
    : f(fläche), links(ort.links), oben(ort.oben), rechts(ort.links + ort.größe), unten(ort.oben + ort.größe),
      mx(ort.links + ort.größe / 2), my(ort.oben + ort.größe / 2), X(ort.x), Y(ort.y), r(ort.größe / 2), g(ort.größe),
      einzugKreis(r - r * 0.7), k(pixelJeCm), strichFaktor_(strichFaktor), farbschema_(farbschema) {}

void Symbol::Zeichnen(int kennzahl, const Marken &marken, const Hervorhebung &hervorhebung) {
    const Routine routine = kennzahl >= 0 && kennzahl < static_cast<int>(Routinen.size())
                                ? Routinen[static_cast<size_t>(kennzahl)]
                                : nullptr;
    if (!routine) return;
    marken_ = marken;
    hervorhebung_ = hervorhebung;
    f.ForeColor = Schwarz;
    f.FillStyle = Gefüllt;
    f.DrawWidth = strichFaktor_;
    (this->*routine)();
}

// The kinds.

void Symbol::Männlich() {
    Quadrat();
    ZielZeigen([&] { Quadrat(); });
    HalbmarkenQuadrat();
    DoppelrandQuadrat();
    if (marken_.IndexPerson == "21") Zickzack();
    if (marken_.Verstorben) Kreuz(0);
    Quadrat(); // transparent by now: renews the outline over the marks
    AuswahlZeigen([&] { RotesQuadrat(); });
}

void Symbol::Weiblich() {
    Kreis();
    ZielZeigen([&] { Kreis(); });
    HalbmarkenKreis();
    DoppelrandKreis();
    if (marken_.Verstorben) Kreuz(einzugKreis);
    f.FillStyle = Durchsichtig;
    Kreis();
    AuswahlZeigen([&] { RoterKreis(); });
}

void Symbol::Schwangerschaft() {
    const std::array<Ecke, 3> dreieck{{{links, unten}, {rechts, unten}, {mx, oben}}};
    Vieleck(dreieck);
    AuswahlZeigen([&] { Kanten(dreieck); });
}

void Symbol::Fehlgeburt() {
    f.FillColor = farbschema_ > SchemaSchwarzWeiß ? FehlgeburtGrau : Schwarz;
    f.Circle(FarbeGilt, mx, my, r, Schwarz);
    AuswahlZeigen([&] {
        f.FillStyle = Durchsichtig;
        RoterKreis();
    });
}

void Symbol::TotgeburtMännlich() {
    Quadrat();
    Kreuz(0);
    AuswahlZeigen([&] {
        RotesQuadrat();
        RotesKreuz(0);
    });
}

void Symbol::TotgeburtWeiblich() {
    Kreis();
    Kreuz(einzugKreis);
    AuswahlZeigen([&] {
        RoterKreis();
        RotesKreuz(einzugKreis);
    });
}

void Symbol::Abtreibung() {
    const std::array<Ecke, 3> dreieck{{{links, unten}, {rechts, unten}, {mx, oben}}};
    Vieleck(dreieck);
    Kreuz(0);
    AuswahlZeigen([&] {
        Kanten(dreieck);
        RotesKreuz(0);
    });
}

void Symbol::Institution() {
    f.FillColor = f.ForeColor = MarkenGrau;
    const std::array<Ecke, 5> haus{{{links, my}, {mx, oben}, {rechts, my}, {rechts, unten}, {links, unten}}};
    Vieleck(haus);
    AuswahlZeigen([&] { Kanten(haus); });
}

void Symbol::WeiblichZuMännlich() {
    Quadrat();
    ZielZeigen([&] { Quadrat(); });
    HalbmarkenQuadrat();
    f.FillStyle = Durchsichtig;
    f.Circle(0, mx, my, g / 2.3);
    DoppelrandQuadrat();
    if (marken_.Verstorben) Kreuz(0);
    Quadrat();
    AuswahlZeigen([&] { RotesQuadrat(); });
}

void Symbol::MännlichZuWeiblich() {
    Kreis();
    ZielZeigen([&] { Kreis(); });
    HalbmarkenKreis();
    f.FillStyle = Durchsichtig;
    const double e = g / 5.5;
    f.Line(Kasten, links + e, oben + e, rechts - e, unten - e);
    DoppelrandKreis();
    if (marken_.Verstorben) Kreuz(einzugKreis);
    f.FillStyle = Durchsichtig;
    Kreis();
    AuswahlZeigen([&] { RoterKreis(); });
}

/// A hexagon about (X, Y). The small constants of the inner one let it clear the outer one after the
/// rounding to pixels; they stand as they are.
void Symbol::Divers() {
    const double w1 = g / 1.731 / 2;
    const double w2 = g * 1.155 / 2;
    const double b = Y + g / 2;
    std::array<Ecke, 6> sechseck = Sechseck(X, Y, g);
    sechseck[0][1] = sechseck[1][1] = oben; // rounded, as of every symbol
    Vieleck(sechseck);
    if (marken_.Sucht) {
        f.FillColor = f.ForeColor = MarkenGrau;
        Vieleck(std::span(sechseck).last(4));
    }
    if (marken_.Erkrankung) {
        f.FillColor = f.ForeColor = MarkenGrau;
        Vieleck(std::array<Ecke, 5>{{{X - w2, Y}, {X - w1, oben}, {X, oben}, {X, b}, {X - w1, b}}});
    }
    f.ForeColor = Schwarz;
    if (marken_.IndexPerson == "1") {
        f.FillStyle = Durchsichtig;
        const double d = g / 18;
        const double linksInnen = X - w1 + d - 0.01;
        Vieleck(std::array<Ecke, 6>{{{linksInnen, oben + d},
                                     {X + w1 - d + 0.01, oben + d},
                                     {X + w2 - d - 0.018, Y},
                                     {X + w1 - d + 0.01, b - d},
                                     {linksInnen, b - d},
                                     {X - w2 + d + 0.016, Y}}});
    }
    if (marken_.Verstorben) Kreuz(0.1666); // a fixed inset, whatever the size
    AuswahlZeigen([&] { Kanten(sechseck); });
}

// Their pieces.

void Symbol::Quadrat() { f.Line(Kasten, links, oben, rechts, unten); }

void Symbol::Kreis() { f.Circle(0, mx, my, r); }

void Symbol::Kreuz(double e) { f.Diagonalen(Linie, links + e, oben + e, rechts - e, unten - e); }

void Symbol::HalbmarkenQuadrat() {
    if (marken_.Sucht) {
        f.FillColor = f.ForeColor = MarkenGrau;
        f.Line(Kasten, links, my, rechts, unten);
    }
    if (marken_.Erkrankung) {
        f.FillColor = f.ForeColor = MarkenGrau;
        f.Line(Kasten, links, oben, mx, unten);
    }
    f.ForeColor = Schwarz;
    f.FillStyle = Durchsichtig;
}

void Symbol::HalbmarkenKreis() {
    if (marken_.Sucht) {
        f.FillColor = MarkenGrau;
        f.Torte(FarbeGilt, mx, my, r, MarkenGrau, Pi, 2 * Pi);
    }
    if (marken_.Erkrankung) {
        f.FillColor = MarkenGrau;
        f.Torte(FarbeGilt, mx, my, r, MarkenGrau, Pi / 2, 3 * Pi / 2);
    }
}

void Symbol::DoppelrandQuadrat() {
    if (marken_.IndexPerson != "1") return;
    const double d = g / 20;
    f.Line(Kasten, links + d + 0.001, oben + d + 0.001, rechts - d, unten - d);
}

/// The 0.1 is a fixed length, no share of the size. Meant.
void Symbol::DoppelrandKreis() {
    if (marken_.IndexPerson != "1") return;
    f.FillStyle = Durchsichtig;
    f.Circle(0, mx, my, r - 0.1);
}

/// No command writes this mark, but a record that holds it shows it.
void Symbol::Zickzack() {
    for (const double y : {Y - 1, Y - 1.1}) {
        f.Line(Linie, X - 0.5, y, X - 0.25, y + 0.25);
        f.Line(Linie, X - 0.25, y + 0.25, X + 0.25, y - 0.25);
        f.Line(Linie, X + 0.25, y - 0.25, X + 0.5, y);
    }
}

/// Drawn with the fill still in force.
template <typename Umriss> void Symbol::ZielZeigen(Umriss umriss) {
    if (!hervorhebung_.Ziel) return;
    f.ForeColor = ZielFarbe;
    umriss();
    f.ForeColor = Schwarz;
}

template <typename Umriss> void Symbol::AuswahlZeigen(Umriss umriss) {
    if (hervorhebung_.Druck) return;
    f.DrawWidth = 2;
    for (int i = 0; i < hervorhebung_.Gewählt; ++i) umriss();
    f.DrawWidth = 1;
}

void Symbol::Vieleck(std::span<const Ecke> ecken) {
    constexpr double Grenze = 1e9; // of a whole number; only damaged records come near it
    const auto pixel = [&](double cm) { return static_cast<int>(std::clamp(Gerundet(cm * k, 0), -Grenze, Grenze)); };
    std::array<Bildpunkt, 9> punkte;
    for (size_t i = 0; i < ecken.size(); ++i) punkte[i] = {pixel(ecken[i][0]), pixel(ecken[i][1])};
    f.Polygon(std::span(punkte).first(ecken.size()));
}

void Symbol::Kanten(std::span<const Ecke> ecken) {
    for (size_t i = 0; i < ecken.size(); ++i) {
        const Ecke &von = ecken[i];
        const Ecke &bis = ecken[(i + 1) % ecken.size()];
        f.Line(LinieFarbig, von[0], von[1], bis[0], bis[1], Rot);
    }
}

void Symbol::RotesQuadrat() { f.Line(KastenFarbig, links, oben, rechts, unten, Rot); }

void Symbol::RoterKreis() { f.Circle(FarbeGilt, mx, my, r, Rot); }

void Symbol::RotesKreuz(double e) { f.Diagonalen(LinieFarbig, links + e, oben + e, rechts - e, unten - e, Rot); }

} // namespace kw
