#include "document/Ersetzen.h"

#include "document/Dateirechte.h"
#include "document/Systemaufrufe.h"
#include "document/Temporaerdatei.h"

#include <cstdio>
#include <fcntl.h>
#include <new>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kw {

namespace {

constexpr int Vorsicht = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;

/// The folder, the user's rights in it or a mount stand in the way of another file in its place.
bool IstOrtsgebunden(int fehler) { return fehler == EACCES || fehler == EPERM || fehler == EROFS || fehler == EBUSY; }

int Umbenennen(const std::string &von, const std::string &nach, unsigned wie) {
    return Ununterbrochen([&] { return ::renameat2(AT_FDCWD, von.c_str(), AT_FDCWD, nach.c_str(), wie); });
}

/// What stands in the file, and it open with a lock, so that no other run sweeps it when it is out of its place.
struct Vorgefunden {
    std::optional<std::string> Inhalt;
    Deskriptor Datei;
};

/// Reads it and has it kept if it must be; nothing when the file is gone.
Vorgefunden VorfindenUndSichern(const Schreibauftrag &auftrag) {
    Vorgefunden steht;
    try {
        steht.Datei = Deskriptor(Öffnen(auftrag.Ziel, O_RDONLY | Vorsicht));
        Sperren(steht.Datei.Nummer(), LOCK_SH);
        steht.Inhalt = AllesLesen(steht.Datei.Nummer());
    } catch (const Systemfehler &fehler) {
        if (fehler.Nummer == ENOENT) return {};
        throw Ungesichert{fehler.Nummer};
    }
    auftrag.Sichern(*steht.Inhalt);
    return steht;
}

/// Whether nothing is lost with the file that came out under `name`, where `gelesen` was expected.
bool IstSicher(const Schreibauftrag &auftrag, const std::string &name, const std::optional<std::string> &gelesen) {
    try {
        const Deskriptor datei(Öffnen(name, O_RDONLY | Vorsicht));
        struct stat angaben {};
        Geprüft([&] { return ::fstat(datei.Nummer(), &angaben); });
        if (!S_ISREG(angaben.st_mode)) return false;
        if (gelesen && Enthält(datei.Nummer(), *gelesen)) return true;
        ZumAnfang(datei.Nummer());
        auftrag.Sichern(AllesLesen(datei.Nummer()));
        return true;
    } catch (const Systemfehler &fehler) {
        return fehler.Nummer == ENOENT; // another run swept it, having kept it
    } catch (const Ungesichert &) {
        return false;
    } catch (const std::bad_alloc &) {
        return false;
    }
}

class Einsetzung {
  public:
    Einsetzung(const Schreibauftrag &auftrag, Temporärdatei &neu, const Deskriptor &ordner)
        : auftrag_(auftrag), neu_(neu), ordner_(ordner) {}

    void Schlicht() const {
        // A network can lose the answer to a call that it obeyed.
        const auto ruf = [&] { return ::rename(neu_.Name().c_str(), auftrag_.Ziel.c_str()); };
        if (Ununterbrochen(ruf) != 0 && !IstVollbracht()) Scheitern();
        OrdnerFlushen();
    }

    /// Exchanges the names and looks at what came out, so that a write since it was read isn't lost either.
    void Bewacht(bool vorhanden) {
        const auto steht = vorhanden ? VorfindenUndSichern(auftrag_) : Vorgefunden{};
        neu_.AlsAlt();
        constexpr int MeisteVersuche = 10; // the file comes and goes under our hands
        for (int i = 0; i < MeisteVersuche; ++i) {
            if (Umbenennen(neu_.Name(), auftrag_.Ziel, RENAME_EXCHANGE) == 0 || IstVollbracht())
                return Prüfen(steht.Inhalt);
            if (errno != ENOENT) break;
            if (Umbenennen(neu_.Name(), auftrag_.Ziel, RENAME_NOREPLACE) == 0 || IstVollbracht())
                return OrdnerFlushen();
            if (errno != EEXIST) break;
        }
        if (errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP) Scheitern();
        // Not on this file system: a look right before has to do.
        const auto jetzt = VorfindenUndSichern(auftrag_);
        Schlicht();
    }

  private:
    /// Keeps `errno`, which is to be told when it isn't.
    bool IstVollbracht() const {
        const int fehler = errno;
        const bool vollbracht = StehtFür(auftrag_.Ziel, neu_.Nummer());
        errno = fehler;
        return vollbracht;
    }

    /// From the renaming on the new file is there, whole and on the disk. Should the folder fail to reach the disk, a
    /// power cut could bring the old file back, whole too; "not saved" would be the wrong answer to that.
    void OrdnerFlushen() const {
        if (!auftrag_.Wie.Flüchtig) Ununterbrochen([&] { return ::fsync(ordner_.Nummer()); });
    }

    void Prüfen(const std::optional<std::string> &gelesen) const {
        if (IstSicher(auftrag_, neu_.Name(), gelesen)) {
            OrdnerFlushen();
            ::unlink(neu_.Name().c_str());
            return;
        }
        // Should the way back fail too, the file is the new one, and the other waits under its name for a sweep.
        if (Umbenennen(neu_.Name(), auftrag_.Ziel, RENAME_EXCHANGE) != 0 && IstVollbracht()) return OrdnerFlushen();
        OrdnerFlushen();
        throw Ungesichert{};
    }

