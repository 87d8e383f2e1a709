#pragma once

#include "anonymity/OhneNamen.h"
#include "app/Stammbaumaufruf.h"
#include "familytree/Uebergabe.h"
#include "platform/Sprache.h"
#include "qt/drucken/Ausgabe.h"

#include <optional>
#include <string>
#include <vector>

namespace kw {

/// What the command line asks for.
struct Aufruf {
    enum class Art { Fenster, Export, Beschreibung, Vorschaubild, Stammbaum, Hilfe, Version, Falsch };
    Art Was = Art::Fenster;
    std::string Datei;                   ///< the project; empty for none
    std::string Import;                  ///< the whole command line of an import, as the model takes it; empty for none
    std::string Ziel;                    ///< the file to write
    int Dpi = ÜblicheDpi;                ///< of pictures
    std::optional<Lebenszeit> OhneNamen; ///< the export leaves out whose family it is
    Übergabewünsche Wünsche;             ///< what goes into a family tree
    int Kante = 0;                       ///< of a thumbnail, in pixels
    std::optional<Sprache> InSprache;    ///< of what is told; none for that of the settings
    Stammbaumaufruf Stammbaum;           ///< a family tree that becomes a project; its language is `InSprache`
    std::string Fehler;                  ///< why it is wrong, one plain line
};

/// `worte` are the arguments behind the program's name. A "--" ends the options. Behind the switch of an import no
/// word is an option or a file.
Aufruf AufrufLesen(const std::vector<std::string> &worte);

/// The same of a call with `--familytree`.
Aufruf StammbaumoptionenLesen(const std::vector<std::string> &worte);

/// The text of `--help`.
const char *Hilfetext();

} // namespace kw
