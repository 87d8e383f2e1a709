#pragma once

#include "document/Nummernvergabe.h"
#include "document/Satzliste.h"

#include <array>
#include <string>
#include <string_view>

namespace kw {

constexpr double LegendeStartX = 25; ///< cm; where a new project has its legend
constexpr double LegendeStartY = 2;

/// The genogram: seven stores of text records, which are its only representation, the lists of free
/// numbers, and the page and legend settings that are saved with it. Owned by the main window; knows
/// nothing of files, drawing or gestures.
struct Dokument {
    Satzliste cboPersonen;
    Satzliste cboPartnerschaftsLinien;
    Satzliste cboKindlinien;
    Satzliste cboBeziehungsLinien;
    Satzliste cboFreehandlines;
    Satzliste cboPfeile;
    Satzliste cboTextboxen;

    Satzliste lstGelöschtePersNr;
    Satzliste lstGelöschtePLinien;

    int Papiercode = 9; ///< 9 DIN A4, 11 DIN A5, 1 US Letter; below 1 counts as 9
    int Seitenlage = 2; ///< 1 portrait, everything else landscape

    bool LegendeSichtbar = false;
    double LegendeX = LegendeStartX; ///< cm
    double LegendeY = LegendeStartY;
    bool LegendeQuer = false;
    bool OhneStandardsymbole = false;

    /// Whether the seven stores hold the same records.
    bool GleicheSätze(const Dokument &anderes) const;
    /// Whether a project file of both would hold the same: records, page and legend.
    bool GleicherStand(const Dokument &anderes) const;
    /// Empties the seven stores, not the free lists.
    void SpeicherLeeren();

    /// Numbers for new persons: free ones first, then count plus 1 and on.
    Nummernvergabe PersNummern();
    std::string NeuePersNr() { return PersNummern().Nächste(); }
    /// The same for partnership lines.
    Nummernvergabe PLinienNummern();
    std::string NeuePLinienNr() { return PLinienNummern().Nächste(); }

    /// Rebuilds both free lists after a load. Each scan stops at the number of its store's last record.
    void FreieNummernAufbauen();
};

/// One row a store: its name, its section in the project file, and where it stands in the document.
/// `Pflichtfelder` is how many fields a whole record has at least.
struct SpeicherZeile {
    std::string_view Name;
    std::string_view Abschnitt;
    Satzliste Dokument::*Liste;
    int Pflichtfelder;
};

/// In the order in which a project is loaded: persons, then text boxes, then the lines A to E.
extern const std::array<SpeicherZeile, 7> SpeicherTabelle;

} // namespace kw
