#pragma once

#include "document/Satzliste.h"

#include <array>
#include <string>
#include <string_view>

namespace kw {

// Field positions, one namespace a record kind. Lengths are centimetres on the page.
// clang-format off
namespace PersonFeld {
enum : int { Nr, Symboltyp, PosX, PosY, Groesse, IndexPerson, Sterbealter, Sucht, Erkrankung, Vorname, Nachname,
             Geburtsdatum, ElternLinie, Zwilling, Anzahl };
}
namespace PLinieFeld {
enum : int { Nr, Status, BalkenX1, BalkenY1, BalkenX2, BalkenY2, PersNr1, PersNr2, AnschlussY1, AnschlussY2,
             AnschlussX1, AnschlussX2, Distanziert, Daten, Anzahl };
}
namespace KindFeld {
enum : int { KindNr, Kindart, PLinie, KindX, LinieX, KindY, LinieY, Anzahl };
}
namespace BezFeld {
enum : int { Leer, Beziehungsart, LinieX1, LinieY1, LinieX2, LinieY2, PersNr1, PersNr2, Anzahl };
}
namespace PfeilFeld {
enum : int { Pfeilart, PfeilX1, PfeilY1, PfeilX2, PfeilY2, Anzahl };
}
namespace TextFeld {
enum : int { TextX, TextY, Schriftart, Schriftgroesse, Farbe, Fett, Kursiv, Unterstrichen, Ausrichtung, Text,
             TextBreite, TextHoehe, Anzahl };
/// Fields of a text box that has not been measured yet.
constexpr int AnzahlUngemessen = TextBreite;
}
// clang-format on

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
    /// Empties the seven stores, not the free lists.
    void SpeicherLeeren();

    /// The next person's number: the first free one, which is taken, else count plus 1.
    std::string NeuePersNr();
    /// The same for partnership lines.
    std::string NeuePLinienNr();

    /// Rebuilds both free lists after a load. Each scan stops at the number of its store's last record,
    /// not at the highest: a later person can then get a number that is in use. Meant, and kept.
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
