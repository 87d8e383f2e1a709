// The session's own record. The calls by which files come to their places are caught here, before the system sees them.
#include "absturz/Protokoll.h"

#include "app/Projekt.h"
#include "document/Dateien.h"
#include "document/Dokument.h"
#include "document/ProjektDatei.h"
#include "replay/Einblick.h"

#include <cstring>
#include <filesystem>
#include <optional>

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

namespace kw {

namespace {

int protokoll = -1;
std::function<const Einblick *()> gerade;

void Anhängen(std::string &bytes, const std::string &feld) {
    const auto länge = static_cast<std::uint64_t>(feld.size());
    bytes.append(reinterpret_cast<const char *>(&länge), sizeof länge).append(feld);
}

std::optional<std::string> Feld(std::string_view &rest) {
    std::uint64_t länge = 0;
    if (rest.size() < sizeof länge) return {};
    std::memcpy(&länge, rest.data(), sizeof länge);
    rest.remove_prefix(sizeof länge);
    if (rest.size() < länge) return {};
    std::string feld(rest.substr(0, länge));
    rest.remove_prefix(länge);
    return feld;
}

/// Whether writing the document into a file of these bytes would change nothing.
bool Hält(const std::string &bytes, const Dokument &dokument) {
    Profil profil(bytes);
    ProjektEintragen(dokument, profil);
    return profil.Inhalt() == bytes;
}

/// A project may have any name.
void VorUmbenennen(const char *von, const char *nach) {
    const std::string_view ziel = nach;
    const Einblick *innen = protokoll < 0 || !gerade ? nullptr : gerade();
    if (!innen) return;
    if (ziel.ends_with(".stand")) return Festhalten(Eintrag::Art::InsNetz, StandVon(*innen));
    const bool istUnseres = ziel.find("/kinwright/") != ziel.npos || ziel.find(".kw-") != ziel.npos;
    if (istUnseres || ziel.ends_with(".ini")) return;
    Eintrag eintrag;
    eintrag.Was = Eintrag::Art::AnSeinenOrt;
    eintrag.Stand = StandVon(*innen);
    eintrag.Pfad = std::filesystem::absolute(ziel).string();
    DateiLesen(von, eintrag.Bytes);
    eintrag.Hält = Hält(eintrag.Bytes, innen->dokument);
    Festhalten(eintrag);
}

template <typename Ruf> Ruf *Eigentlich(Ruf *, const char *name) {
    return reinterpret_cast<Ruf *>(::dlsym(RTLD_NEXT, name));
}

} // namespace

Dokumentstand StandVon(const Einblick &innen) {
    Profil profil;
    ProjektEintragen(innen.dokument, profil);
    return {innen.projekt.Geändert, profil.Inhalt()};
}

void ProtokollBeginnen(const std::string &datei, std::function<const Einblick *()> innen) {
    protokoll = ::open(datei.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    gerade = std::move(innen);
}

/// In one call, so that a kill leaves it whole or cut, with nothing behind it.
void Festhalten(const Eintrag &eintrag) {
    std::string bytes;
    Anhängen(bytes, {static_cast<char>(eintrag.Was), eintrag.Stand.Geändert ? '1' : '0', eintrag.Hält ? '1' : '0'});
    for (const auto *feld : {&eintrag.Stand.Projekt, &eintrag.Pfad, &eintrag.Bytes}) Anhängen(bytes, *feld);
    if (::write(protokoll, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) ::_exit(3);
}

void Festhalten(Eintrag::Art was, const Dokumentstand &stand) {
    Eintrag eintrag;
    eintrag.Was = was;
    eintrag.Stand = stand;
    Festhalten(eintrag);
}

void Festhalten(const std::string &zeilen) {
    Eintrag eintrag;
    eintrag.Was = Eintrag::Art::Schritt;
    eintrag.Bytes = zeilen;
    Festhalten(eintrag);
}

std::vector<Eintrag> ProtokollLesen(const std::string &datei) {
    std::string bytes;
    DateiLesen(datei, bytes);
    std::vector<Eintrag> einträge;
    for (std::string_view rest = bytes;;) {
        const auto kopf = Feld(rest), projekt = Feld(rest), pfad = Feld(rest), inhalt = Feld(rest);
        if (!inhalt) return einträge;
        einträge.push_back(
            {Eintrag::Art{(*kopf)[0]}, {(*kopf)[1] == '1', *projekt}, *pfad, *inhalt, (*kopf)[2] == '1'});
    }
}

} // namespace kw

// NOLINTBEGIN: the parameters' names are the library's elsewhere.
extern "C" {

int rename(const char *von, const char *nach) noexcept {
    static auto *const ruf = kw::Eigentlich(&::rename, "rename");
    kw::VorUmbenennen(von, nach);
    return ruf(von, nach);
}

int renameat2(int ordner, const char *von, int neuer, const char *nach, unsigned wie) noexcept {
    static auto *const ruf = kw::Eigentlich(&::renameat2, "renameat2");
    kw::VorUmbenennen(von, nach);
    return ruf(ordner, von, neuer, nach, wie);
}

int unlink(const char *pfad) noexcept {
    static auto *const ruf = kw::Eigentlich(&::unlink, "unlink");
    const kw::Einblick *innen = kw::protokoll < 0 || !kw::gerade ? nullptr : kw::gerade();
    if (innen && std::string_view(pfad).ends_with(".stand"))
        kw::Festhalten(kw::Eintrag::Art::AusDemNetz, kw::StandVon(*innen));
    return ruf(pfad);
}
}
// NOLINTEND
