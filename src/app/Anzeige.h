#pragma once

namespace kw {

class frmMain;

/// What menus and toolbar show of the model's state, and the commands that change only how things are shown. Owned
/// by the main window, whose parts it reads.
class Anzeige {
  public:
    explicit Anzeige(frmMain &haupt) : haupt_(haupt) {}

    /// All captions in the program's language.
    void Beschriften();
    /// Caption of the legend button, as the legend is shown or not.
    void LegendenknopfBeschriften();
    /// Captions of the recent files.
    void ChronikZeigen();
    /// The document's paper and orientation on the toolbar.
    void SeiteZeigen();
    /// The zoom in force on the toolbar.
    void ZoomZeigen();
    void FarbschemaZeigen();

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
    /// The document's page is another one: toolbar and canvas follow.
    void SeiteGeändert();
    /// Other paper, or another orientation (1 portrait, 2 landscape): the project holds both, no snapshot does.
    void PapierWählen(int papiercode);
    void LageWählen(int seitenlage);

    /// The pointer is over the palette's button `werkzeug`, or over none (0).
    void PaletteBerührt(int werkzeug);
    /// It has rested there.
    void PalettenhinweisZeigen();

  private:
    frmMain &haupt_;
    int berührt_ = 0; ///< the palette's button under the pointer
};

} // namespace kw