    const Schreibauftrag &auftrag_;
    Temporärdatei &neu_;
    const Deskriptor &ordner_;
};

/// All but the taking of the place. False as `Ersetzen`.
bool Vorbereitet(const Schreibauftrag &auftrag, const Temporärdatei &neu, const struct stat *alt) {
    AllesSchreiben(neu.Nummer(), auftrag.Inhalt);
    if (alt != nullptr && !Dateirechte(auftrag.Ziel, *alt).Übertragen(neu.Nummer()) && auftrag.Wie.Wahrer != nullptr)
        return false;
    if (auftrag.Wie.Flüchtig) {
        neu.Abschließen();
        return true;
    }
    Flushen(neu.Nummer());
    neu.Abschließen();
    ZumAnfang(neu.Nummer());
    if (!Enthält(neu.Nummer(), auftrag.Inhalt)) Scheitern(EIO);
    return true;
}

/// In place of this file another was put while it was at work on it: another try would do.
void IstNochDa(const std::string &name, int fd) {
    if (!StehtFür(name, fd)) Scheitern(EAGAIN);
}

void Überschreiben(int fd, std::string_view inhalt) {
    ZumAnfang(fd);
    AllesSchreiben(fd, inhalt);
    Geprüft([&] { return ::ftruncate(fd, static_cast<off_t>(inhalt.size())); });
    Flushen(fd);
    ZumAnfang(fd);
    if (!Enthält(fd, inhalt)) Scheitern(EIO);
}

/// Runs what changes the file, and tells what it threw.
template <typename Ruf> std::optional<Systemfehler> Fehler(Ruf ruf) {
    try {
        ruf();
        return {};
    } catch (const Systemfehler &fehler) {
        return fehler;
    }
}

/// Another run of ours may be writing here. Other programs lock for reasons of their own, so it isn't waited for long.
void SperreAbwarten(int fd) {
    constexpr int MeisteVersuche = 50;
    constexpr useconds_t Pause = 20000;
    for (int i = 0; i < MeisteVersuche && !Sperren(fd, LOCK_EX) && errno == EWOULDBLOCK; ++i) ::usleep(Pause);
}

std::string VonVornGelesen(int fd) {
    try {
        ZumAnfang(fd);
        return AllesLesen(fd);
    } catch (const Systemfehler &fehler) {
        throw Ungesichert{fehler.Nummer};
    }
}

/// A full disk is better found out before anything is written over; where that can't be asked, it is found then.
void PlatzNehmen(int fd, std::size_t größe) {
    const auto ruf = [&] { return ::fallocate(fd, FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(größe)); };
    if (größe > 0 && Ununterbrochen(ruf) != 0 && (errno == ENOSPC || errno == EDQUOT)) Scheitern();
}

} // namespace

void Schreibauftrag::Sichern(std::string_view steht) const {
    if (steht == Inhalt || (!Wie.ImmerBeiseite && FingerabdruckVon(steht) == Wie.Erwartet)) return;
    if (!Wie.Wahrer->Beiseitelegen(Pfad, steht)) throw Ungesichert{};
}

bool Ersetzen(const Schreibauftrag &auftrag, const struct stat *alt) {
    try {
        Fegen(auftrag.Ziel, auftrag.Pfad, auftrag.Wie.Wahrer);
        const Deskriptor ordner(Öffnen(Ordner(auftrag.Ziel), O_RDONLY | O_DIRECTORY));
        constexpr mode_t NurUnser = 0600; // until owner and group are what they were
        Temporärdatei neu(auftrag.Ziel, alt != nullptr ? NurUnser : auftrag.Wie.NeuerModus & 0770U);
        if (!Vorbereitet(auftrag, neu, alt)) return false;
        Einsetzung einsetzung(auftrag, neu, ordner);
        if (auftrag.Wacht()) einsetzung.Bewacht(alt != nullptr);
        else einsetzung.Schlicht();
        return true;
    } catch (const Systemfehler &fehler) {
        if (alt != nullptr && auftrag.Wie.Wahrer != nullptr && IstOrtsgebunden(fehler.Nummer)) return false;
        throw;
    }
}

void VorOrtSchreiben(const Schreibauftrag &auftrag) {
    const int fd = Öffnen(auftrag.Ziel, O_RDWR | Vorsicht);
    if (fd < 0 && errno == EACCES) throw Ungesichert{errno}; // it may be written, but not read
    const Deskriptor datei(fd);
    SperreAbwarten(fd);
    std::string alt = VonVornGelesen(fd);
    if (auftrag.Wacht()) auftrag.Sichern(alt);
    PlatzNehmen(fd, auftrag.Inhalt.size());
    Versionswahrer &wahrer = *auftrag.Wie.Wahrer;
    if (!wahrer.VorOrtBeginnt(auftrag.Pfad, alt, auftrag.Inhalt)) throw Ungesichert{};
    try {
        if (auto jetzt = VonVornGelesen(fd); jetzt != alt) {
            if (!wahrer.Beiseitelegen(auftrag.Pfad, jetzt)) throw Ungesichert{};
            alt = std::move(jetzt);
        }
    } catch (const Ungesichert &) {
        wahrer.VorOrtEndet();
        throw;
    }
    const auto fehler = Fehler([&] {
        IstNochDa(auftrag.Ziel, fd);
        Überschreiben(fd, auftrag.Inhalt);
        IstNochDa(auftrag.Ziel, fd);
    });
    if (!fehler || !Fehler([&] { Überschreiben(fd, alt); })) wahrer.VorOrtEndet();
    if (fehler) Scheitern(fehler->Nummer);
}

} // namespace kw
