#include "document/Dateien.h"

#include "document/Ersetzen.h"
#include "document/Systemaufrufe.h"

#include <cstring>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace kw {

namespace {

Ursache UrsacheVon(int fehler, bool lesend) {
    switch (fehler) {
    case ENOSPC:
    case EDQUOT: return Ursache::KeinPlatz;
    case EACCES:
    case EPERM: return lesend ? Ursache::Lesegeschützt : Ursache::Schreibgeschützt;
    case EROFS: return Ursache::Schreibgeschützt;
    case ENOENT: return lesend ? Ursache::FehltDatei : Ursache::OrdnerFehlt;
    case ENOTDIR: return Ursache::OrdnerFehlt;
    case EFBIG: return Ursache::ZuGroß;
    case EISDIR:
    case ELOOP:
    case ENODEV:
    case ENXIO:
    case EOPNOTSUPP: return Ursache::KeineDatei;
    default: return Ursache::Sonstiges;
    }
}

std::string Text(int fehler) {
    // strerror speaks the user's language; the program's own messages are English.
    const char *const text = strerrordesc_np(fehler);
    return text != nullptr ? text : "Unknown error";
}

/// Runs what reads or writes, and answers for it.
template <typename Ruf> Dateibefund Befund(bool lesend, Ruf ruf) {
    try {
        ruf();
        return {};
    } catch (const Systemfehler &fehler) {
        return {Text(fehler.Nummer), UrsacheVon(fehler.Nummer, lesend)};
    } catch (const Ungesichert &fehler) {
        const auto text = fehler.Nummer != 0 ? Text(fehler.Nummer) : "The present version could not be kept";
        return {text, Ursache::NichtGesichert};
    } catch (const std::bad_alloc &) {
        return {Text(ENOMEM), Ursache::Sonstiges};
    }
}

void DirektSchreiben(const std::string &pfad, std::string_view inhalt) {
    // A pipe without a reader must not hang; one that has a reader takes its time.
    Deskriptor datei(Öffnen(pfad, O_WRONLY | O_NOCTTY | O_NONBLOCK));
    Geprüft([&] { return ::fcntl(datei.Nummer(), F_SETFL, 0); });
    AllesSchreiben(datei.Nummer(), inhalt);
    datei.Schließen();
}

void Schreiben(const std::string &pfad, std::string_view inhalt, const Schreibweise &wie) {
    struct stat angaben {};
    const bool vorhanden = Ununterbrochen([&] { return ::stat(pfad.c_str(), &angaben); }) == 0;
    if (!vorhanden && errno != ENOENT) Scheitern();
    if (pfad.empty()) Scheitern(ENOENT);
    if (DateiName(pfad).empty() || (vorhanden && S_ISDIR(angaben.st_mode))) Scheitern(EISDIR);
    if (vorhanden && !S_ISREG(angaben.st_mode)) {
        if (wie.Wahrer != nullptr) Scheitern(EOPNOTSUPP);
        return DirektSchreiben(pfad, inhalt);
    }
    // A file without a write bit was protected on purpose; root too, who could, must not replace it.
    if (vorhanden && (angaben.st_mode & 0222U) == 0) Scheitern(EACCES);
    if (vorhanden) Geprüft([&] { return ::faccessat(AT_FDCWD, pfad.c_str(), W_OK, AT_EACCESS); });
    const Schreibauftrag auftrag{pfad, ZielDerVerweise(pfad), inhalt, wie};
    const bool mehrereNamen = vorhanden && angaben.st_nlink > 1 && wie.Wahrer != nullptr;
    if (mehrereNamen || !Ersetzen(auftrag, vorhanden ? &angaben : nullptr)) VorOrtSchreiben(auftrag);
}

} // namespace

Dateibefund DateiLesen(const std::string &pfad, std::string &inhalt) {
    return Befund(true, [&] {
        // A pipe without a writer must not hang.
        const Deskriptor datei(Öffnen(pfad, O_RDONLY | O_NOCTTY | O_NONBLOCK));
        inhalt = AllesLesen(datei.Nummer());
    });
}

Dateibefund DateiSchreiben(const std::string &pfad, std::string_view inhalt, const Schreibweise &wie) {
    return Befund(false, [&] { Schreiben(pfad, inhalt, wie); });
}

Dateibefund AufDiePlatte(const std::string &pfad) {
    return Befund(false, [&] {
        Flushen(Deskriptor(Öffnen(pfad, O_RDONLY)).Nummer());
        Flushen(Deskriptor(Öffnen(Ordner(pfad), O_RDONLY | O_DIRECTORY)).Nummer());
    });
}

} // namespace kw
