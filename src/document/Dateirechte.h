#pragma once

#include <string>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace kw {

/// Whose a file is and who may do what with it: what another one in its place takes over.
class Dateirechte {
  public:
    /// `angaben` are those of `pfad`, which is no link.
    Dateirechte(const std::string &pfad, const struct stat &angaben);

    /// Gives them to a new file of mode 0600, in an order in which at no moment anybody is let in who wasn't before.
    /// What this user may not give is left: an owner becomes ours; the rights of a group that can't be kept go, and
    /// those of all but the owner where the access list can't. False when owner or list weren't kept; throws
    /// `Systemfehler` when it failed for another reason than that it isn't allowed.
    bool Übertragen(int fd) const;

  private:
    bool ListeÜbertragen(int fd, bool mitGruppe) const;

    uid_t eigner_;
    gid_t gruppe_;
    mode_t modus_;
    std::string liste_; ///< as the system keeps it; empty when the file has none
    bool listeBekannt_ = true;
    std::vector<std::pair<std::string, std::string>> merkmale_; ///< the other extended attributes
};

} // namespace kw
