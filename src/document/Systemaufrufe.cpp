#include "document/Systemaufrufe.h"

#include "document/Dateien.h"

#include <algorithm>
#include <array>
#include <climits>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kw {

namespace {

constexpr std::size_t Stück = 65536;

std::size_t StückLesen(int fd, char *ziel, std::size_t höchstens) {
    constexpr int Geduld = 5000; // ms, for the writer of a pipe
    auto anzahl = Ununterbrochen([&] { return ::read(fd, ziel, höchstens); });
    while (anzahl < 0 && errno == EAGAIN) {
        struct pollfd warten {
            fd, POLLIN, 0
        };
        if (Ununterbrochen([&] { return ::poll(&warten, 1, Geduld); }) == 0) Scheitern(ETIMEDOUT);
        anzahl = Ununterbrochen([&] { return ::read(fd, ziel, höchstens); });
    }
    if (anzahl < 0) Scheitern();
    return static_cast<std::size_t>(anzahl);
}

} // namespace

void Scheitern(int nummer) { throw Systemfehler{nummer}; }

int Öffnen(const std::string &pfad, int flags, mode_t modus) {
    return Ununterbrochen([&] { return ::open(pfad.c_str(), flags | O_CLOEXEC, modus); });
}

Deskriptor::Deskriptor(int fd) : fd_(fd) {
    if (fd_ < 0) Scheitern();
}

Deskriptor::~Deskriptor() {
    if (fd_ >= 0) ::close(fd_);
}

void Deskriptor::Schließen() {
    // Never again after EINTR: the number is free then, and may be another file's.
    if (::close(std::exchange(fd_, -1)) != 0 && errno != EINTR) Scheitern();
}

bool Sperren(int fd, int art) {
    return Ununterbrochen([&] { return ::flock(fd, art | LOCK_NB); }) == 0;
}

bool StehtFür(const std::string &name, int fd) {
    struct stat offen {};
    struct stat genannt {};
    return Ununterbrochen([&] { return ::fstat(fd, &offen); }) == 0 &&
           Ununterbrochen([&] { return ::lstat(name.c_str(), &genannt); }) == 0 && offen.st_dev == genannt.st_dev &&
           offen.st_ino == genannt.st_ino;
}

std::string AllesLesen(int fd) {
    struct stat angaben {};
    Geprüft([&] { return ::fstat(fd, &angaben); });
    if (S_ISDIR(angaben.st_mode)) Scheitern(EISDIR);
    const auto größe = S_ISREG(angaben.st_mode) ? static_cast<std::size_t>(angaben.st_size) : 0;
    if (größe > GrößteDatei) Scheitern(EFBIG);
    // The size is only a hint: pipes have none, and a file can grow while it is read.
    std::string inhalt(std::max(größe + 1, Stück), '\0');
    std::size_t stand = 0;
    while (const auto anzahl = StückLesen(fd, inhalt.data() + stand, inhalt.size() - stand)) {
        stand += anzahl;
        if (stand > GrößteDatei) Scheitern(EFBIG);
        if (stand == inhalt.size()) inhalt.resize(2 * stand);
    }
    inhalt.resize(stand);
    return inhalt;
}

bool Enthält(int fd, std::string_view inhalt) {
    std::array<char, Stück> puffer{};
    while (const auto anzahl = StückLesen(fd, puffer.data(), puffer.size())) {
        if (std::string_view(puffer.data(), anzahl) != inhalt.substr(0, anzahl)) return false;
        inhalt.remove_prefix(anzahl);
    }
    return inhalt.empty();
}

void AllesSchreiben(int fd, std::string_view inhalt) {
    while (!inhalt.empty()) {
        const auto anzahl = Geprüft([&] { return ::write(fd, inhalt.data(), inhalt.size()); });
        if (anzahl == 0) Scheitern(EIO);
        inhalt.remove_prefix(static_cast<std::size_t>(anzahl));
    }
}

void ZumAnfang(int fd) {
    Geprüft([&] { return ::lseek(fd, 0, SEEK_SET); });
}

void Flushen(int fd) {
    const int ergebnis = Ununterbrochen([&] { return ::fsync(fd); });
    if (ergebnis != 0 && errno != EINVAL && errno != ENOSYS) Scheitern();
}

std::string ZielDerVerweise(std::string pfad) {
    constexpr int MeisteVerweise = 40;
    for (int i = 0; i < MeisteVerweise; ++i) {
        struct stat angaben {};
        if (Ununterbrochen([&] { return ::lstat(pfad.c_str(), &angaben); }) != 0) {
            if (errno == ENOENT) return pfad;
            Scheitern();
        }
        if (!S_ISLNK(angaben.st_mode)) return pfad;
        std::array<char, PATH_MAX> puffer{};
        const auto länge = Geprüft([&] { return ::readlink(pfad.c_str(), puffer.data(), puffer.size()); });
        const std::string ziel(puffer.data(), static_cast<std::size_t>(länge));
        pfad = ziel.starts_with('/') ? ziel : Pfad(pfad) + ziel;
    }
    Scheitern(ELOOP);
}

} // namespace kw
