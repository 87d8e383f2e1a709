#pragma once

#include "description/Elementzeilen.h"

#include <string>
#include <vector>

namespace kw {

/// The page in words for somebody who listens: the rows as the last event left them, and what came of it. Costs
/// nothing while nobody does.
class Vorleser {
  public:
    explicit Vorleser(const Seiteninhalt &seite) : seite_(seite) {}

    /// From now on the rows are kept.
    void Zuhören();
    bool HörtZu() const { return hörtZu_; }
    /// Empty before somebody listens.
    const std::vector<Elementzeile> &Zeilen() const { return zeilen_; }
    /// An event is over: brings the rows up to date. Gives what there is to say of it, nothing mostly.
    std::string NachEreignis();
    /// The page from now on is another one, and nothing has come of an event.
    void Auffrischen();

  private:
    const Seiteninhalt seite_;
    std::vector<Elementzeile> zeilen_;
    bool hörtZu_ = false;
};

} // namespace kw
