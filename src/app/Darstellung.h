#pragma once

namespace kw {

class Anzeige;
class Arbeitsbereich;
class Drucker;
class Fensterdienste;
struct Ansicht;
struct Auswahlliste;
struct Dokument;

/// The commands that change how the page is shown: grid, colours, tool palette, paper. Owned by the main window.
class Darstellung {
  public:
    /// `cboRaster` lists the snap steps in millimetres.
    Darstellung(Ansicht &ansicht, Dokument &dokument, Auswahlliste &cboRaster, Arbeitsbereich &bereich,
                Anzeige &anzeige, Drucker &drucker, Fensterdienste &fenster)
        : ansicht_(ansicht), dokument_(dokument), cboRaster_(cboRaster), bereich_(bereich), anzeige_(anzeige),
          drucker_(drucker), fenster_(fenster) {}

    /// Shows or hides the grid; snapping doesn't care.
    void RasterUmschalten();
    /// An entry of `cboRaster` becomes the snap step; no redraw. Other indices do nothing.
    void RasterSetzen(int listIndex);
    /// The same as the user's choice.
    void RasterWählen(int listIndex);
    void FarbschemaWählen(int schema);
    /// Sets the colours of the lines from the scheme in force.
    void LinienfarbenSetzen();
    /// Shows or hides the tool palette.
    void WerkzeugleisteUmschalten();
    /// Toolbar and printer show and take the document's page.
    void SeiteÜbernehmen();
    /// The document's page is another one: toolbar, printer and canvas follow.
    void SeiteGeändert();
    /// Other paper, or another orientation (1 portrait, 2 landscape): the project holds both, no snapshot does.
    void PapierWählen(int papiercode);
    void LageWählen(int seitenlage);

  private:
    void SeiteWählen(int Dokument::*was, int wert);

    Ansicht &ansicht_;
    Dokument &dokument_;
    Auswahlliste &cboRaster_;
    Arbeitsbereich &bereich_;
    Anzeige &anzeige_;
    Drucker &drucker_;
    Fensterdienste &fenster_;
};

} // namespace kw
