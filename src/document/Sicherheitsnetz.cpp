#include "document/Sicherheitsnetz.h"

#include "document/Dateinamen.h"
#include "document/ProjektDatei.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <random>
#include <utility>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kw {

namespace {

using Art = Netzkopf::Art;

struct Endung {
    std::string_view Text;
    Art Was;
};
constexpr Endung Endungen[] = {
    {".stand", Art::Stand}, {".behalten", Art::Behalten}, {".alt", Art::Verdrängt}, {".vorort", Art::VorOrt}};
constexpr std::string_view Sperrendung = ".sperre";
constexpr std::size_t Kennungslänge = 16;
constexpr const char *Versuch = ".versuch";
constexpr const char *VorOrtAlt = "-alt.vorort";
constexpr const char *VorOrtNeu = "-neu.vorort";
constexpr unsigned NurIch = 0600;
constexpr unsigned NurMeinOrdner = 0700;

std::optional<Art> ArtVon(std::string_view name) {
    for (const auto &endung : Endungen)
        if (name.ends_with(endung.Text)) return endung.Was;
    return {};
}

/// Whether it is a file's version that was replaced, for its time or, by the user's word, for good: what a program left
/// of its document has no number behind the program's name.
bool IstErsetzte(std::string_view name) {
    const auto art = ArtVon(name);
    const bool gezählt = name.size() > Kennungslänge && name[Kennungslänge] == '-';
    return art == Art::Verdrängt || (art == Art::Behalten && gezählt);
}

std::int64_t Jetzt() {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::system_clock::now().time_since_epoch())
        .count();
}

std::string NeueKennung() {
    constexpr std::string_view Ziffern = "0123456789abcdef";
    std::random_device zufall;
    std::string kennung;
    for (std::size_t i = 0; i < Kennungslänge; ++i) kennung += Ziffern[zufall() % Ziffern.size()];
    return kennung;
}

/// A held lock on that file, which is made; -1 when it can't be had, or somebody else just looks at it. A file that was
/// taken away between its making and its locking would be a lock that nobody sees.
int Sperren(const std::string &pfad) {
    const int fd = ::open(pfad.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, NurIch);
    if (fd < 0) return -1;
    struct stat angaben {};
    if (::flock(fd, LOCK_EX | LOCK_NB) == 0 && ::fstat(fd, &angaben) == 0 && angaben.st_nlink > 0) return fd;
    ::close(fd);
    return -1;
}

