#include "dialogs/Personenbild.h"

namespace kw {

namespace {

constexpr double Größe = 1.2; ///< the preview's scale: a symbol of this size, whatever the record says
constexpr double Breite = 128 / BildschirmPixelJeCm;
constexpr double Höhe = 144 / BildschirmPixelJeCm;
constexpr double MitteX = Breite / 2;
constexpr double MitteY = Höhe / 3;

// The two symbols that are known by their pixels: a small pregnancy about the person's place, and a house.
constexpr double SchwangerschaftGröße = 24 / BildschirmPixelJeCm;
constexpr double HausGröße = 48 / BildschirmPixelJeCm;
constexpr double HausX = 110 / BildschirmPixelJeCm;
constexpr double HausY = 38 / BildschirmPixelJeCm;
/// The name of an institution is centred here, a trifle right of its house. Meant.
constexpr double InstitutionMitte = 1660 / TwipsJeCm;

constexpr double NamenAbstand = 0.03; ///< below the symbol
constexpr double ZeilenAbstand = 0.32;

void Zeichnen(Zeichenfläche &f, int kennzahl, double x, double y, double größe, const Marken &marken, int schema) {
    f.DrawStyle = StilDurchgezogen;
    f.FillColor = SymbolFüllfarbe(schema);
    Symbol symbol(f, {x - größe / 2, y - größe / 2, x, y, größe}, BildschirmPixelJeCm * f.Faktor(), 1, schema);
    symbol.Zeichnen(kennzahl, marken, {});
}

} // namespace

std::pair<double, double> PersonenbildGröße() { return {Breite, Höhe}; }

std::pair<double, double> InstitutionsbildGröße() { return {2 * InstitutionMitte, 3 * HausY}; }

void PersonenbildZeichnen(Zeichenfläche &f, int kennzahl, const Marken &marken, int farbschema) {
    constexpr int Schwangerschaft = 3;
    const double größe = kennzahl == Schwangerschaft ? SchwangerschaftGröße : Größe;
    Zeichnen(f, kennzahl, MitteX, MitteY, größe, marken, farbschema);
}

void InstitutionsbildZeichnen(Zeichenfläche &f) {
    constexpr int Institution = 9;
    Zeichnen(f, Institution, HausX, HausY, HausGröße, {}, SchemaSchwarzWeiß);
}

Bildzeilen BildzeilenFür(int altersanzeige, bool verstorben) {
    constexpr double Vorname = MitteY + Größe / 2 + NamenAbstand;
    Bildzeilen zeilen{.Vorname = Vorname, .Nachname = Vorname + ZeilenAbstand, .Gestorben = MitteY + 0.04};
    if (verstorben) {
        zeilen.GebDat = MitteY - 0.32;
    } else if (altersanzeige == 0) {
        zeilen.Alter = MitteY - 0.2;
    } else if (altersanzeige == 1) {
        zeilen.GebDat = MitteY - 0.15;
    } else if (altersanzeige == 2) {
        zeilen.Alter = MitteY - 0.36;
        zeilen.GebDat = MitteY + 0.09;
    }
    return zeilen;
}

double InstitutionZeile() { return HausY + HausGröße / 2 + NamenAbstand; }

} // namespace kw
