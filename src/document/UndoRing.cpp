#include "document/UndoRing.h"

#include <algorithm>

namespace kw {

void UndoRing::Sichern(const Dokument &dokument) {
    // The first snapshot is the state that everything starts from: it gives no step.
    if (undoFüllung_ > 0) ++undoSchritte_;
    redoSchritte_ = 0;
    undoFüllung_ = std::min(undoSchritte_ + 1, UndoTiefe);
    undoPos_ = undoPos_ % UndoTiefe + 1;
    undoSchritte_ = std::min(undoSchritte_, UndoTiefe - 1);
    for (size_t i = 0; i < SpeicherTabelle.size(); ++i) Aktueller()[i] = dokument.*SpeicherTabelle[i].Liste;
}

void UndoRing::Leeren() { *this = UndoRing(); }

bool UndoRing::Rückgängig(Dokument &dokument) {
    if (undoSchritte_ == 0) return false;
    --undoSchritte_;
    ++redoSchritte_;
    undoPos_ = undoPos_ == 1 ? UndoTiefe : undoPos_ - 1;
    Wiederherstellen(dokument);
    return true;
}

bool UndoRing::Wiederholen(Dokument &dokument) {
    if (redoSchritte_ == 0) return false;
    --redoSchritte_;
    ++undoSchritte_;
    undoPos_ = undoPos_ % UndoTiefe + 1;
    Wiederherstellen(dokument);
    return true;
}

void UndoRing::Wiederherstellen(Dokument &dokument) {
    dokument.lstGelöschtePersNr.Leeren();
    dokument.lstGelöschtePLinien.Leeren();
    for (size_t i = 0; i < SpeicherTabelle.size(); ++i) dokument.*SpeicherTabelle[i].Liste = Aktueller()[i];
}

} // namespace kw