/// Whether somebody holds that lock.
bool IstGesperrt(const std::string &pfad) {
    const int fd = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return false;
    const bool gesperrt = ::flock(fd, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::close(fd);
    return gesperrt;
}

/// Takes away a dead program's lock. Held while it goes: one that has only just been made, and isn't held yet, would
/// else go from under its owner.
void SperreEntfernen(const std::string &pfad) {
    const int fd = ::open(pfad.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return;
    if (::flock(fd, LOCK_EX | LOCK_NB) == 0) ::unlink(pfad.c_str());
    ::close(fd);
}

/// Where the folder can't be written any more the file stays, without what nobody is to be offered again.
void Entfernen(const std::string &pfad) {
    const bool bleibt = ::unlink(pfad.c_str()) != 0 && errno != ENOENT;
    const int fd = bleibt ? ::open(pfad.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW) : -1;
    if (fd >= 0) ::close(fd);
}

bool IstAbgelaufen(const Netzkopf &kopf) {
    constexpr std::int64_t Frist = std::chrono::nanoseconds(std::chrono::days(30)).count();
    return kopf.Was == Art::Verdrängt && kopf.Zeit > 0 && Jetzt() - kopf.Zeit > Frist;
}

/// The start of a file, which holds its head; the rest can be large. Empty when it isn't to be read.
std::string Anfang(const std::string &pfad) {
    constexpr std::size_t Genug = 16384; // the longest path, masked, and a few lines
    const int fd = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat angaben {};
    std::string anfang(Genug, '\0');
    const bool lesbar = fd >= 0 && ::fstat(fd, &angaben) == 0 && S_ISREG(angaben.st_mode);
    const auto gelesen = lesbar ? ::read(fd, anfang.data(), anfang.size()) : 0;
    if (fd >= 0) ::close(fd);
    anfang.resize(gelesen > 0 ? static_cast<std::size_t>(gelesen) : 0);
    return anfang;
}

/// With the name and the kind that it says. Nothing for what is no file of the net.
std::optional<Netzeintrag> Benannt(const std::string &name, std::string_view inhalt) {
    const auto art = ArtVon(name);
    auto eintrag = art ? NetzeintragAus(inhalt) : std::nullopt;
    if (!eintrag) return {};
    eintrag->Kopf.Name = name;
    eintrag->Kopf.Was = *art;
    return eintrag;
}

int PersonenIn(std::string_view inhalt) {
    return static_cast<int>(Profil(std::string(inhalt)).SchlüsselAnzahl("OBJECTS"));
}

} // namespace

Sicherheitsnetz::Sicherheitsnetz(std::string ordner) : ordner_(std::move(ordner)) {}

Sicherheitsnetz::~Sicherheitsnetz() {
    if (sperre_ < 0) return;
    ::unlink(Ort(kennung_ + std::string(Sperrendung)).c_str());
    ::close(sperre_);
}

/// The folder is there and this program has its lock in it.
bool Sicherheitsnetz::Bereit() {
    if (ordner_.empty()) return false;
    struct stat angaben {};
    if (sperre_ >= 0 && ::fstat(sperre_, &angaben) == 0 && angaben.st_nlink > 0) return true;
    if (sperre_ >= 0) ::close(std::exchange(sperre_, -1)); // somebody has cleared the folder away
    std::error_code fehler;
    std::filesystem::create_directories(Pfad(ordner_), fehler);
    if (::mkdir(ordner_.c_str(), NurMeinOrdner) != 0 && errno != EEXIST) return false;
    ::chmod(ordner_.c_str(), NurMeinOrdner); // one that was there may be open to others
    constexpr int MeisteVersuche = 3;        // another start may be sweeping
    for (int i = 0; i < MeisteVersuche && sperre_ < 0; ++i) {
        const std::string kennung = kennung_.empty() ? NeueKennung() : kennung_;
        sperre_ = Sperren(Ort(kennung + std::string(Sperrendung)));
        if (sperre_ >= 0) kennung_ = kennung;
    }
    return sperre_ >= 0;
}

/// Somebody may clear the folder away while the program lives. Where that can't be told, what was written is there.
bool Sicherheitsnetz::Liegt() const {
    struct stat angaben {};
    return ::stat(Ort(kennung_ + ".stand").c_str(), &angaben) == 0 || (errno != ENOENT && errno != ENOTDIR);
}

Dateibefund Sicherheitsnetz::Festhalten(const Dokument &dokument, Netzkopf kopf) {
    const bool gleich = abgelöst_.empty() && stand_.GleicherStand(dokument) && (!hält_ || Liegt());
    if (ordner_.empty() || gleich) return {};
    if (!Bereit()) return {"the safety net's folder can't be used", Ursache::Sonstiges};
    kopf.Zeit = Jetzt();
    kopf.Personen = dokument.cboPersonen.Anzahl();
    const std::string pfad = Ort(kennung_ + ".stand");
    Schreibweise wie;
    wie.NeuerModus = NurIch;
    wie.Flüchtig = true;
    const Dateibefund befund = DateiSchreiben(pfad, Netzdatei(kopf, ProjektInhalt(dokument)), wie);
    if (!befund.Gelungen()) return befund;
    nachfluss_.Wünschen(pfad);
    stand_ = dokument;
    hält_ = true;
    VorgängerLöschen();
    return {};
}

void Sicherheitsnetz::VorgängerLöschen() {
    if (!IstErsetzte(abgelöst_)) Löschen(abgelöst_);
    abgelöst_.clear();
}

void Sicherheitsnetz::Loslassen(const Dokument &dokument) {
    stand_ = dokument;
    hält_ = false;
    VorgängerLöschen();
    if (sperre_ >= 0) Entfernen(Ort(kennung_ + ".stand"));
}

std::vector<std::string> Sicherheitsnetz::Namen() const {
    std::vector<std::string> namen;
    std::error_code fehler;
    if (ordner_.empty()) return namen;
    for (std::filesystem::directory_iterator i(ordner_, fehler), ende; !fehler && i != ende; i.increment(fehler))
        namen.push_back(i->path().filename().string());
    return namen;
}

/// Whether it is the document of a program that is running, this one included. What was set aside is nobody's.
bool Sicherheitsnetz::Lebt(const std::string &name) const {
    const auto art = ArtVon(name);
    if (art != Art::Stand && art != Art::VorOrt) return false;
    const std::string kennung = name.substr(0, Kennungslänge);
    return kennung == kennung_ || IstGesperrt(Ort(kennung + std::string(Sperrendung)));
}

std::vector<Netzkopf> Sicherheitsnetz::Einträge() const {
    std::vector<Netzkopf> einträge;
    for (const std::string &name : Namen()) {
        if (!ArtVon(name) || Lebt(name)) continue;
        if (const auto eintrag = Benannt(name, Anfang(Ort(name)))) einträge.push_back(eintrag->Kopf);
    }
    std::sort(einträge.begin(), einträge.end(), [](const Netzkopf &a, const Netzkopf &b) {
        return a.Zeit != b.Zeit ? a.Zeit > b.Zeit : a.Name < b.Name;
    });
    return einträge;
}

void Sicherheitsnetz::Aufräumen() const {
    for (const std::string &name : Namen()) {
        const std::string ort = Ort(name);
        if (name.ends_with(Sperrendung) && !name.starts_with(kennung_ + ".")) SperreEntfernen(ort);
        if (name.ends_with(Versuch) && !DateiVorhanden(ort.substr(0, ort.rfind('.')))) ::unlink(ort.c_str());
        if (ArtVon(name) != Art::Verdrängt) continue;
        const auto eintrag = Benannt(name, Anfang(ort));
        if (eintrag && IstAbgelaufen(eintrag->Kopf)) Löschen(name);
    }
}

bool Sicherheitsnetz::HatUnbeantwortete() const {
    const auto namen = Namen();
    return std::any_of(namen.begin(), namen.end(), [this](const std::string &name) {
        const auto art = ArtVon(name);
        return (art == Art::Stand || art == Art::VorOrt) && !Lebt(name) && Benannt(name, Anfang(Ort(name)));
    });
}

std::optional<Netzeintrag> Sicherheitsnetz::Lesen(const std::string &name) const {
    std::string datei;
    if (!ArtVon(name) || !DateiLesen(Ort(name), datei).Gelungen()) return {};
    return Benannt(name, datei);
}

/// Of a file that was written in place both versions stay: what is offered again is only what nobody has answered.
void Sicherheitsnetz::Behalten(const std::string &name) const {
    const auto art = ArtVon(name);
    if (!art || art == Art::Behalten) return;
    const std::string bleibt = name.substr(0, name.rfind('.')) + ".behalten";
    ::rename(Ort(name).c_str(), Ort(bleibt).c_str());
    if (IstVersucht(name)) ::rename(Ort(name + Versuch).c_str(), Ort(bleibt + Versuch).c_str());
}

void Sicherheitsnetz::Löschen(const std::string &name) const {
    if (!ArtVon(name)) return;
    Entfernen(Ort(name));
    VersuchEnden(name);
}

bool Sicherheitsnetz::IstVersucht(const std::string &name) const { return DateiVorhanden(Ort(name + Versuch)); }

void Sicherheitsnetz::VersuchBeginnen(const std::string &name) const {
    const int fd = ::open(Ort(name + Versuch).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, NurIch);
    if (fd >= 0) ::close(fd);
}

void Sicherheitsnetz::VersuchEnden(const std::string &name) const { ::unlink(Ort(name + Versuch).c_str()); }

std::string Sicherheitsnetz::NeuerName() { return kennung_ + "-" + std::to_string(++gezählt_) + ".alt"; }

/// Once it says so, the disk has it.
bool Sicherheitsnetz::Aufheben(const std::string &name, const std::string &pfad, std::string_view inhalt) {
    const Netzkopf kopf{"", Art::Verdrängt, pfad, Jetzt(), PersonenIn(inhalt), FingerabdruckVon(inhalt)};
    Schreibweise wie;
    wie.NeuerModus = NurIch;
    return DateiSchreiben(Ort(name), Netzdatei(kopf, inhalt), wie).Gelungen();
}

/// The same version of a file is asked for twice when somebody writes it again while it is being replaced.
bool Sicherheitsnetz::Beiseitelegen(const std::string &pfad, std::string_view inhalt) {
    const std::pair fassung(pfad, FingerabdruckVon(inhalt));
    if (fassung == beiseite_ && DateiVorhanden(Ort(beiseiteName_))) return true;
    if (!Bereit()) return false;
    const std::string name = NeuerName();
    if (!Aufheben(name, pfad, inhalt)) return false;
    beiseite_ = fassung;
    beiseiteName_ = name;
    return true;
}

bool Sicherheitsnetz::VorOrtBeginnt(const std::string &pfad, std::string_view alt, std::string_view neu) {
    if (!Bereit()) return false;
    vorOrt_ = kennung_ + "-" + std::to_string(++gezählt_);
    if (!Aufheben(vorOrt_ + VorOrtAlt, pfad, alt)) return false;
    if (Aufheben(vorOrt_ + VorOrtNeu, pfad, neu)) return true;
    Löschen(vorOrt_ + VorOrtAlt);
    return false;
}

/// The file holds one of the two, whole. What it held before stays for its time.
void Sicherheitsnetz::VorOrtEndet() {
    ::rename(Ort(vorOrt_ + VorOrtAlt).c_str(), Ort(NeuerName()).c_str());
    Löschen(vorOrt_ + VorOrtNeu);
}

} // namespace kw
