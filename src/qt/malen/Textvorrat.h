#pragma once

#include <QFont>
#include <QStaticText>

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kw {

/// A font as the surface's properties name it.
struct Schriftwunsch {
    std::string Name;
    int Größe = 0; ///< 1/1200 inch
    bool Fett = false;
    bool Kursiv = false;
    auto operator<=>(const Schriftwunsch &) const = default;
};

/// One font with the texts that were set in it. Everything is measured in units of 1/1200 inch in which the
/// font has a whole number of pixels, and unhinted: only so is a text equally wide at every zoom and on
/// paper (point sizes are rounded to device pixels otherwise, by up to 4 %).
class Schriftsatz {
  public:
    Schriftsatz(const Schriftwunsch &wunsch, int nummer);

    struct Gesetzt {
        QStaticText Text;
        double Breite;
    };
    const Gesetzt &Setzen(std::string_view utf8);
    const QFont &Schrift() const { return schrift_; }
    int Nummer() const { return nummer_; } ///< from 1; no other font of the store ever has it
    double Höhe() const { return höhe_; }  ///< ascent and descent
    /// The line under a text: its middle below the text's top, and its thickness.
    double StrichTiefe() const { return strichTiefe_; }
    double StrichDicke() const { return strichDicke_; }

  private:
    struct Streuung : std::hash<std::string_view> {
        using is_transparent = void;
    };
    QFont schrift_;
    int nummer_;
    double höhe_;
    double strichTiefe_;
    double strichDicke_;
    std::size_t zeichen_ = 0; ///< bytes of all texts
    std::unordered_map<std::string, Gesetzt, Streuung, std::equal_to<>> texte_;
};

/// The fonts and texts of a surface, kept from redraw to redraw.
class Textvorrat {
  public:
    Schriftsatz &Finden(const Schriftwunsch &wunsch);

  private:
    std::map<Schriftwunsch, Schriftsatz> sätze_;
    int nummern_ = 0;
    Schriftwunsch letzter_; ///< most calls ask for the same again
    Schriftsatz *satz_ = nullptr;
};

} // namespace kw
