#pragma once

#include "editing/Geometrie.h"
#include "editing/Werkbank.h"
#include "keyboard/Seitencursor.h"

#include <optional>

namespace kw {

/// A tool without the pointer: a cross takes its place. What is made comes from the gestures' own routines.
class Kreuz {
  public:
    explicit Kreuz(Werkbank &w) : w_(w) {}

    /// Where it begins: at the middle of `rahmen`, else of the page, on the raster.
    Seitenort Anfang(const std::optional<Umgebung> &rahmen) const;
    /// So many steps of the raster further, as far as the page goes; what is being drawn follows.
    Seitenort Bewegt(Seitenort ort, int schritteX, int schritteY);

    /// What was selected when the tool was taken: the circle line is laid round that by the first Enter.
    void UmrissMerken(const std::optional<Umgebung> &umriss) { umriss_ = umriss; }
    /// Whether something is being drawn by keys: begun by an Enter and not ended.
    bool Zeichnet() const { return zeichnet_ && w_.lage.Gedrückt; }
    /// The pointer takes over.
    void Ablegen() { zeichnet_ = false; }
    /// Whether the first Enter lays a circle line round what was selected.
    bool UmrisstAuswahl() const { return umriss_.has_value() && !Zeichnet(); }
    /// Enter: places, begins or ends. What has been made, if something has.
    std::optional<Element> Ansetzen(Seitenort ort);

  private:
    void Weiterführen(Seitenort ort);
    void KreislinieUm(const Umgebung &umriss);

    Werkbank &w_;
    std::optional<Umgebung> umriss_;
    bool zeichnet_ = false;
    Seitenort anfang_; ///< of the stroke in the making
    Seitenort letzter_;
};

} // namespace kw
