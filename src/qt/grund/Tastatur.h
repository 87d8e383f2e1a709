#pragma once

#include <cstddef>
#include <vector>

class QAbstractButton;

namespace kw {

/// Whether the key is Enter, on the letters' block or on the numbers'.
bool IstEnter(int taste);

/// From then on Enter presses `knopf` while it has the focus, as the blank does; in a form it would press the default
/// button.
void EnterDrückt(QAbstractButton &knopf);

/// Makes buttons one stop of the tab order: one of them has it, and arrow keys lead from one to another.
class Wanderfokus {
  public:
    /// The next in order; it outlives this object.
    void Aufnehmen(QAbstractButton &knopf) { knöpfe_.push_back(&knopf); }

    /// Gives the stop to the button that has the focus, else to the one that had it last. While that can't be reached,
    /// the next one stands in for it.
    void StoppSetzen();
    /// Whether the button that last had the focus is neither disabled nor hidden.
    bool Erreichbar() const;
    /// The first one gets the stop again.
    void Zurücksetzen() { aktuell_ = 0; }
    /// Moves the focus from `von` by so many places, passing over what can't be reached; it stays at the ends.
    void Gehen(const QAbstractButton &von, int schritt);

  private:
    int Anzahl() const { return static_cast<int>(knöpfe_.size()); }
    QAbstractButton &Knopf(int stelle) const { return *knöpfe_[static_cast<std::size_t>(stelle)]; }

    std::vector<QAbstractButton *> knöpfe_;
    int aktuell_ = 0;
};

} // namespace kw
