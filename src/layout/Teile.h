#pragma once

#include "layout/Geruest.h"
#include "layout/Strecken.h"

#include <vector>

// Those who have no bond with each other stand side by side.
namespace kw {

/// A family in itself.
struct Teil {
    Familiengraph Graph;       ///< its families as `GeprüfteFamilien` gives them
    std::vector<int> Personen; ///< what they are in the whole
    std::vector<int> Familien;
    std::vector<int> Ebenen; ///< from 0
    int Oberste = 0;         ///< the row of the page in which its first one stands
};

/// In the order in which the user drew them, else in that of their first persons. Somebody without any bond is a part
/// only when a level is fixed for them.
std::vector<Teil> TeileFinden(const Familiengraph &graph, const std::vector<Familie> &familien,
                              const std::vector<int> &ebenen);

/// Puts parts side by side, and in columns behind them those who have neither bond nor place.
class Nebeneinander {
  public:
    Nebeneinander(const Familiengraph &graph, const Abstände &abstände, const std::vector<Teil> &teile);
    /// Where the part's 0, 0 comes to stand: behind the others, or, where all of it have a place, where they have it.
    Punkt Platz(const Teil &teil, const Lageplan &plan);
    void EinzelneSetzen(std::vector<Punkt> &personen);

  private:
    std::int64_t Abstand(double links) const;

    const Familiengraph &graph_;
    const Abstände &abstände_;
    std::vector<char> vergeben_;
    int zeilen_ = 0;
    std::int64_t rechts_ = 0; ///< the rightmost centre so far
    double label_ = 0;        ///< what the widest label needs to the right of it, cm
    bool leer_ = true;
};

} // namespace kw
