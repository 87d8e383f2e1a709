#pragma once

#include "editing/Gesten.h"

namespace kw {

/// The canvas under the pointer: what a press, a move, a release and a double click do. Places are centimetres
/// on the page. `Aktion` decides which gesture an event belongs to; the document changes only at a gesture's end
/// (a dragged circle line is the exception). Each event is a table of short routines: the steps of a press in
/// their order, the gestures of a move and of a release by `Aktion`.
class Leinwand {
  public:
    explicit Leinwand(Werkbank &werkbank) : w(werkbank) {}

    void MouseDown(int taste, double x, double y);
    /// A press beside the page: a tool can't be used there, and the right button ends it there too.
    void DanebenGedrückt(int taste);
    void MouseMove(int taste, double x, double y);
    void MouseUp(int taste, double x, double y);
    /// Whether a move with the left button down would drag something now.
    bool Zieht() const;
    /// Opens the form of what lies there, text boxes and the legend first; of a person behind the event, by a timer.
    void DblClick(double x, double y);

    /// A press of the left button with a tool in hand that makes something, whatever lies there: a tool that is named
    /// instead of pointed with hits nothing else. False, and nothing done, without such a tool.
    bool WerkzeugAnsetzen(double x, double y);

    /// A command comes: a link gesture ends with nothing made, and so does what the button is dragging, but for a
    /// circle line, which stays where it is. The release to come ends no gesture.
    void GesteAbbrechen();

    /// What the button is dragging, or a tool is making, goes back to where it was; the tool stays in hand. False when
    /// there is no such gesture.
    bool GesteZurücknehmen();

  private:
    Werkbank &w;
};

} // namespace kw
