#include "document/Temporaerdatei.h"

#include "document/Dateien.h"

#include <chrono>
#include <dirent.h>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <new>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace kw {

namespace {

constexpr std::string_view Anfang = ".kw-";
constexpr std::string_view EndeNeu = ".neu";
constexpr std::string_view EndeAlt = ".alt";
constexpr std::string_view Hexziffern = "0123456789abcdef";
constexpr std::size_t Herkunft = 8; // digits that tell which file it is for
constexpr std::size_t Ziffern = 24;

std::string HerkunftVon(std::string_view name) { return AlsText(FingerabdruckVon(name)).substr(0, Herkunft); }

std::string NeuerName(const std::string &ziel) {
    std::uint64_t zahl = 0;
    if (::getrandom(&zahl, sizeof zahl, GRND_NONBLOCK) != sizeof zahl)
        zahl = static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    const auto zufall = AlsText({zahl, 0}).substr(0, Ziffern - Herkunft);
    return Ordner(ziel).append(Anfang).append(HerkunftVon(DateiName(ziel)) + zufall).append(EndeNeu);
}

/// Calls for the names in a folder until it says false. So many and no more: a folder can be huge and far away.
void FürNamen(const std::string &ordner, const std::function<bool(std::string_view)> &ruf) {
    constexpr int Höchstens = 5000;
    struct Schließer {
        void operator()(DIR *verzeichnis) const { ::closedir(verzeichnis); }
    };
    const std::unique_ptr<DIR, Schließer> verzeichnis(::opendir(ordner.c_str()));
    for (int i = 0; verzeichnis && i < Höchstens; ++i) {
        const auto *const eintrag = ::readdir(verzeichnis.get());
        if (eintrag == nullptr || !ruf(eintrag->d_name)) return;
    }
}

enum class Rest { Keiner, Neu, Alt, AltenNamens };

/// What a name says; of an earlier version's those that read ".kw-PID-NUMBER".
Rest RestVon(std::string_view name) {
    if (!name.starts_with(Anfang)) return Rest::Keiner;
    name.remove_prefix(Anfang.size());
    const auto ende = name.find_first_not_of(Hexziffern);
    if (ende == std::string_view::npos) return Rest::Keiner;
    if (ende == Ziffern && name.substr(ende) == EndeNeu) return Rest::Neu;
    if (ende == Ziffern && name.substr(ende) == EndeAlt) return Rest::Alt;
    constexpr std::string_view Dezimal = "0123456789-";
    const bool alt = ende > 0 && name[ende] == '-' && name.find_first_not_of(Dezimal) == std::string_view::npos;
    return alt ? Rest::AltenNamens : Rest::Keiner;
}

class Besen {
  public:
    Besen(const std::string &ziel, const std::string &pfad, Versionswahrer *wahrer)
        : ordner_(Ordner(ziel)), ziel_(ziel), pfad_(pfad), wahrer_(wahrer) {}

    void Fegen(const std::string &name) const {
        const std::string rest = ordner_ + name;
        struct stat angaben {};
        if (::lstat(rest.c_str(), &angaben) != 0 || !S_ISREG(angaben.st_mode) || angaben.st_uid != ::geteuid()) return;
        constexpr time_t Tag = 86400;
        const auto art = RestVon(name);
        if (art == Rest::AltenNamens && ::time(nullptr) - angaben.st_mtime < Tag) return; // they had no lock
        const Deskriptor datei(Geöffnet(rest));
        if (!Sperren(datei.Nummer(), LOCK_EX) || !StehtFür(rest, datei.Nummer())) return;
        if (art == Rest::Alt && !IstVerzichtbar(rest, datei.Nummer())) return;
        ::unlink(rest.c_str());
    }

  private:
    /// To write where that is allowed: network folders lock nothing else.
    static int Geöffnet(const std::string &rest) {
        constexpr int Vorsicht = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
        const int fd = Öffnen(rest, O_RDWR | Vorsicht);
        return fd >= 0 ? fd : Öffnen(rest, O_RDONLY | Vorsicht);
    }

    /// The file that an `.alt` was made for; itself when that is gone.
    std::string HerkunftDes(const std::string &rest) const {
        const auto gesucht = DateiName(rest).substr(Anfang.size(), Herkunft);
        if (HerkunftVon(DateiName(ziel_)) == gesucht) return ziel_;
        std::string gefunden = rest;
        FürNamen(ordner_, [&](std::string_view name) {
            const bool ist = HerkunftVon(name) == gesucht;
            if (ist) gefunden = ordner_ + std::string(name);
            return !ist;
        });
        return gefunden;
    }

    bool IstVerzichtbar(const std::string &rest, int fd) const {
        if (wahrer_ == nullptr) return false;
        const auto inhalt = AllesLesen(fd);
        const auto herkunft = HerkunftDes(rest);
        std::string steht;
        if (herkunft != rest && DateiLesen(herkunft, steht).Gelungen() && steht == inhalt) return true;
        return wahrer_->Beiseitelegen(herkunft == ziel_ ? pfad_ : herkunft, inhalt);
    }

    const std::string ordner_;
    const std::string &ziel_;
    const std::string &pfad_;
    Versionswahrer *const wahrer_;
};

} // namespace

Temporärdatei::Temporärdatei(const std::string &ziel, mode_t modus) {
    constexpr int MeisteVersuche = 1000;
    for (int i = 0; i < MeisteVersuche; ++i) {
        name_ = NeuerName(ziel);
        const int fd = Öffnen(name_, O_RDWR | O_CREAT | O_EXCL, modus);
        if (fd < 0 && errno == EEXIST) continue;
        datei_ = Deskriptor(fd);
        // Between making and locking it another run may have taken it for a dead one's.
        const bool wirdGefegt = !Sperren(fd, LOCK_EX) && errno == EWOULDBLOCK;
        if (!wirdGefegt && StehtFür(name_, fd)) return;
        ::unlink(name_.c_str()); // nobody else has that name
    }
    Scheitern(EEXIST);
}

Temporärdatei::~Temporärdatei() {
    if (StehtFür(name_, Nummer())) ::unlink(name_.c_str());
}

void Temporärdatei::Abschließen() const {
    Deskriptor(Ununterbrochen([&] { return ::fcntl(Nummer(), F_DUPFD_CLOEXEC, 0); })).Schließen();
}

void Temporärdatei::AlsAlt() {
    auto alt = name_.substr(0, name_.size() - EndeNeu.size()).append(EndeAlt);
    Geprüft([&] { return ::rename(name_.c_str(), alt.c_str()); });
    name_ = std::move(alt);
}

void Fegen(const std::string &ziel, const std::string &pfad, Versionswahrer *wahrer) {
    if (!IstBeschreibbar(Ordner(ziel))) return; // nothing can be removed there
    constexpr std::size_t Meiste = 100;
    std::vector<std::string> reste;
    FürNamen(Ordner(ziel), [&](std::string_view name) {
        if (RestVon(name) != Rest::Keiner) reste.emplace_back(name);
        return reste.size() < Meiste;
    });
    const Besen besen(ziel, pfad, wahrer);
    for (const auto &rest : reste) {
        try {
            besen.Fegen(rest);
        } catch (const Systemfehler &) {
            continue; // it stays, and the writing goes on
        } catch (const std::bad_alloc &) {
            continue;
        }
    }
}

} // namespace kw
