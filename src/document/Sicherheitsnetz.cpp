#include "document/Sicherheitsnetz.h"

#include "document/Dateinamen.h"
#include "document/ProjektDatei.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <random>

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

std::optional<Art> ArtVon(std::string_view name) {
    for (const auto &endung : Endungen)
        if (name.ends_with(endung.Text)) return endung.Was;
    return {};
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

/// A held lock on that file, which is made; -1 when somebody has it or it can't be had. A file that was taken away
/// between its making and its locking would be a lock that nobody sees.
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

bool IstAbgelaufen(const Netzkopf &kopf) {
    constexpr std::int64_t Frist = std::chrono::nanoseconds(std::chrono::days(30)).count();
    return kopf.Was == Art::Verdrängt && Jetzt() - kopf.Zeit > Frist;
}

std::string AlsProjekt(const Dokument &dokument) {
    Profil profil;
    ProjektEintragen(dokument, profil);
    return profil.Inhalt();
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
    if (sperre_ >= 0) return true;
    std::error_code fehler;
    std::filesystem::create_directories(Pfad(ordner_), fehler);
    if (::mkdir(ordner_.c_str(), 0700) != 0 && errno != EEXIST) return false;
    constexpr int MeisteVersuche = 3; // between making and locking it another program may have swept it
    for (int i = 0; i < MeisteVersuche && sperre_ < 0; ++i)
        sperre_ = Sperren(Ort((kennung_ = NeueKennung()) + std::string(Sperrendung)));
    if (sperre_ < 0) kennung_.clear();
    else LeereSperrenFegen();
    return sperre_ >= 0;
}

/// Of programs that were killed. Documents without a lock are known as left all the same.
void Sicherheitsnetz::LeereSperrenFegen() const {
    for (const std::string &name : Namen()) {
        if (!name.ends_with(Sperrendung) || name.starts_with(kennung_)) continue;
        const int fd = Sperren(Ort(name));
        if (fd < 0) continue;
        ::unlink(Ort(name).c_str());
        ::close(fd);
    }
}

Dateibefund Sicherheitsnetz::Festhalten(const Dokument &dokument, const std::string &projektdatei,
                                        const std::optional<Fingerabdruck> &herkunft) {
    if (ordner_.empty() || (abgelöst_.empty() && stand_.GleicherStand(dokument))) return {};
    if (!Bereit()) return {"the safety net's folder can't be used", Ursache::Sonstiges};
    const Netzkopf kopf{"", Art::Stand, projektdatei, Jetzt(), dokument.cboPersonen.Anzahl(), herkunft};
    const std::string pfad = Ort(kennung_ + ".stand");
    Schreibweise wie;
    wie.NeuerModus = NurIch;
    wie.Flüchtig = true;
    const Dateibefund befund = DateiSchreiben(pfad, Netzdatei(kopf, AlsProjekt(dokument)), wie);
    if (!befund.Gelungen()) return befund;
    nachfluss_.Wünschen(pfad);
    stand_ = dokument;
    hält_ = true;
    if (ArtVon(abgelöst_) != Art::Verdrängt) Löschen(abgelöst_);
    abgelöst_.clear();
    return {};
}

void Sicherheitsnetz::Loslassen(const Dokument &dokument) {
    stand_ = dokument;
    hält_ = false;
    abgelöst_.clear();
    if (sperre_ >= 0) ::unlink(Ort(kennung_ + ".stand").c_str());
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
        const auto eintrag = Lesen(name);
        if (!eintrag) continue;
        if (IstAbgelaufen(eintrag->Kopf)) Löschen(name);
        else einträge.push_back(eintrag->Kopf);
    }
    std::sort(einträge.begin(), einträge.end(), [](const Netzkopf &a, const Netzkopf &b) {
        return a.Zeit != b.Zeit ? a.Zeit > b.Zeit : a.Name < b.Name;
    });
    return einträge;
}

bool Sicherheitsnetz::HatUnbeantwortete() const {
    const auto namen = Namen();
    return std::any_of(namen.begin(), namen.end(), [this](const std::string &name) {
        const auto art = ArtVon(name);
        return (art == Art::Stand || art == Art::VorOrt) && !Lebt(name);
    });
}

std::optional<Netzeintrag> Sicherheitsnetz::Lesen(const std::string &name) const {
    std::string datei;
    const auto art = ArtVon(name);
    if (!art || !DateiLesen(Ort(name), datei).Gelungen()) return {};
    auto eintrag = NetzeintragAus(datei);
    if (!eintrag) return {};
    eintrag->Kopf.Name = name;
    eintrag->Kopf.Was = *art;
    return eintrag;
}

/// Of a file that was written in place both versions stay: what is offered again is only what nobody has answered.
void Sicherheitsnetz::Behalten(const std::string &name) const {
    const auto art = ArtVon(name);
    if (art != Art::Stand && art != Art::VorOrt) return;
    const std::string bleibt = name.substr(0, name.rfind('.')) + ".behalten";
    ::rename(Ort(name).c_str(), Ort(bleibt).c_str());
    if (IstVersucht(name)) ::rename(Ort(name + Versuch).c_str(), Ort(bleibt + Versuch).c_str());
}

void Sicherheitsnetz::Löschen(const std::string &name) const {
    if (!ArtVon(name)) return;
    ::unlink(Ort(name).c_str());
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
    if (fassung == beiseite_) return true;
    if (!Bereit() || !Aufheben(NeuerName(), pfad, inhalt)) return false;
    beiseite_ = fassung;
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
