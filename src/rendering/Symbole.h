#pragma once

#include "rendering/Zeichenflaeche.h"

#include <array>
#include <span>
#include <string_view>

namespace kw {

/// A corner of an outline: x, y.
using Ecke = std::array<double, 2>;
/// The outlines that are no box and no circle, round the centre (x, y): pregnancy and abortion, and the hexagon
/// with its level edges first and fourth.
std::array<Ecke, 3> Dreieck(double x, double y, double größe);
std::array<Ecke, 6> Sechseck(double x, double y, double größe);

/// What a person's symbol shows.
struct Marken {
    std::string_view IndexPerson = "0"; ///< "1"; and "21", which only records from elsewhere hold
    bool Verstorben = false;
    bool Sucht = false;
    bool Erkrankung = false;
};

/// Draws person symbols. One object draws one symbol at one place; lengths are centimetres of paper.
class Symbol {
  public:
    /// `links`, `oben`: top left corner; `x`, `y`: centre; `größe`: width and height.
    struct Ort {
        double links, oben, x, y, größe;
    };
    /// What an outline is drawn for a second time.
    struct Hervorhebung {
        bool Ziel = false; ///< target of a link gesture
        int Gewählt = 0;   ///< how often the person is selected
        bool Druck = false;
    };

    Symbol(Zeichenfläche &fläche, const Ort &ort, double pixelJeCm, int strichFaktor, int farbschema);

    /// Draws kind `kennzahl`; one without a symbol draws nothing. `FillColor` must be the symbol's.
    void Zeichnen(int kennzahl, const Marken &marken, const Hervorhebung &hervorhebung);

  private:
    using Routine = void (Symbol::*)();
    static const std::array<Routine, 13> Routinen;

    void Männlich();
    void Weiblich();
    void Schwangerschaft();
    void Fehlgeburt();
    void TotgeburtMännlich();
    void TotgeburtWeiblich();
    void Abtreibung();
    void Institution();
    void WeiblichZuMännlich();
    void MännlichZuWeiblich();
    void Divers();

    void Quadrat();
    void Kreis();
    void Kreuz(double einzug);
    void HalbmarkenQuadrat();
    void HalbmarkenKreis();
    void DoppelrandQuadrat();
    void DoppelrandKreis();
    void Zickzack();
    template <typename Umriss> void ZielZeigen(Umriss umriss);
    template <typename Umriss> void AuswahlZeigen(Umriss umriss);
    void Vieleck(std::span<const std::array<double, 2>> ecken);
    void Kanten(std::span<const std::array<double, 2>> ecken);
    void RotesQuadrat();
    void RoterKreis();
    void RotesKreuz(double einzug);

    Zeichenfläche &f;
    double links, oben, rechts, unten, mx, my, X, Y, r, g;
    double einzugKreis; ///< inset of the cross in round symbols
    double k;           ///< pixels per centimetre, for polygons
    int strichFaktor_;
    int farbschema_;
    Marken marken_;
    Hervorhebung hervorhebung_;
};

} // namespace kw
