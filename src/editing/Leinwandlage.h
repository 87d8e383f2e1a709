#pragma once

#include "document/saetze/Kreislinie.h"
#include "document/saetze/Person.h"
#include "editing/Auflagen.h"
#include "rendering/Auswahl.h"

#include <string>
#include <vector>

namespace kw {

struct Zweisprachig;

constexpr double GrößeNormal = 1.2;   ///< cm; size of a new symbol
constexpr double GrößeKlein = 0.6;    ///< of a new small symbol: pregnancy to abortion
constexpr double BalkenAbstand = 1.8; ///< drop of a new partnership bar below the lower partner

/// The pointer over the page. The hands are a face's own: ready to draw the page, and drawing it.
enum class Mauszeiger { Pfeil, Verschieben, Person, Textfeld, Kreuz, Hand, Griff };

/// What the panel `Frame1(0)` tells of the selected person.
struct Personeninfo {
    bool Visible = false;
    bool IndexPerson = false;
    bool Verstorben = false;
    bool Sucht = false;
    bool Erkrankung = false;
};

/// What menus offer for the selection. Told by the gestures and not read off the selection: a press takes back what the
/// release gives again, a dismissed menu leaves it, and of the sizes the last command has the word.
struct Angebot {
    bool Löschen = false;
    bool Ausschneiden = false; ///< copying and pasting too, as the edit menu found them when it was opened last
    bool Kopieren = false;
    bool Einfügen = false;
    bool EinfügenImKontext = false; ///< pasting stands in the menu of the empty page
    bool Vergrößern = true;         ///< the selected person
    bool Verkleinern = true;
    bool Zwillinge = false; ///< two siblings are selected that can become twins
    bool Verknüpfen = true; ///< the person whose menu was opened last
    bool AlsKind = true;    ///< the same: it has no parents
};

/// What the last gestures came to. Written for those who watch from outside; nothing in the program reads it.
struct Gestenspur {
    double NeuX = 0; ///< centre of the person that was moved last, cm
    double NeuY = 0;
    double MarkerBreite = 0.01; ///< of the marker around the selected person or text box, cm
    double MarkerHöhe = 0.01;
    int ZwillingsArt = 0; ///< 1 to 6, see the twins' table
    std::string PersNrA;  ///< the parents of a twin command
    std::string PersNrB;
};

/// What the canvas remembers between two events. Lengths and places are centimetres on the page.
struct Leinwandlage : Gestenlage {
    int SymbolTyp = 0;        ///< of the tool or of the selected person
    double SymbolGröße = 1.2; ///< the same
    std::string PersRecord;
    std::string PersNr;     ///< survives the end of the selection
    std::string ElementArt; ///< "Person" or "Textbox"
    int TextAuswahl = -1;   ///< positions from 0, -1 none, but for the circle line's
    std::string TextRecord;
    int BezAuswahl = -1;
    int PfeilAuswahl = -1;
    int KreisAuswahl = 0; ///< one-based, 0 none
    bool KreisGetroffen = false;

    double DownX = 0; ///< where the button went down, two decimals
    double DownY = 0;
    double LetztX = 0; ///< last place that a gesture used, two decimals
    double LetztY = 0;
    double MausX = 0; ///< last move
    double MausY = 0;
    double AnkerX = 0; ///< snapped start of a gesture
    double AnkerY = 0;
    double VersatzX = 0; ///< pointer minus origin of what was grabbed
    double VersatzY = 0;
    double GummiX = 0; ///< fixed end of a rubber line
    double GummiY = 0;
    double AltX = 0; ///< group frame at the grab, one decimal
    double AltY = 0;
    double DeltaX = 0; ///< way of the group in hand, whole steps of the raster
    double DeltaY = 0;

    bool LinieVerschoben = false;
    bool BildAuswahl = false;                      ///< the next marquee is a region of the picture
    bool bAuswahlInDatei = false;                  ///< that region goes to a file, otherwise to the clipboard
    kw::Aktion EbenAbgewählt = kw::Aktion::Nichts; ///< kind of the line that the last press was on and unselected
    bool Gedrückt = false; ///< a press runs a gesture; false again when something else came between
    int PfeilArt = 1;      ///< 1 arrow, 2 double arrow
    double PfeilEndeX = 0;
    double PfeilEndeY = 0;
    std::string PunktListe;              ///< circle line in the making
    std::vector<Kreispunkt> KreisPunkte; ///< the selected circle line as it was when selected
    std::string lblPersAuswahl;          ///< link target as last shown

    double AuswahlX = Geparkt; ///< marker of the selected person or text box
    double AuswahlY = Geparkt;
    double AuswahlGröße = 0; ///< of the person last hit

    std::string Zwillingspaar; ///< two siblings that can become twins, and their parents' line

    Mauszeiger Zeiger = Mauszeiger::Pfeil;
    const Zweisprachig *Hinweis = nullptr; ///< why nothing came of the last gesture; none
    Personeninfo Info;
    kw::Angebot Angebot;
    Gestenspur Spur;
};

/// Whether a tool, a link or the choice of a region of the picture waits for the page.
inline bool EtwasInHand(const Leinwandlage &lage) {
    return lage.BildAuswahl || IstWerkzeug(lage.Aktion) || IstLink(lage.Aktion);
}

} // namespace kw
