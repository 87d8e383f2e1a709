#include "document/Dateien.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kw {

namespace {

/// A failed system call, carried up to the two public routines that turn it into an answer.
struct Systemfehler {
    int Nummer;
};

[[noreturn]] void Scheitern(int nummer = errno) { throw Systemfehler{nummer}; }

Ursache Grund(int nummer) {
    switch (nummer) {
    case ENOSPC:
    case EDQUOT: return Ursache::KeinPlatz;
    case EACCES:
    case EPERM:
    case EROFS: return Ursache::Schreibgeschützt;
    case ENOENT:
    case ENOTDIR: return Ursache::OrdnerFehlt;
    case EFBIG: return Ursache::ZuGroß;
    default: return Ursache::Sonstiges;
    }
}

Dateibefund Befund(Systemfehler fehler) {
    // strerror speaks the user's language; the program's own messages are English.
    const char *const text = strerrordesc_np(fehler.Nummer);
    return {text != nullptr ? text : "Unknown error", Grund(fehler.Nummer)};
}

/// Runs a call again that a signal broke off.
template <typename Ruf> auto Ununterbrochen(Ruf ruf) {
    auto ergebnis = ruf();
    while (ergebnis < 0 && errno == EINTR) ergebnis = ruf();
    return ergebnis;
}

int Öffnen(const std::string &pfad, int flags, mode_t modus = 0) {
    return Ununterbrochen([&] { return ::open(pfad.c_str(), flags | O_CLOEXEC, modus); });
}

/// An open file. `Schließen` is the checked way; the destructor only clears up behind a failure.
class Deskriptor {
  public:
    explicit Deskriptor(int fd) : fd_(fd) {
        if (fd_ < 0) Scheitern();
    }
    Deskriptor(const Deskriptor &) = delete;
    Deskriptor &operator=(const Deskriptor &) = delete;
    ~Deskriptor() {
        if (fd_ >= 0) ::close(fd_);
    }

    int Nummer() const { return fd_; }
    void Schließen() {
        const int fd = fd_;
        fd_ = -1;
        if (::close(fd) != 0) Scheitern(); // some file systems tell only here that nothing was stored
    }

  private:
    int fd_;
};

size_t StückLesen(int fd, char *ziel, size_t höchstens) {
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
    return static_cast<size_t>(anzahl);
}

void AllesSchreiben(int fd, std::string_view inhalt) {
    while (!inhalt.empty()) {
        const auto anzahl = Ununterbrochen([&] { return ::write(fd, inhalt.data(), inhalt.size()); });
        if (anzahl < 0) Scheitern();
        if (anzahl == 0) Scheitern(EIO);
        inhalt.remove_prefix(static_cast<size_t>(anzahl));
    }
}

/// Waits until the disk has it. Some file systems cannot, and say so: nothing better is to be had there.
void AufDiePlatte(int fd) {
    const int ergebnis = Ununterbrochen([&] { return ::fsync(fd); });
    if (ergebnis != 0 && errno != EINVAL && errno != ENOSYS) Scheitern();
}

std::string Ordner(const std::string &pfad) {
    const auto ordner = Pfad(pfad);
    return ordner.empty() ? "./" : ordner;
}

/// The file that a chain of links ends at. By hand, since the end of a dangling one is to be made.
std::string ZielDerVerweise(std::string pfad) {
    constexpr int MeisteVerweise = 40;
    for (int i = 0; i < MeisteVerweise; ++i) {
        struct stat angaben {};
        if (::lstat(pfad.c_str(), &angaben) != 0) {
            if (errno == ENOENT) return pfad;
            Scheitern();
        }
        if (!S_ISLNK(angaben.st_mode)) return pfad;
        std::array<char, PATH_MAX> puffer{};
        const auto länge = ::readlink(pfad.c_str(), puffer.data(), puffer.size());
        if (länge < 0) Scheitern();
        const std::string ziel(puffer.data(), static_cast<size_t>(länge));
        pfad = ziel.starts_with('/') ? ziel : Pfad(pfad) + ziel;
    }
    Scheitern(ELOOP);
}

/// Takes a file away again that has not become what it was made for.
class Aufräumer {
  public:
    explicit Aufräumer(std::string pfad) : pfad_(std::move(pfad)) {}
    Aufräumer(const Aufräumer &) = delete;
    Aufräumer &operator=(const Aufräumer &) = delete;
    ~Aufräumer() {
        if (!pfad_.empty()) ::unlink(pfad_.c_str());
    }
    void Behalten() { pfad_.clear(); }

