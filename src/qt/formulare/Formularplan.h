#pragma once

#include <span>
#include <string_view>

namespace kw {

class Formular;

/// What a row of a form's plan does. What is opened takes in all that follows, until its `Ende`.
enum class Bau {
    Feld,           ///< puts a control
    Spalte,         ///< opens a column
    Reihe,          ///< opens a row
    Tafel,          ///< opens a grid
    Rahmenspalte,   ///< opens a titled frame with a column in it
    Rahmenreihe,    ///< opens a titled frame with a row in it
    Blatt,          ///< opens a column on a sheet of the page's white, which scrolls
    Ende,           ///< closes what was opened last
    Lücke,          ///< so much room, pixels
    Rest,           ///< takes the room that is left
    Spaltendehnung, ///< a share in the room that is left, for a grid's column
    Zeilendehnung,  ///< the same for a row of it
};

/// A row of a form's plan, with what is told of it behind a point: `Feld("txtAlter").An(3, 4).Mindestens(8)`.
struct Baustein {
    Bau Was;
    std::string_view Teil = {}; ///< a control's name
    int Maß = -1;               ///< pixels: a gap, the spacing of what is opened (the style's own where it is negative)
    int Zeile = 0, Spalte = 0, Zeilen = 1, Spalten = 1; ///< place in a grid; of a stretch, its row or column
    int Dehnung = 0;                                    ///< share in the room that is left
    int Breite = 0, Höhe = 0;                           ///< least size in characters and lines; 0 for what it needs
    int Höchstbreite = 0;                               ///< in characters; 0 for any
    double Schriftgrad = 1;                             ///< of its letters, times the usual size
    std::string_view Box = {};                          ///< of a label: its box, where its mnemonic leads
    std::string_view Erklärung = {};                    ///< the control whose caption is read out with it
    bool Mittig = false;
    bool Haltend = false;    ///< its room stays free while it is hidden, so that nothing else moves
    bool Eingerückt = false; ///< below an option's caption
    bool Absatz = false;     ///< a text of several lines

    constexpr Baustein An(int zeile, int spalte, int zeilen = 1, int spalten = 1) const {
        Baustein b = *this;
        b.Zeile = zeile, b.Spalte = spalte, b.Zeilen = zeilen, b.Spalten = spalten;
        return b;
    }
    constexpr Baustein Gedehnt(int anteil = 1) const { return Mit(&Baustein::Dehnung, anteil); }
    constexpr Baustein Mindestens(int zeichen, int zeilen = 0) const {
        return Mit(&Baustein::Breite, zeichen).Mit(&Baustein::Höhe, zeilen);
    }
    constexpr Baustein Höchstens(int zeichen) const { return Mit(&Baustein::Höchstbreite, zeichen); }
    constexpr Baustein InSchriftgrad(double grad) const { return Mit(&Baustein::Schriftgrad, grad); }
    constexpr Baustein ErklärtVon(std::string_view teil) const { return Mit(&Baustein::Erklärung, teil); }
    constexpr Baustein InDerMitte() const { return Mit(&Baustein::Mittig, true); }
    constexpr Baustein Platzhaltend() const { return Mit(&Baustein::Haltend, true); }
    constexpr Baustein UnterOption() const { return Mit(&Baustein::Eingerückt, true); }
    constexpr Baustein AlsAbsatz(int zeichen) const { return Mindestens(zeichen).Mit(&Baustein::Absatz, true); }
    constexpr Baustein Mit(int Baustein::*feld, int wert) const {
        Baustein b = *this;
        b.*feld = wert;
        return b;
    }
    constexpr Baustein Mit(double Baustein::*feld, double wert) const {
        Baustein b = *this;
        b.*feld = wert;
        return b;
    }
    constexpr Baustein Mit(bool Baustein::*feld, bool wert) const {
        Baustein b = *this;
        b.*feld = wert;
        return b;
    }
    constexpr Baustein Mit(std::string_view Baustein::*feld, std::string_view wert) const {
        Baustein b = *this;
        b.*feld = wert;
        return b;
    }
};

/// How a form is laid out: what stands in the column that the buttons' row ends.
struct Formularplan {
    std::string_view Form;
    std::span<const Baustein> Bausteine;
    bool Ziehbar = false;          ///< can be resized
    std::string_view Gesicht = {}; ///< counts only while this control shows
};

constexpr int Formularabstand = 18; ///< between the parts of a form, pixels
constexpr int Zeilenabstand = 8;

/// The plan of a form that is loaded, or nothing.
const Formularplan *PlanFür(const Formular &form);

} // namespace kw
