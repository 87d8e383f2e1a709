#pragma once

#include "document/Satzliste.h"
#include "rendering/Aktion.h"

namespace kw {

/// What is selected, one list a kind of element. Editing fills the lists, drawing highlights by them.
struct Auswahl {
    Satzliste lstMovedPers;        ///< numbers of persons; in a link gesture two one-based positions
    Satzliste lstMovedPLines;      ///< numbers after a marquee, a one-based position after a click
    Satzliste lstMovedText;        ///< positions, from 0
    Satzliste lstMovedKreisLinien; ///< positions, from 1
    Satzliste lstMovedPfeile;      ///< positions, from 0

    bool Leer() const { return lstMovedPLines.Leer() && !HatKopierbares(); }
    /// Something that can be cut and copied: not partnership lines alone.
    bool HatKopierbares() const {
        return !(lstMovedPers.Leer() && lstMovedText.Leer() && lstMovedKreisLinien.Leer() && lstMovedPfeile.Leer());
    }
};

/// What the canvas is doing, as far as drawing looks at it.
struct Gestenlage {
    kw::Aktion Aktion = kw::Aktion::Nichts;
    int PersAuswahl = 0;          ///< one-based position of the selected person, 0 none; where a link gesture starts
    int ZielPerson = 0;           ///< one-based position of a link gesture's target, 0 none
    int PLinieAuswahl = -1;       ///< position of the partnership line selected or under the pointer
    bool PLinieUnterMaus = false; ///< in a child link gesture: a partnership line lies under the pointer
    int KindAuswahl = -1;         ///< position of the selected child line
    double TextRahmenUnten = 0;   ///< bottom of the selected text box's frame below its top, cm
};

} // namespace kw
