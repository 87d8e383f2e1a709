#pragma once

#include "document/Auswahlliste.h"

#include <functional>
#include <optional>

namespace kw {

class Zeichenfläche;
struct Ansicht;

/// Place and size of a control in twips, within the main window's inner area; of the canvas and its
/// shadow within `picBack`.
struct Steuerfläche {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool Visible = true;
};

struct Bildlaufleiste : Steuerfläche {
    int Max = 0; ///< some way beyond the page, however large that is; negative while the frame is larger
    int Value = 0;
};

/// A place within the frame `picBack`, twips from its upper left corner; outside of it too.
struct Rahmenort {
    int X = 0;
    int Y = 0;
};

/// The work area: how large the zoom makes the canvas, and where frame, canvas and scroll bars stand. All
/// in twips; the face turns them into pixels. Records never depend on any of it.
class Arbeitsbereich {
  public:
    /// What the owner does for it: redraw the page on the canvas, and show a new zoom.
    struct Rückrufe {
        std::function<void()> Vorschau;
        std::function<void()> ZoomAnzeigen;
    };

    /// The screen's size is in twips.
    Arbeitsbereich(Zeichenfläche &canvas, Ansicht &ansicht, int bildschirmBreite, int bildschirmHöhe,
                   Rückrufe rückrufe);

    Auswahlliste cboBildGröße; ///< "  80 %" to "250 %"
    int MausradIndex = 2;      ///< the wheel's own counter, which no other zoom command updates. Meant.
    Steuerfläche picBack;
    Steuerfläche shpSchatten; ///< the page's shadow
    Bildlaufleiste VScroll1;
    Bildlaufleiste HScroll1;

    /// The canvas as it stands within `picBack`.
    Steuerfläche picVorschau() const;

    /// Fills the zoom list and selects its fourth entry.
    void ZoomListeFuellen();
    /// Changing the list's index, by any road, applies the zoom.
    void ZoomWählen(int listIndex);
    void Vergrößern();
    void Verkleinern();
    /// The largest zoom of the list at which the page fits into its frame, else the smallest of all.
    void ZoomEinpassen();
    bool KannVergrößern() const { return cboBildGröße.ListIndex < cboBildGröße.Anzahl() - 1; }
    bool KannVerkleinern() const { return cboBildGröße.ListIndex > 0; }
    /// One notch of the wheel, which zooms.
    void Mausrad(bool hoch);
    /// The same in two steps, for a face that gets notches faster than it can draw the page: all are counted, then the
    /// zoom follows.
    void MausradZählen(bool hoch);
    void MausradFolgen();
    /// The same with the pointer at that place: what of the page lies there stays there as far as the scroll bars
    /// reach, on an axis where the page doesn't fit.
    void MausradFolgen(Rahmenort zeiger);
    /// Applies the current zoom: line width, canvas, page.
    void Bildgrößenveränderung();

    /// The main window's inner size is new. Sizes below the minimum count as the minimum. The frame leaves
    /// room for the palette whether it shows or not; hiding it then takes the whole width until the next
    /// change of size. Meant.
    void GrößeÄndern(int breite, int höhe);
    void WerkzeugleisteZeigen();
    void WerkzeugleisteVerbergen();
    bool WerkzeugleisteSichtbar() const { return picBack.Left >= 0; }

    /// The scroll bars were moved.
    void Scrollen(int hValue, int vValue);
    /// Moves what is seen by that way, on an axis where the page doesn't fit. False when everything stays.
    bool ScrollenUm(int dx, int dy);
    /// The same, by wheel notches or parts of them, towards the left and upwards. What would go up and down goes
    /// sideways where the page fits from top to bottom.
    void MitRadScrollen(double quer, double längs);

    /// The hand takes the page, and draws it: the place that it took stays under it, as far as the scroll bars reach.
    void SeiteFassen(Rahmenort hand);
    void SeiteSchieben(Rahmenort hand);

    /// One step of scrolling while something is dragged to the frame's edge: the faster, the nearer or the further
    /// beyond it. `gedrückt` is where the drag began, which is no nearer to the edge by itself. False when everything
    /// stays.
    bool AmRandScrollen(Rahmenort zeiger, Rahmenort gedrückt);
    static constexpr int RandTakt = 30; ///< ms between two such steps

    /// How thick a face's scroll bars are, twips. From then on the page fits, and is centred, in what shows, which ends
    /// before the frame does or goes on behind it; without a face the frame itself is what shows.
    void LeistenSetzen(int dicke);
    /// Where a place of the page is in the frame; `seitenBreite` in the same unit, cm.
    Rahmenort InRahmen(double x, double y, double seitenBreite) const;

    /// Scrolls by nearly a frame: -1 up or to the left, 1 down or to the right.
    void Blättern(int richtung, bool seitwärts);
    /// A box on the page, cm.
    struct Seitenkasten {
        double Links, Oben, Rechts, Unten;
    };
    /// Scrolls as far as it must for the box to be seen; of one larger than the frame its upper left corner.
    void InsBild(const Seitenkasten &cm);

    /// Where the scroll bars and the frame stand at the inner area's edges.
    static constexpr int BalkenRechts = 500; ///< left of the right edge
    static constexpr int BalkenUnten = 40;   ///< below the lower edge
    static constexpr int FrameOben = 1440;   ///< room for the toolbar
    static constexpr int KleinsteHöhe = 6700;
    static constexpr int KleinsteBreite = 9000;

  private:
    static constexpr int LuftBreite = 200; ///< a canvas fits when this is left over
    static constexpr int LuftHöhe = 600;

    void LeinwandGroesseSetzen();
    void BildlaufleistenSetzen();
    void ArbeitsbereichAnordnen();
    void SchattenSetzen();
    int SichtBreite(bool mitLeiste) const;
    int SichtBreite() const {
        return SichtBreite(VScroll1.Visible);
    } ///< of the frame what isn't covered, and what shows behind it
    int SichtHöhe(bool mitLeiste) const;
    int SichtHöhe() const { return SichtHöhe(HScroll1.Visible); }
    /// Whether a canvas of that size needs no scroll bar, measured beside both.
    bool PasstBreite(double canvas) const { return canvas + LuftBreite <= SichtBreite(true); }
    bool PasstHöhe(double canvas) const { return canvas + LuftHöhe <= SichtHöhe(true); }

    Zeichenfläche &canvas_;
    Ansicht &ansicht_;
    int bildschirmBreite_;
    int bildschirmHöhe_;
    int breite_ = 0; ///< the main window's inner size
    int höhe_ = 0;
    std::optional<int> leistendicke_;
    int canvasLinks_;
    int canvasOben_;
    Rahmenort hand_;  ///< where the page was taken
    Rahmenort stand_; ///< how far it was scrolled then
    Rückrufe rückrufe_;
};

} // namespace kw
