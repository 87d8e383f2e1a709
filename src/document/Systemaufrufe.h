#pragma once

#include <cerrno>
#include <cstddef>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <utility>

struct stat;

// The system's calls on files, each checked. What fails throws `Systemfehler`; the public routines of `Dateien.h` turn
// it into an answer.
namespace kw {

struct Systemfehler {
    int Nummer; ///< of errno
};

/// What would be lost couldn't be read or kept. `Nummer` is 0 when it was the keeper who refused.
struct Ungesichert {
    int Nummer = 0;
};

[[noreturn]] void Scheitern(int nummer = errno);

/// Runs a call again that a signal broke off.
template <typename Ruf> auto Ununterbrochen(Ruf ruf) {
    auto ergebnis = ruf();
    while (ergebnis < 0 && errno == EINTR) ergebnis = ruf();
    return ergebnis;
}

/// The same, for a call that must not fail.
template <typename Ruf> auto Geprüft(Ruf ruf) {
    auto ergebnis = Ununterbrochen(ruf);
    if (ergebnis < 0) Scheitern();
    return ergebnis;
}

/// As `open`: the number, or -1.
int Öffnen(const std::string &pfad, int flags, mode_t modus = 0);

/// An open file, or none. The destructor only clears up: a close that counts is `Temporärdatei::Abschließen`.
class Deskriptor {
  public:
    Deskriptor() = default;
    /// Throws for what `Öffnen` couldn't open.
    explicit Deskriptor(int fd);
    Deskriptor(Deskriptor &&anderer) noexcept : fd_(std::exchange(anderer.fd_, -1)) {}
    Deskriptor &operator=(Deskriptor &&anderer) noexcept {
        std::swap(fd_, anderer.fd_);
        return *this;
    }
    Deskriptor(const Deskriptor &) = delete;
    Deskriptor &operator=(const Deskriptor &) = delete;
    ~Deskriptor();

    int Nummer() const { return fd_; }
    /// Some file systems tell only here that nothing was stored.
    void Schließen();

  private:
    int fd_ = -1;
};

/// Takes a lock (LOCK_EX, LOCK_SH) without waiting. It holds until the last descriptor of this opening is closed,
/// however the program ends. A file system without locks has none free.
bool Sperren(int fd, int art);
/// Whether `name` still stands for the open file, and not for another or none.
bool StehtFür(const std::string &name, int fd);

/// All that follows in a file or pipe, at most `GrößteDatei`; a folder is refused.
std::string AllesLesen(int fd);
/// Whether exactly `inhalt` follows in a file.
bool Enthält(int fd, std::string_view inhalt);
void AllesSchreiben(int fd, std::string_view inhalt);
void ZumAnfang(int fd);
/// Waits until the disk has it. Some file systems cannot, and say so: nothing better is to be had there.
void Flushen(int fd);
/// The file that a chain of links ends at. By hand, since the end of a dangling one is to be made.
std::string ZielDerVerweise(std::string pfad);

} // namespace kw
