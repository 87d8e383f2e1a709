#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kw {

struct Dokument;
struct Einblick;

/// What the document of a program is.
struct Dokumentstand {
    bool Geändert = false;
    std::string Projekt; ///< the whole document, as a project file that held nothing else would have it
};
Dokumentstand StandVon(const Einblick &innen);

/// One thing that happened to a session, written down before or when it did; it outlives the session's kill.
struct Eintrag {
    enum class Art : char {
        Schritt = 'B',     ///< a step begins; `Bytes` are its lines
        Fertig = 'S',      ///< nothing is in progress
        InsNetz = 'N',     ///< the document is about to take its place in the safety net
        AnSeinenOrt = 'P', ///< `Bytes` are about to become file `Pfad`, a project or an export
        AusDemNetz = 'U',  ///< the safety net's document is about to go
        Zuende = 'E',      ///< the session ended by itself
    };
    Art Was = Art::Zuende;
    Dokumentstand Stand;
    std::string Pfad;
    std::string Bytes;
    bool Hält = false; ///< that file would hold the document as it stands
};

/// From then on everything is written into that file. `stand` is asked when the program moves or removes a file of the
/// net, or moves a project to its place.
void ProtokollBeginnen(const std::string &datei, std::function<const Einblick *()> innen);
void Festhalten(const Eintrag &eintrag);
void Festhalten(Eintrag::Art was, const Dokumentstand &stand);
/// Of a step that begins.
void Festhalten(const std::string &zeilen);

/// All that is whole.
std::vector<Eintrag> ProtokollLesen(const std::string &datei);

} // namespace kw
