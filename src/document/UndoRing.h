#pragma once

#include "document/Dokument.h"

#include <array>

namespace kw {

/// Snapshots of the seven stores, in a ring of slots. Whoever changes the document takes one after the
/// change, so the slot `UndoPos` always holds the state that is shown. Free numbers, selection and page
/// are in no snapshot. Knows nothing of buttons or drawing.
class UndoRing {
  public:
    /// Slots. One of them holds the current state, so one step less can be undone.
    static constexpr int UndoTiefe = 6;

    int UndoPos() const { return undoPos_; }           ///< the current slot, from 1; 0 when the ring is empty
    int UndoSchritte() const { return undoSchritte_; } ///< steps that can be undone
    int RedoSchritte() const { return redoSchritte_; } ///< undone steps that can be done again
    int UndoFüllung() const { return undoFüllung_; } ///< slots that can be reached backwards, the current one included

    void Sichern(const Dokument &dokument);
    void Leeren();

    /// Goes one step back, or forward, and restores the stores from that slot. Both lists of free numbers
    /// are emptied and stay so. False, and nothing done, when there is no step left.
    bool Rückgängig(Dokument &dokument);
    bool Wiederholen(Dokument &dokument);

  private:
    using Platz = std::array<Satzliste, std::tuple_size_v<decltype(SpeicherTabelle)>>;
    Platz &Aktueller() { return plätze_[static_cast<size_t>(undoPos_ - 1)]; }
    void Wiederherstellen(Dokument &dokument);

    std::array<Platz, UndoTiefe> plätze_;
    int undoPos_ = 0;
    int undoSchritte_ = 0;
    int redoSchritte_ = 0;
    int undoFüllung_ = 0;
};

} // namespace kw
