#pragma once

#include "platform/Sprache.h"

#include <string>

namespace kw {

class Zeichenfläche;

/// A family tree that becomes a project without a window.
struct Stammbaumaufruf {
    std::string Datei;  ///< the family tree
    std::string Ziel;   ///< the project
    std::string Person; ///< the proband, as the file or people call them; empty for the one that the file proposes
    int Hinauf = 2;
    int Hinunter = 1;
    bool Alle = false;                           ///< everybody, also beyond the sheet
    bool Kleiner = false;                        ///< smaller symbols, where nothing else makes it fit
    int Jahr = 0;                                ///< of today
    kw::Sprache Sprache = kw::Sprache::Englisch; ///< of dates on the page, and of the report
};

/// Of more generations nobody's family tree is a page.
constexpr int HöchstzahlGenerationen = 99;

struct Stammbaumausgang {
    int Ergebnis = 0;    ///< 0; 1 when it can't be done; 2 when nobody or not only one is meant
    std::string Meldung; ///< why nothing was written: a line, and indented ones that belong to it
    std::string Bericht; ///< what became of the file, when it was; lines
};

/// Writes the project; with an exit code other than 0 nothing was written. `fläche` measures names.
Stammbaumausgang StammbaumSchreiben(const Stammbaumaufruf &aufruf, Zeichenfläche &fläche);

} // namespace kw
