#pragma once

#include "document/Auswahlliste.h"
#include "replay/Variable.h"

#include <functional>
#include <map>
#include <string>

namespace kw {

class Arbeitsbereich;
class Benutzer;
struct Auflagen;
struct Einblick;
struct Leinwandlage;

/// Everything of a main window that scripts can name. It looks where the start has left things, and must not outlive
/// what `h` looks into.
struct Namen {
    std::map<std::string, Variable> Variablen;
    std::map<std::string, Satzliste *> Listen;
    std::map<std::string, std::function<std::string()>> Formen; ///< where a shape stands: its four numbers
    std::map<std::string, std::function<bool()>> Sichtbar;      ///< every shape; and what else only shows or not

    Namen(const Einblick &h, const Benutzer &benutzer);

  private:
    /// What nothing in the program reads: as the start set it, for scripts to print.
    void Startwerte(const Einblick &h, const Benutzer &benutzer);
    void Programmnamen(const Einblick &h);
    void Dokumentnamen(const Einblick &h);
    void Ansichtsnamen(const Einblick &h);
    void Auswahllisten(const Einblick &h);
    void Arbeitsflächen(Arbeitsbereich &b);
    void Leinwandnamen(Leinwandlage &l);
    void Auflagennamen(Auflagen &a);

    std::string textvorlage_;   ///< what a new text box starts from
    Auswahlliste cboPaperSize_; ///< its choice is the paper that the toolbar ticks
    Auswahlliste combo1_;       ///< fonts
    Auswahlliste combo2_;       ///< their sizes
    Auswahlliste combo3_;       ///< their styles
};

} // namespace kw
