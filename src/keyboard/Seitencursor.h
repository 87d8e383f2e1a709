#pragma once

#include "editing/Elemente.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kw {

/// A place on the page, cm.
struct Seitenort {
    double X = 0;
    double Y = 0;
    bool operator==(const Seitenort &) const = default;
};

/// Where the keyboard is on the page: on an element, or with a tool in hand at a place of the raster. It is no
/// selection; going about with it changes nothing else.
class Seitencursor {
  public:
    const std::optional<kw::Element> &Element() const { return element_; }
    std::optional<Seitenort> Ort; ///< while a tool is in hand

    void Setzen(const Dokument &dokument, kw::Element element);
    /// The records may have changed. It stays on its element, wherever in its store that now stands; of one that is
    /// gone it goes to what stood behind it in the walk round the page, else to the last, else nowhere.
    void Nachführen(const Dokument &dokument);
    /// Another document: nowhere.
    void Vergessen() { *this = {}; }

    /// "person 001", "legend", "place 3 4.5" or "none".
    std::string Text(const Dokument &dokument) const;

  private:
    /// What tells an element from the others of its kind while their positions change: its number, else its record.
    struct Kennung {
        Elementart Art;
        std::string Wert;
        bool operator==(const Kennung &) const = default;
    };
    static Kennung KennungVon(const Dokument &dokument, kw::Element element);
    /// Where the element that it was on stands among `alle`, or what takes its place.
    std::optional<kw::Element> Wiedergefunden(const Dokument &dokument, const std::vector<kw::Element> &alle) const;

    std::optional<kw::Element> element_;
    std::vector<Kennung> gang_; ///< the walk round the page as it was last, from the element on
    std::ptrdiff_t anzahl_ = 0; ///< of its kind, then
};

} // namespace kw
