#pragma once

namespace kw {

class Arbeitsbereich;
class Bedienelemente;
class Chronik;
class Datenimport;
class Druckwerk;
class UndoRing;
struct Ansicht;
struct Auswahl;
struct Auswahlliste;
struct Dokument;
struct Leinwandlage;
struct Zwischenablage;

/// What menus and toolbar show of the model's state: captions, ticks, what can be pressed. It reads the state and
/// writes nothing else. Owned by the main window.
class Anzeige {
  public:
    /// What it looks at.
    struct Zustand {
        const Dokument &dokument;
        const Ansicht &ansicht;
        const Auswahl &auswahl;
        const Leinwandlage &lage;
        const Zwischenablage &ablage;
        const UndoRing &ring;
        const Chronik &zuletzt;
        const Arbeitsbereich &bereich;
        const Auswahlliste &cboRaster;
        const Druckwerk &druck;
        const Datenimport &import;
    };
    Anzeige(Bedienelemente &bedienung, Zustand zustand) : bedienung_(bedienung), z_(zustand) {}

    /// All captions in the program's language.
    void Beschriften();
    /// The tool tip that names the printer.
    void DruckerZeigen();
    /// The legend's button and menu entry, pressed, ticked and named as the legend is shown or not.
    void LegendeZeigen();
    /// Captions of the recent files.
    void ChronikZeigen();
    /// The document's paper and orientation.
    void SeiteZeigen();
    /// Whether the margins' frame is shown.
    void DruckränderZeigen();
    /// The zoom in force.
    void ZoomZeigen();
    /// The colour scheme in force.
    void FarbschemaZeigen();
    /// Whether the grid is shown.
    void RasterZeigen();
    /// The snap step. The third one stands in no menu and ticks the large one. Meant.
    void RasterweiteZeigen();
    /// Whether the tool palette is shown.
    void WerkzeugleisteZeigen();
    /// What can be chosen now, of menus and palette, and which tool is in hand: after every event.
    void MöglichesZeigen();
    /// Undo and redo, as the ring has steps: whenever it has changed, and not after every event, since closing takes
    /// both away whatever it holds.
    /// `unterwegs` says that a run of moves is on whose step the ring gets when something else is done.
    void UndoKnöpfeZeigen(bool unterwegs = false);
    void UndoKnöpfeSperren();

  private:
    void AngebotZeigen();
    void PaletteZeigen();
    void RestZeigen();
    void HinweisZeigen();

    Bedienelemente &bedienung_;
    const Zustand z_;
};

} // namespace kw