  private:
    std::string pfad_;
};

struct NeueDatei {
    std::string Name;
    int Fd;
};

/// Makes a file of a free name in `ordner`. The name is short, since the file's own may leave no room
/// for a suffix; what a killed run left behind is passed over.
NeueDatei TemporäreDatei(const std::string &ordner, mode_t modus) {
    constexpr int MeisteVersuche = 1000;
    for (int i = 0; i < MeisteVersuche; ++i) {
        auto name = ordner + ".kw-" + std::to_string(::getpid()) + "-" + std::to_string(i);
        const int fd = Öffnen(name, O_WRONLY | O_CREAT | O_EXCL, modus);
        if (fd >= 0) return {std::move(name), fd};
        if (errno != EEXIST) Scheitern();
    }
    Scheitern(EEXIST);
}

void VergleichenMit(const std::string &pfad, std::string_view inhalt) {
    const Deskriptor datei(Öffnen(pfad, O_RDONLY));
    std::array<char, 65536> puffer{};
    while (true) {
        const auto anzahl = StückLesen(datei.Nummer(), puffer.data(), puffer.size());
        if (std::string_view(puffer.data(), anzahl) != inhalt.substr(0, anzahl)) Scheitern(EIO);
        inhalt.remove_prefix(anzahl);
        if (anzahl == 0) break;
    }
    if (!inhalt.empty()) Scheitern(EIO);
}

void DirektSchreiben(const std::string &pfad, std::string_view inhalt) {
    Deskriptor datei(Öffnen(pfad, O_WRONLY | O_NOCTTY));
    AllesSchreiben(datei.Nummer(), inhalt);
    datei.Schließen();
}

/// Replaces `ziel`, which is no link, by way of a file beside it. `alt` tells of the file that is there.
void Ersetzen(const std::string &ziel, std::string_view inhalt, const struct stat *alt) {
    const auto ordnername = Ordner(ziel);
    const Deskriptor ordner(Öffnen(ordnername, O_RDONLY | O_DIRECTORY));
    const auto neu = TemporäreDatei(ordnername, alt != nullptr ? 0600 : 0666);
    Aufräumer aufräumer(neu.Name);
    Deskriptor datei(neu.Fd);
    AllesSchreiben(datei.Nummer(), inhalt);
    if (alt != nullptr) {
        // Only root may give files away: a file of another owner becomes ours. Its mode comes after, as a
        // change of owner takes bits of it.
        [[maybe_unused]] const int eigner = ::fchown(datei.Nummer(), alt->st_uid, alt->st_gid);
        if (::fchmod(datei.Nummer(), alt->st_mode & 07777U) != 0) Scheitern();
    }
    AufDiePlatte(datei.Nummer());
    datei.Schließen();
    VergleichenMit(neu.Name, inhalt);
    if (::rename(neu.Name.c_str(), ziel.c_str()) != 0) Scheitern();
    aufräumer.Behalten();
    // From here on the new file is there, whole and on the disk. Should the folder fail to reach the disk, a
    // power cut could bring the old file back, whole too; "not saved" would be the wrong answer to that.
    Ununterbrochen([&] { return ::fsync(ordner.Nummer()); });
}

void Schreiben(const std::string &pfad, std::string_view inhalt) {
    struct stat angaben {};
    const bool vorhanden = ::stat(pfad.c_str(), &angaben) == 0;
    if (!vorhanden && errno != ENOENT) Scheitern();
    if (pfad.empty()) Scheitern(ENOENT);
    if (DateiName(pfad).empty() || (vorhanden && S_ISDIR(angaben.st_mode))) Scheitern(EISDIR);
    if (!vorhanden) return Ersetzen(ZielDerVerweise(pfad), inhalt, nullptr);
    if (!S_ISREG(angaben.st_mode)) return DirektSchreiben(pfad, inhalt);
    // A file without a write bit was protected on purpose; root too, who could, must not replace it.
    if ((angaben.st_mode & 0222U) == 0) Scheitern(EACCES);
    if (::faccessat(AT_FDCWD, pfad.c_str(), W_OK, AT_EACCESS) != 0) Scheitern();
    Ersetzen(ZielDerVerweise(pfad), inhalt, &angaben);
}

std::string Lesen(const std::string &pfad) {
    const Deskriptor datei(Öffnen(pfad, O_RDONLY | O_NOCTTY | O_NONBLOCK)); // a pipe without a writer must not hang
    struct stat angaben {};
    if (::fstat(datei.Nummer(), &angaben) != 0) Scheitern();
    if (S_ISDIR(angaben.st_mode)) Scheitern(EISDIR);
    const auto größe = S_ISREG(angaben.st_mode) ? static_cast<size_t>(angaben.st_size) : 0;
    if (größe > GrößteDatei) Scheitern(EFBIG);
    // The size is only a hint: pipes have none, and a file can grow while it is read.
    constexpr size_t Stück = 65536;
    std::string inhalt(std::max(größe + 1, Stück), '\0');
    size_t stand = 0;
    while (const auto anzahl = StückLesen(datei.Nummer(), inhalt.data() + stand, inhalt.size() - stand)) {
        stand += anzahl;
        if (stand > GrößteDatei) Scheitern(EFBIG);
        if (stand == inhalt.size()) inhalt.resize(2 * stand);
    }
    inhalt.resize(stand);
    return inhalt;
}

} // namespace

