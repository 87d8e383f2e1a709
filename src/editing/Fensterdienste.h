#pragma once

#include "platform/Befehlsnamen.h"

namespace kw {

struct Bildausschnitt;

/// What editing asks of the main window around it.
class Fensterdienste {
  public:
    virtual ~Fensterdienste() = default;
    /// Redraws the whole canvas from the stores.
    virtual void Vorschau() = 0;
    /// Takes an undo snapshot and marks the document as changed.
    virtual void Sichern() = 0;
    /// Marks the document as changed: what no snapshot holds.
    virtual void AlsGeändertMerken() = 0;
    /// Shows a context menu at the pointer and runs what the user picks there, before it returns.
    virtual void PopupÖffnen(Befehlsname menü) = 0;
    /// Shows a form modally; what it changes is changed when this returns.
    virtual void FormÖffnen(Formularname form) = 0;
    /// Puts a region of the canvas's picture, in its centimetres, where the tool says: on the clipboard or in a file.
    virtual void AusschnittAusgeben(const Bildausschnitt &cm, bool inDatei) = 0;
};

} // namespace kw
