#include "document/Dateirechte.h"

#include "document/Systemaufrufe.h"

#include <string_view>
#include <sys/xattr.h>
#include <unistd.h>

namespace kw {

namespace {

constexpr const char *Zugriffsliste = "system.posix_acl_access";
constexpr std::size_t GrößtesMerkmal = 65536; // the system's own limit, of a value as of the list of names

/// Sums over the old content, which the system makes anew.
bool GehörtZumInhalt(std::string_view name) {
    return name == "security.ima" || name == "security.evm" || name == "security.capability";
}

/// Not allowed, or unknown to this file system: something to do without.
bool IstVerweigert(int fehler) {
    return fehler == EPERM || fehler == EACCES || fehler == EINVAL || fehler == EOPNOTSUPP || fehler == ENOSYS;
}
bool IstUnbekannt(int fehler) { return fehler == ENODATA || fehler == EOPNOTSUPP || fehler == ENOSYS; }

/// Whether a call was obeyed; throws when it failed for another reason than that it isn't allowed.
template <typename Ruf> bool Gewährt(Ruf ruf) {
    if (Ununterbrochen(ruf) == 0) return true;
    if (!IstVerweigert(errno)) Scheitern();
    return false;
}

/// What a call writes to a buffer; empty with `errno` set when it fails.
template <typename Ruf> std::string Gefüllt(Ruf ruf) {
    errno = 0;
    // Mostly there is none, and asking for the length costs least.
    if (Ununterbrochen([&] { return ruf(nullptr, 0); }) <= 0) return {};
    std::string puffer(GrößtesMerkmal, '\0');
    const auto länge = Ununterbrochen([&] { return ruf(puffer.data(), puffer.size()); });
    puffer.resize(länge < 0 ? 0 : static_cast<std::size_t>(länge));
    return puffer;
}

} // namespace

Dateirechte::Dateirechte(const std::string &pfad, const struct stat &angaben)
    : eigner_(angaben.st_uid), gruppe_(angaben.st_gid), modus_(angaben.st_mode & 07777U) {
    const auto wertVon = [&](const char *name) {
        return Gefüllt([&](char *ziel, std::size_t platz) { return ::getxattr(pfad.c_str(), name, ziel, platz); });
    };
    liste_ = wertVon(Zugriffsliste);
    listeBekannt_ = !liste_.empty() || errno == 0 || IstUnbekannt(errno);
    const auto namen = Gefüllt([&](char *ziel, std::size_t platz) { return ::listxattr(pfad.c_str(), ziel, platz); });
    for (std::size_t i = 0; i < namen.size();) {
        const std::string name(namen.c_str() + i);
        i += name.size() + 1;
        if (name == Zugriffsliste || GehörtZumInhalt(name)) continue;
        auto wert = wertVon(name.c_str());
        if (!wert.empty() || errno == 0) merkmale_.emplace_back(name, std::move(wert));
    }
}

bool Dateirechte::ListeÜbertragen(int fd, bool mitGruppe) const {
    // A folder can give its new files a list of its own: away with it where the old file had none.
    const bool fort = Ununterbrochen([&] { return ::fremovexattr(fd, Zugriffsliste); }) == 0 || IstUnbekannt(errno);
    if (!fort || !listeBekannt_) return false;
    if (liste_.empty()) return true;
    // The list tells of the group: beside another it would let others in.
    return mitGruppe && Gewährt([&] { return ::fsetxattr(fd, Zugriffsliste, liste_.data(), liste_.size(), 0); });
}

bool Dateirechte::Übertragen(int fd) const {
    for (const auto &merkmal : merkmale_) {
        const auto &wert = merkmal.second;
        Gewährt([&] { return ::fsetxattr(fd, merkmal.first.c_str(), wert.data(), wert.size(), 0); });
    }
    struct stat neu {};
    Geprüft([&] { return ::fstat(fd, &neu); });
    // One by one: asked for both, the system refuses both where only the group could be had.
    constexpr auto Bleibt = static_cast<uid_t>(-1);
    const bool gruppe = neu.st_gid == gruppe_ || Gewährt([&] { return ::fchown(fd, Bleibt, gruppe_); });
    const bool eigner = neu.st_uid == eigner_ || Gewährt([&] { return ::fchown(fd, eigner_, Bleibt); });
    const bool liste = ListeÜbertragen(fd, gruppe);
    mode_t modus = modus_;
    if (!gruppe || !eigner) modus &= 01777U;
    // Who was of the group is one of the others now, and may no more than the group might.
    if (!gruppe) modus &= ~077U | (modus_ >> 3U & 07U);
    if (!liste) modus &= ~077U;
    Geprüft([&] { return ::fchmod(fd, modus); });
    return eigner && liste;
}

} // namespace kw