std::string Pfad(std::string_view datei) { return std::string(datei.substr(0, datei.rfind('/') + 1)); }

std::string DateiName(std::string_view pfad) { return std::string(pfad.substr(pfad.rfind('/') + 1)); }

std::string NameOhneKennung(std::string_view name) { return std::string(name.substr(0, name.rfind('.'))); }

std::string Kennung(std::string_view name) {
    const auto punkt = name.rfind('.');
    return punkt == std::string_view::npos ? std::string{} : std::string(name.substr(punkt + 1));
}

std::string MitKennung(const std::string &datei, std::string_view kennung, bool alle) {
    constexpr size_t Längste = 4; // "jpeg"
    const std::string eigene = Kennung(DateiName(datei));
    const auto klein = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    const bool gleich = std::equal(eigene.begin(), eigene.end(), kennung.begin(), kennung.end(),
                                   [&](char a, char b) { return klein(a) == klein(b); });
    const auto istBuchstabe = [&](char c) { return klein(c) >= 'a' && klein(c) <= 'z'; };
    const bool irgendeine = eigene.size() <= Längste && std::any_of(eigene.begin(), eigene.end(), istBuchstabe) &&
                            std::none_of(eigene.begin(), eigene.end(), [](char c) { return c == ' '; });
    return gleich || (alle && irgendeine) ? datei : datei + "." + std::string(kennung);
}

bool DateiVorhanden(const std::string &pfad) {
    struct stat angaben {};
    return ::stat(pfad.c_str(), &angaben) == 0 && !S_ISDIR(angaben.st_mode);
}

bool IstBeschreibbar(const std::string &ordner) {
    struct stat angaben {};
    return ::stat(ordner.c_str(), &angaben) == 0 && S_ISDIR(angaben.st_mode) &&
           ::access(ordner.c_str(), W_OK | X_OK) == 0;
}

bool IstFürDateien(const std::string &ordner) {
    constexpr std::string_view System[] = {"/usr", "/bin", "/sbin", "/lib", "/opt", "/snap", "/app", "/nix"};
    for (const auto system : System)
        if (ordner == system || ordner.starts_with(std::string(system) + "/")) return false;
    return IstBeschreibbar(ordner);
}

std::string AlsDateiname(std::string_view text) {
    constexpr std::string_view Unmöglich = "%/\\:*?\"<>|";
    constexpr std::string_view Ziffern = "0123456789ABCDEF";
    std::string name;
    for (const char zeichen : text) {
        const auto c = static_cast<unsigned char>(zeichen);
        if (c >= ' ' && Unmöglich.find(zeichen) == std::string_view::npos) name += zeichen;
        else name.append({'%', Ziffern[c / Ziffern.size()], Ziffern[c % Ziffern.size()]});
    }
    return name;
}

Dateibefund DateiLesen(const std::string &pfad, std::string &inhalt) {
    try {
        inhalt = Lesen(pfad);
        return {};
    } catch (Systemfehler fehler) {
        return Befund(fehler);
    }
}

Dateibefund DateiSchreiben(const std::string &pfad, std::string_view inhalt) {
    try {
        Schreiben(pfad, inhalt);
        return {};
    } catch (Systemfehler fehler) {
        return Befund(fehler);
    }
}

} // namespace kw
