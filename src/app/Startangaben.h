#pragma once

#include <string>

namespace kw {

/// What the process was started with.
struct Startangaben {
    std::string Kommandozeile;  ///< raw, quotes and all
    std::string IniDatei;       ///< path of the settings file
    std::string Programmordner; ///< without a closing "/"; import files and the update program stand there
    std::string Hilfeordner;    ///< the same; of the manual
    int BildschirmBreite = 0;   ///< twips
    int BildschirmHöhe = 0;
    std::string Netzordner = {};     ///< of the safety net, as the folders above; empty for none
    std::string Dokumentordner = {}; ///< the user's, as the folders above; takes imports where the program's can't
};

} // namespace kw
