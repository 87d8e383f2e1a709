#pragma once

#include "keyboard/Seitencursor.h"

#include <optional>
#include <string>

namespace kw {

class Arbeitsbereich;
class Bedienelemente;
class Benutzer;
class Tastatur;
class Vorleser;
struct Ansicht;
struct Leinwandlage;
struct Zweisprachig;

/// What somebody who listens is told after an event, each thing once: what has come of it, where the cross of a tool
/// is, how large the page is shown, why nothing has come, and what a tool waits for. Owned by the main window.
class Ansager {
  public:
    /// What it looks at.
    struct Zustand {
        Vorleser &vorleser;
        const Tastatur &tastatur;
        const Arbeitsbereich &bereich;
        const Bedienelemente &bedienung;
        const Leinwandlage &lage;
        const Ansicht &ansicht;
    };
    Ansager(Benutzer &hörer, Zustand zustand) : hörer_(hörer), z_(zustand) {}

    /// The user does something: why nothing comes of it is told even when it was told before.
    void NeuerVersuch() { warum_ = nullptr; }
    /// The event is over.
    void NachEreignis();

  private:
    Benutzer &hörer_;
    const Zustand z_;
    std::optional<Seitenort> ort_;
    std::string schritt_;
    int zoom_ = -1;                       ///< place in the zoom list, told or not
    const Zweisprachig *warum_ = nullptr; ///< the reason that has been told
};

} // namespace kw
