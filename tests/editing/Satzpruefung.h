#pragma once

#include "replay/Skript.h"

#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace kw {

/// What of the program is compared before and after a line.
struct Stand {
    Dokument dokument;
    Leinwandlage lage;
    Auflagen auflagen;
    Auswahl auswahl;
    Zwischenablage ablage;
    UndoRing ring;
};

/// The record in `liste` whose first three characters are `nr`, or nothing.
const std::string *SatzFinden(const Satzliste &liste, std::string_view nr);

/// A rule that a state breaks, and whom it is about: "P003" is a person, "L001" a partnership line.
struct Verstoß {
    std::string Art;
    std::vector<std::string> Wer;
    std::string Text() const;
};

/// Runs a script line by line and holds each state against the rules of the records. Where the program breaks one by
/// its own rules this is excused at the line where it arises, for these elements only, and counted.
class Prüfung {
  public:
    /// Runs the line. The first fault as "kind: whom", empty when all is well.
    std::string Zeile(const std::string &zeile);
    const Stand &Jetzt() const { return neu_; }
    /// What was excused, and how often.
    const std::map<std::string, int> &Gezählt() const { return gezählt_; }
    bool AntwortOffen();

  private:
    std::string Beurteilt(const std::vector<Verstoß> &verstöße);
    void EntschuldigungenEinfügen();
    std::vector<Verstoß> Übergang();

    std::ostringstream aus_;
    Wiedergabe wiedergabe_{aus_};
    std::string zeile_, vorige_;
    Stand neu_, alt_;
    std::map<int, Dokument> plätze_; ///< what the undo ring should hold
    Dokument bekannt_;               ///< when it last had its snapshot, or was excused for having none
    std::set<std::string> entschuldigt_;
    std::map<std::string, int> gezählt_;
};

} // namespace kw
