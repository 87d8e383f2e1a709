#pragma once

#include "absturz/Protokoll.h"

#include <string>
#include <vector>

namespace kw {

/// What a session that was killed must have left.
struct Erwartung {
    /// Of these, the safety net or a project file must hold one; empty when nothing was unsaved.
    std::vector<std::string> EinesVon;
    std::vector<std::vector<std::string>> Ältere; ///< of programs that ended before; the net must hold one of each
    struct Projektdatei {
        std::string Pfad;
        std::vector<std::string> Bytes; ///< one of them
        bool MussDaSein = false;
    };
    std::vector<Projektdatei> Dateien;
    std::vector<std::pair<std::string, std::string>> Gespeichert; ///< path and bytes that save the document
    std::string Fehler;                                           ///< the session broke a rule while it ran
};
Erwartung ErwartungAus(const std::vector<Eintrag> &protokoll);

/// The net's entry that a restart must offer; below 0 for none.
struct Nachbefund {
    std::string Fehler = {}; ///< empty when nothing is lost
    int Platz = -1;          ///< in the list of `frmFassungen`
    std::string Inhalt = {}; ///< of that entry: a project file's bytes
};
/// Looks at what lies in the present folder, its net in `netz`.
Nachbefund Nachsehen(const Erwartung &erwartung, const std::string &netz);

/// The document that loading those bytes gives.
std::string AlsGeladen(const std::string &bytes);

/// A whole document without the place of its legend, which is found when it is drawn.
std::string Sätze(std::string projekt);

/// A fresh start, which must offer that entry; opening it must give its records, and the next save must leave nothing
/// stray. What is wrong, empty when nothing is.
std::string Neustarten(const Nachbefund &befund, const std::string &netz);

} // namespace kw
