// Stands between the program and the system's library: a definition of the program's own comes before the library's.
#include "stoerfaelle/Systemstoerung.h"

#include <cerrno>
#include <cstdarg>
#include <optional>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

struct Zustand {
    bool Läuft = false;
    Störung Was;
    std::map<std::string, int> Anzahl;
};
/// Made when it is asked for first: the library's own start comes before ours.
Zustand &Jetzt() {
    static Zustand zustand;
    return zustand;
}
bool bereit = false; ///< nothing of the above is touched before

/// Whether this call is hit; 0 for one that only comes out short.
std::optional<int> Getroffen(const char *ruf) {
    if (!bereit || !Jetzt().Läuft || ::gettid() != ::getpid()) return {}; // the event's own calls
    const int nummer = ++Jetzt().Anzahl[ruf];
    const Störung &was = Jetzt().Was;
    if (was.Ruf != ruf || nummer < was.Ab || (nummer > was.Ab && !was.Immer)) return {};
    return was.Fehler;
}

/// Of calls on an open file only those on files and folders count: the toolkit's own event loop reads and writes, too.
std::optional<int> Getroffen(const char *ruf, int fd) {
    struct stat angaben {};
    if (!bereit || !Jetzt().Läuft || ::syscall(SYS_newfstatat, fd, "", &angaben, AT_EMPTY_PATH) != 0) return {};
    return S_ISREG(angaben.st_mode) || S_ISDIR(angaben.st_mode) ? Getroffen(ruf) : std::nullopt;
}
std::optional<int> Getroffen(const char *ruf, const char *) { return Getroffen(ruf); }

template <typename Ruf> Ruf *Eigentlich(Ruf *, const char *name) {
    return reinterpret_cast<Ruf *>(::dlsym(RTLD_NEXT, name));
}

} // namespace

void StörungBeginnen(const Störung &störung) {
    Jetzt() = {true, störung, {}};
    bereit = true;
}
const std::map<std::string, int> &Gezählt() { return Jetzt().Anzahl; }
void StörungBeenden() { Jetzt().Läuft = false; }

// Names and kinds are the library's.
// NOLINTBEGIN
#define STOERBAR(name, art, parameter, worte, gegenstand, sonst)                                                       \
    art name parameter {                                                                                               \
        static auto *const ruf = Eigentlich<art parameter>(nullptr, #name);                                            \
        if (const auto fehler = Getroffen(#name, gegenstand); fehler && *fehler != 0) {                                \
            errno = *fehler;                                                                                           \
            return sonst;                                                                                              \
        }                                                                                                              \
        return ruf worte;                                                                                              \
    }
#define OEFFNEN(name)                                                                                                  \
    int name(const char *pfad, int wie, ...) {                                                                         \
        static auto *const ruf = Eigentlich<int(const char *, int, ...)>(nullptr, #name);                              \
        va_list rest;                                                                                                  \
        va_start(rest, wie);                                                                                           \
        const auto modus = (wie & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;                              \
        va_end(rest);                                                                                                  \
        if (const auto fehler = Getroffen("open"); fehler && *fehler != 0) {                                           \
            errno = *fehler;                                                                                           \
            return -1;                                                                                                 \
        }                                                                                                              \
        return ruf(pfad, wie, modus);                                                                                  \
    }

extern "C" {
OEFFNEN(open)
OEFFNEN(open64)
STOERBAR(fsync, int, (int fd), (fd), fd, -1)
STOERBAR(fdatasync, int, (int fd), (fd), fd, -1)
STOERBAR(ftruncate, int, (int fd, off_t n) noexcept, (fd, n), fd, -1)
STOERBAR(fallocate, int, (int fd, int wie, off_t von, off_t n), (fd, wie, von, n), fd, -1)
STOERBAR(fchmod, int, (int fd, mode_t modus) noexcept, (fd, modus), fd, -1)
STOERBAR(fchown, int, (int fd, uid_t wer, gid_t gruppe) noexcept, (fd, wer, gruppe), fd, -1)
STOERBAR(flock, int, (int fd, int wie) noexcept, (fd, wie), fd, -1)
STOERBAR(rename, int, (const char *a, const char *b) noexcept, (a, b), a, -1)
STOERBAR(renameat2, int, (int o, const char *a, int p, const char *b, unsigned w) noexcept, (o, a, p, b, w), a, -1)
STOERBAR(unlink, int, (const char *a) noexcept, (a), a, -1)
STOERBAR(mkdir, int, (const char *a, mode_t modus) noexcept, (a, modus), a, -1)
STOERBAR(access, int, (const char *a, int wie) noexcept, (a, wie), a, -1)
STOERBAR(faccessat, int, (int o, const char *a, int wie, int w) noexcept, (o, a, wie, w), a, -1)
STOERBAR(stat, int, (const char *a, struct stat *s) noexcept, (a, s), a, -1)
STOERBAR(lstat, int, (const char *a, struct stat *s) noexcept, (a, s), a, -1)
STOERBAR(fstat, int, (int fd, struct stat *s) noexcept, (fd, s), fd, -1)
STOERBAR(lseek, off_t, (int fd, off_t n, int wie) noexcept, (fd, n, wie), fd, -1)
STOERBAR(opendir, DIR *, (const char *a), (a), a, nullptr)
STOERBAR(flistxattr, ssize_t, (int fd, char *l, size_t n) noexcept, (fd, l, n), fd, -1)
STOERBAR(listxattr, ssize_t, (const char *a, char *l, size_t n) noexcept, (a, l, n), a, -1)
STOERBAR(getxattr, ssize_t, (const char *a, const char *b, void *w, size_t n) noexcept, (a, b, w, n), a, -1)

/// Closed it is all the same, as the system does.
int close(int fd) {
    static auto *const ruf = Eigentlich<int(int)>(nullptr, "close");
    const auto fehler = Getroffen("close", fd);
    const int ergebnis = ruf(fd);
    if (!fehler || *fehler == 0) return ergebnis;
    errno = *fehler;
    return -1;
}

ssize_t read(int fd, void *puffer, size_t n) {
    static auto *const ruf = Eigentlich<ssize_t(int, void *, size_t)>(nullptr, "read");
    const auto fehler = Getroffen("read", fd);
    if (!fehler) return ruf(fd, puffer, n);
    if (*fehler == 0) return ruf(fd, puffer, n > 1 ? n / 2 : n);
    errno = *fehler;
    return -1;
}

ssize_t write(int fd, const void *puffer, size_t n) {
    static auto *const ruf = Eigentlich<ssize_t(int, const void *, size_t)>(nullptr, "write");
    const auto fehler = Getroffen("write", fd);
    if (fehler && *fehler != 0) {
        errno = *fehler;
        return -1;
    }
    if (fehler && n > 1) n /= 2;
    if (!bereit || !Jetzt().Läuft || Jetzt().Was.Platz < 0 || ::gettid() != ::getpid()) return ruf(fd, puffer, n);
    long &platz = Jetzt().Was.Platz;
    if (platz == 0 && n > 0) {
        errno = ENOSPC;
        return -1;
    }
    const ssize_t geschrieben = ruf(fd, puffer, n < static_cast<size_t>(platz) ? n : static_cast<size_t>(platz));
    if (geschrieben > 0) platz -= geschrieben;
    return geschrieben;
}
}
// NOLINTEND
