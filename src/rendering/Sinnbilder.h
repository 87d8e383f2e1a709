#pragma once

#include "document/Dokument.h"
#include "document/Importdaten.h"
#include "platform/Uhr.h"
#include "rendering/Zeichenflaeche.h"

// What the palette's icons show: tiny diagrams, drawn by the same layers as the page, so that a tool looks like
// what it makes.
namespace kw {

struct Sinnbild {
    Dokument dokument;
    double Kante = 0; ///< cm; width and height of the cutout, which begins at (0, 0)
};

/// The icon of the palette's tool `nummer`, 1 to 20; without anything on it for other numbers.
Sinnbild WerkzeugSinnbild(int nummer);

/// What the panel of the selected person tells, in its order.
enum class Merkmal { IndexPerson, Verstorben, Sucht, Erkrankung };
constexpr int MerkmalAnzahl = 4;
/// A person with that one mark.
Sinnbild MerkmalSinnbild(Merkmal merkmal);

/// A person of the import list: only what tells its rows apart at a glance, crossed when deceased and doubled for the
/// index person. Without anything on it when the list gives another sex than "M" and "W".
Sinnbild ImportSinnbild(const Importperson &person);

/// Draws it in colour on a surface whose scale is set and whose user units are the cutout's centimetres.
void SinnbildZeichnen(Zeichenfläche &fläche, const Sinnbild &bild, const Uhr &uhr);

} // namespace kw
