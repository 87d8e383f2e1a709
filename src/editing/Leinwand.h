#pragma once

#include "editing/Werkbank.h"

namespace kw {

/// Mouse buttons as events carry them; 0 is none.
enum : int { TasteKeine = 0, TasteLinks = 1, TasteRechts = 2 };

/// The canvas under the pointer: what a press, a move, a release and a double click do. Places are centimetres
/// on the page. `Aktion` decides which gesture an event belongs to; the document changes only at a gesture's end
/// (a dragged circle line is the exception). Each event is a table of short routines: the steps of a press in
/// their order, the gestures of a move and of a release by `Aktion`.
class Leinwand {
  public:
    explicit Leinwand(Werkbank &werkbank)
        : w(werkbank), lage(werkbank.lage), auflagen(werkbank.auflagen), dokument(werkbank.dokument) {}

    void MouseDown(int taste, double x, double y);
    void MouseMove(int taste, double x, double y);
    void MouseUp(int taste, double x, double y);
    void DblClick(double x, double y);

    /// A command comes: a link gesture ends with nothing made, and so does what the button is dragging, but for a
    /// circle line, which stays where it is. The release to come ends no gesture.
    void GesteAbbrechen();

  private:
    struct Ereignis {
        int Taste;
        double X, Y;
        bool Links() const { return Taste == TasteLinks; }
        bool Rechts() const { return Taste == TasteRechts; }
    };

    // Steps of a press (LeinwandDruck.cpp). Each says whether the event ends with it.
    using Schritt = bool (Leinwand::*)(const Ereignis &);
    bool Zurücksetzen(const Ereignis &e);
    bool BildBeginnen(const Ereignis &e);
    bool PfeilBeginnen(const Ereignis &e);
    bool TextSetzen(const Ereignis &e);
    bool OrtMerken(const Ereignis &e);
    bool KreisBeginnen(const Ereignis &e);
    bool LegendeFassen(const Ereignis &e);
    bool KreisTreffen(const Ereignis &e);
    bool KreisGewählt(const Ereignis &e);
    bool GruppeFassen(const Ereignis &e);
    bool TextWarGefasst(const Ereignis &e);
    bool KindLinkBeenden(const Ereignis &e);
    bool MenüWarOffen(const Ereignis &e);
    bool LinkBeenden(const Ereignis &e);
    bool PersonTreffen(const Ereignis &e);
    bool LinieWarGewählt(const Ereignis &e);
    bool LinieTreffen(const Ereignis &e);
    bool TextTreffen(const Ereignis &e);
    bool Setzen(const Ereignis &e);
    bool RahmenBeginnen(const Ereignis &e);

    // Hit tests that select.
    bool BezLinieTreffer(double x, double y);
    bool PLinieTreffer(double x, double y);
    bool KindLinieTreffer(double x, double y);
    bool PfeilTreffer(double x, double y);
    bool PfeilEndeTreffer(double x, double y);
    void PfeilFassen();
    bool LegendeUnterMaus() const;

    // What moves with the pointer (LeinwandZug.cpp).
    void PfeilAufziehen(const Ereignis &e);
    void PfeilZiehen(const Ereignis &e);
    void KreisZiehen(const Ereignis &e);
    void KreisZeichnen(const Ereignis &e);
    void LegendeZiehen(const Ereignis &e);
    void GruppeZiehen(const Ereignis &e);
    void LinkZiehen(const Ereignis &e);
    void KindLinkZiehen(const Ereignis &e);
    void TextZiehen(const Ereignis &e);
    void PersonZiehen(const Ereignis &e);
    void BalkenZiehen(const Ereignis &e);
    void RahmenZiehen(const Ereignis &e);

    // How a gesture ends (LeinwandEnde.cpp).
    void PersonGesetzt(const Ereignis &e);
    void PersonLoslassen(const Ereignis &e);
    void TextLoslassen(const Ereignis &e);
    void BalkenLoslassen(const Ereignis &e);
    void BezLinieLoslassen(const Ereignis &e);
    void KindLinieLoslassen(const Ereignis &e);
    void RahmenLoslassen(const Ereignis &e);
    void BildLoslassen();
    void GruppeLoslassen(const Ereignis &e);
    void LegendeLoslassen(const Ereignis &e);
    void KreisLoslassen(const Ereignis &e);
    void KreisSchließen(const Ereignis &e);
    void PfeilGezogen(const Ereignis &e);
    void PfeilEndeLoslassen(const Ereignis &e);
    void PfeilLoslassen(const Ereignis &e);

    /// Opens a context menu from a press: its release will end no gesture.
    void PopupÖffnen(std::string_view menü);
    double Raster(double wert) const;        ///< snapped
    double RasterZehntel(double wert) const; ///< snapped and rounded to one decimal, as stored
    void LinkAbbrechen();
    void ZugAbbrechen();
    bool HatSichBewegt(const Ereignis &e) const;

    Werkbank &w;
    Leinwandlage &lage;
    Auflagen &auflagen;
    Dokument &dokument;
};

} // namespace kw
