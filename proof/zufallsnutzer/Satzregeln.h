#pragma once

#include "app/frmMain.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kw {

/// What of the program is held against the rules, and compared before and after a line of a script.
struct Stand {
    Dokument dokument;
    Leinwandlage lage;
    Auswahl auswahl;
    UndoRing ring;
    Ansicht ansicht;
    Bedienelemente bedienung;
    std::string projektdatei, einstellungsdatei;
    std::string kästen;  ///< boxes and dialogs of the step that led here, a line each
    double leinwand = 0; ///< the larger of the canvas's sides, by the screen's
    bool hochkant = false;
    int zoom = 0;
    bool geändert = false;
};

/// A rule that a state breaks, and whom it is about: "P003" is a person, "L001" a partnership line.
struct Verstoß {
    std::string Art;
    std::vector<std::string> Wer;

    std::string Text() const {
        std::string text = Art + ":";
        for (const auto &wer : Wer) text += " " + wer;
        return text;
    }
};

/// All that is wrong with a state. Broken records end the search, since the other rules count on their form.
std::vector<Verstoß> Verstöße(const Stand &stand);

/// What menus, toolbar or canvas show that isn't so; empty when all of it is.
std::string Anzeigefehler(const Stand &stand);

/// A step that broke a rule: the states before and behind it, its lines, and what was excused before, as texts.
struct Schritt {
    const Stand &Alt, &Neu;
    const std::string &Zeile;
    const std::set<std::string> &Entschuldigt;
};

/// Whether the program breaks that rule by its own rules here: each quirk has a name in the table of them.
bool IstMacke(const Schritt &schritt, const Verstoß &verstoß);

} // namespace kw
