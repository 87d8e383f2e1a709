#pragma once

#include "document/Systemaufrufe.h"

#include <string>

namespace kw {

class Versionswahrer;

/// A file beside the one whose place it is to take. Its name is short, since the other's may leave no room for a
/// suffix; it holds a lock, so that what has none is a dead run's. `.neu` holds what is to come, `.alt` what may be the
/// last copy of somebody's version. It goes with this object while its name stands for it, and not for what it
/// displaced.
class Temporärdatei {
  public:
    Temporärdatei(const std::string &ziel, mode_t modus);
    Temporärdatei(const Temporärdatei &) = delete;
    Temporärdatei &operator=(const Temporärdatei &) = delete;
    ~Temporärdatei();

    int Nummer() const { return datei_.Nummer(); }
    const std::string &Name() const { return name_; }
    /// A close that counts; the file stays open and locked.
    void Abschließen() const;
    /// From here on it stands under an `.alt` name.
    void AlsAlt();

  private:
    std::string name_;
    Deskriptor datei_;
};

/// Sweeps what dead runs left in the folder of `ziel`, which the caller names `pfad`: `.neu` goes; `.alt` goes to
/// `wahrer` first, unless it stands in its file, and stays without one. Fails and waits for nothing; looks at so many
/// entries of the folder and no more.
void Fegen(const std::string &ziel, const std::string &pfad, Versionswahrer *wahrer);

} // namespace kw
