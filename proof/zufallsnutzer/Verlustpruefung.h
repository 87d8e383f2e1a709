#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kw {

class Sicherheitsnetz;
struct Einblick;
struct Stand;

/// Holds a session, step by step, against what is promised of its documents: however a program ends and whatever fails,
/// the document as it last stood is in a project file or in the safety net, unless the user said No; what somebody else
/// wrote into a project file stays there or is kept; what is kept stays until the user deletes or opens it.
///
/// It looks at files and at what the net gives to others, in the present folder and all below it.
class Verlustprüfung {
  public:
    /// Before a step: what it may not lose.
    void Vorher(const std::string &zeile, const Einblick &innen);
    /// Behind it: what is wrong, empty when nothing is. `alt` and `neu` are the states around the step, `gedrückt`
    /// whether the pointer is still down.
    std::string Nachher(const std::string &zeile, const Stand &alt, const Stand &neu, bool gedrückt,
                        const Einblick &innen);

  private:
    using Dateien = std::map<std::string, std::string>; ///< by path: bytes

    static Dateien Projekte();
    bool Steht(const std::string &dokument, const Sicherheitsnetz &netz) const;
    std::string Speicherfehler(const Stand &alt, const Stand &neu) const;
    std::string Fremdfehler(const std::string &zeile, const Stand &neu, const Sicherheitsnetz &netz);
    std::string Angebotsfehler(const std::string &zeile, const Stand &alt, const Stand &neu,
                               const Sicherheitsnetz &netz) const;
    std::string Dokumentfehler(const std::string &zeile, const Stand &neu, bool gedrückt, const Einblick &innen);

    Dateien dateien_;                                     ///< as they were behind the last step
    Dateien fremde_;                                      ///< what somebody else wrote, and the program hasn't loaded
    std::map<std::string, std::set<std::string>> eigene_; ///< what programs loaded or saved, by path
    std::string herkunft_;                                ///< what the document came from or was saved as, wherever
    std::vector<std::string> angeboten_;                  ///< what the net held before this step
    std::optional<std::string> grund_;                    ///< the document whose loss is none: saved, given up, empty
    std::vector<std::string> letzte_;                     ///< one of these must be found after a kill; empty for none
};

} // namespace kw
