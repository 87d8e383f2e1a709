#pragma once

#include <string>
#include <string_view>

namespace kw {

class Bedienelemente;
class Tastatur;
class UndoRing;
struct Ansicht;
struct Auswahl;
struct Dokument;
struct Leinwandlage;
struct Zweisprachig;

/// What the window tells whoever doesn't know how to go on: in the status row what comes next, or why nothing came of
/// the last gesture, or what the palette's button under the pointer is; on a page on which nothing was ever done, how
/// to begin. Owned by the main window.
class Wegweiser {
  public:
    /// What it looks at.
    struct Zustand {
        const Dokument &dokument;
        const Ansicht &ansicht;
        const Auswahl &auswahl;
        const Leinwandlage &lage;
        const UndoRing &ring;
        const Tastatur &tastatur;
    };
    Wegweiser(Bedienelemente &bedienung, Zustand zustand) : bedienung_(bedienung), z_(zustand) {}

    /// The pointer has come over the palette's button `werkzeug`, or is over none (0).
    void PaletteBerührt(int werkzeug);
    /// Brings `lblStatus` and `lblEinstieg` up to date: after every event, when `Anzeige` has told what can be chosen.
    void Zeigen();

    /// Why command `name` can't be chosen now; nothing when that needs no word.
    const Zweisprachig *WarumGesperrt(std::string_view name) const;

  private:
    std::string Zeile() const;
    std::string KnopfZeile() const;
    std::string_view Aussehen() const;
    std::string NächsterSchritt() const;
    std::string MitWerkzeugnamen(std::string schritt) const;
    const Zweisprachig *NächsteTaste() const;

    Bedienelemente &bedienung_;
    const Zustand z_;
    int berührt_ = 0;
    const Zweisprachig *überholt_ = nullptr; ///< the reason that was told before the pointer came over the button
};

} // namespace kw
