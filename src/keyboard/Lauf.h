#pragma once

#include "document/Dokument.h"
#include "editing/Auflagen.h"
#include "editing/Elemente.h"
#include "editing/Leinwandlage.h"
#include "editing/Werkbank.h"

#include <optional>

namespace kw {

/// Moving by keys: a run of steps is one gesture. Each step drags from where the run began to where it has come, by the
/// gestures' own routines, so that ten steps come out as one drag of that way; the snapshot comes at the run's end.
class Lauf {
  public:
    explicit Lauf(Werkbank &w) : w_(w) {}

    bool Läuft() const { return anfang_.has_value(); }
    /// Whether it has come anywhere.
    bool HatWeg() const { return Läuft() && (schritteX_ != 0 || schritteY_ != 0); }
    /// What is selected, or else `ersatz`, goes so many steps of the raster further, and stays selected. False when it
    /// can't: nothing there, a line that follows its persons, the page's edge.
    bool Schritt(std::optional<Element> ersatz, int schritteX, int schritteY);
    /// The way stays, as one snapshot; nothing without a way.
    void Beenden();
    /// Another document has come: there is nothing to go back to.
    void Verwerfen() { anfang_.reset(); }
    /// Everything is as before the run.
    void Zurücknehmen();

  private:
    struct Zustand {
        Dokument dokument;
        Auswahl auswahl;
        Leinwandlage lage;
        Auflagen auflagen;
        std::optional<Element> element; ///< that moves alone; none for a group
    };
    bool Beginnen(std::optional<Element> ersatz);
    void Wiederherstellen(const Zustand &zustand);
    bool EinSchritt(int x, int y);
    void Ziehen(double dx, double dy);

    Werkbank &w_;
    std::optional<Zustand> anfang_;
    int schritteX_ = 0;
    int schritteY_ = 0;
};

} // namespace kw
