#pragma once

#include "rendering/Symbole.h"

#include <utility>

// The pictures of the person form. They have a fixed size of their own, whatever the size of the person on the page;
// one unit is one centimetre at zoom 100 %.
namespace kw {

/// Width and height of a person's picture, and of an institution's.
std::pair<double, double> PersonenbildGröße();
std::pair<double, double> InstitutionsbildGröße();

/// Draws the symbol of `kennzahl` with its marks; one without a symbol draws nothing.
void PersonenbildZeichnen(Zeichenfläche &fläche, int kennzahl, const Marken &marken, int farbschema);
void InstitutionsbildZeichnen(Zeichenfläche &fläche);

/// Where the labels of a person's picture begin.
struct Bildzeilen {
    static constexpr double Nirgends = -1; ///< not shown

    double Vorname, Nachname;
    double Alter = Nirgends;
    double GebDat = Nirgends;
    double Gestorben; ///< shown when deceased
};
Bildzeilen BildzeilenFür(int altersanzeige, bool verstorben);
/// Where the name of an institution begins.
double InstitutionZeile();

} // namespace kw
