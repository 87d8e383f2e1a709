#pragma once

#include <map>
#include <string>
#include <string_view>

namespace kw {

/// State of one menu entry or toolbar item.
struct Bedienelement {
    std::string Caption;
    bool Enabled = true;
    bool Visible = true;
    bool Checked = false; ///< ticked, or for a button pressed
};

/// The states of the menus and the toolbar under the names of their entries. The model writes them, the
/// face shows them; neither decides by them but for the buttons that stand for a state (legend).
class Bedienelemente {
  public:
    /// All elements of the table, in English, as at start.
    Bedienelemente();

    /// "de" gives the German captions, anything else the English ones. Captions that show a state are
    /// set by the routines that own the state.
    void Beschriften(std::string_view sprache);

    /// Element `name`; an unknown name is a fault of the program and throws std::out_of_range.
    Bedienelement &operator[](std::string_view name) { return elemente_.at(std::string(name)); }
    const Bedienelement *Finden(std::string_view name) const;

    /// Ticks `name` and clears the others that begin with `gruppe` ("keyZoom").
    void NurAnkreuzen(std::string_view gruppe, std::string_view name);

  private:
    std::map<std::string, Bedienelement> elemente_;
};

} // namespace kw
