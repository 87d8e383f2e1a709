#pragma once

#include "arrangement/Seitenlinien.h"

#include <optional>
#include <vector>

// To whom belongs what stands on the page without a bond.
namespace kw {

/// Tells it of a page as it is. Keeps nothing of the document but a reference.
class Zugehörigkeit {
  public:
    Zugehörigkeit(const Dokument &dokument, const Ansicht &ansicht);

    /// Whose text that is, by its box: a position in the store. Nothing where it belongs to the page, as a heading
    /// does: it stands farther from everybody and from all lines than the next generation does, or nearer to the page's
    /// edge.
    std::optional<int> PersonZuText(const Umgebung &text) const;

  private:
    std::optional<int> NächstePersonZu(const Umgebung &text) const;

    const Dokument &d_;
    const Ansicht &ansicht_;
    std::vector<Umgebung> personen_; ///< all, with room for their names; empty for who has no place
    std::vector<Umgebung> linien_;
};

} // namespace kw
