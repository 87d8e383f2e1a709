#pragma once

#include "platform/Befehlsnamen.h"

#include <map>
#include <string>
#include <string_view>

namespace kw {

/// State of one menu entry, toolbar item, palette button or panel.
struct Bedienelement {
    std::string Caption;
    std::string Tipp = {}; ///< of a toolbar item: its name, where the caption may be a state; of the palette's panel
                           ///< how a sign looks; of a recent file its path
    bool Enabled = true;
    bool Visible = true;
    bool Checked = false; ///< ticked, or for a button pressed
};

/// The states of everything that the user can press, under the names of the elements. The model writes them, the faces
/// show them; a command that is disabled or hidden isn't run. Of what they show, a print run reads the orientation, the
/// manual's command the language, and the panel of the import list whether it is open.
class Bedienelemente {
  public:
    Bedienelement &operator[](Befehlsname name) { return Mit(name.Text); }
    const Bedienelement &operator[](Befehlsname name) const { return *Finden(name.Text); }
    /// Element `name`, for names that are put together, or read; an unknown name is a fault of the program and throws
    /// std::out_of_range.
    Bedienelement &Mit(std::string_view name) {
        const auto i = elemente_.find(name);
        return i == elemente_.end() ? elemente_.at(std::string(name)) : i->second;
    }
    /// The element, or nothing.
    const Bedienelement *Finden(std::string_view name) const {
        const auto i = elemente_.find(name);
        return i == elemente_.end() ? nullptr : &i->second;
    }
    void Anlegen(std::string_view name, Bedienelement element) { elemente_[std::string(name)] = std::move(element); }

    /// Ticks `name` and clears the others that begin with `gruppe` ("keyZoom").
    void NurAnkreuzen(std::string_view gruppe, std::string_view name) {
        for (auto &[eigenerName, element] : elemente_)
            if (std::string_view(eigenerName).starts_with(gruppe)) element.Checked = eigenerName == name;
    }

  private:
    std::map<std::string, Bedienelement, std::less<>> elemente_;
};

} // namespace kw
