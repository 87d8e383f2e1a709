#include "app/Stammbaumdatei.h"

#include "document/Codepage.h"
#include "output/Fehlertexte.h"

#include <array>
#include <memory>
#include <minizip/unzip.h>
#include <optional>

namespace kw {

namespace {

/// In the order of the failures.
constexpr std::array<Zweisprachig, 6> Sätze{{
    {"", ""},
    {"Die Datei kann nicht gelesen werden", "The file can't be read"},
    {"Das Archiv ist beschädigt oder von unbekannter Art", "The archive is damaged or of an unknown kind"},
    {"Das Archiv ist mit einem Kennwort geschützt", "The archive is protected by a password"},
    {"Das Archiv enthält keinen Stammbaum (.ged)", "The archive holds no family tree (.ged)"},
    {"Der Stammbaum ist zu groß", "The family tree is too large"},
}};

using Archiv = std::unique_ptr<void, decltype(&unzClose)>;

/// A file in memory, as the unpacker reads one.
struct Speicherdatei {
    const std::string &Bytes;
    std::size_t Stelle = 0;
};

uLong Lesen(voidpf, voidpf datei, void *ziel, uLong höchstens) {
    auto &speicher = *static_cast<Speicherdatei *>(datei);
    const auto anzahl = speicher.Bytes.copy(static_cast<char *>(ziel), höchstens, speicher.Stelle);
    speicher.Stelle += anzahl;
    return anzahl;
}

/// 0, or -1 for a place outside; it has been tried by then.
long Springen(voidpf, voidpf datei, ZPOS64_T weite, int ab) {
    auto &speicher = *static_cast<Speicherdatei *>(datei);
    const std::size_t von = ab == ZLIB_FILEFUNC_SEEK_SET   ? 0
                            : ab == ZLIB_FILEFUNC_SEEK_CUR ? speicher.Stelle
                                                           : speicher.Bytes.size();
    if (weite > speicher.Bytes.size() - von) return -1;
    speicher.Stelle = von + weite;
    return 0;
}

/// Opens what is in memory, which must outlive it; nullptr for what is no archive.
Archiv Geöffnet(Speicherdatei &datei) {
    zlib_filefunc64_def zugriff{};
    zugriff.opaque = &datei;
    zugriff.zopen64_file = [](voidpf speicher, const void *, int) { return speicher; };
    zugriff.zread_file = Lesen;
    zugriff.ztell64_file = [](voidpf, voidpf speicher) -> ZPOS64_T {
        return static_cast<Speicherdatei *>(speicher)->Stelle;
    };
    zugriff.zseek64_file = Springen;
    zugriff.zclose_file = [](voidpf, voidpf) { return 0; };
    zugriff.zerror_file = [](voidpf, voidpf) { return 0; };
    return {unzOpen2_64("", &zugriff), &unzClose};
}

/// Makes it the archive's current file: that with the name which the format gives it, else the first one.
Stammbaumfehler StammbaumSuchen(unzFile archiv) {
    constexpr std::string_view Vorgesehen = "gedcom.ged";
    std::optional<unz64_file_pos> gefunden;
    bool vorgesehen = false;
    int da = unzGoToFirstFile(archiv);
    for (; da == UNZ_OK && !vorgesehen; da = unzGoToNextFile(archiv)) {
        std::array<char, 4096> name{}; // a longer one is cut
        unz64_file_pos stelle{};
        if (unzGetCurrentFileInfo64(archiv, nullptr, name.data(), name.size() - 1, nullptr, 0, nullptr, 0) != UNZ_OK ||
            unzGetFilePos64(archiv, &stelle) != UNZ_OK)
            return Stammbaumfehler::KeinArchiv;
        const auto klein = Kleingeschrieben(name.data());
        vorgesehen = klein == Vorgesehen;
        if (vorgesehen || (!gefunden && klein.ends_with(".ged"))) gefunden = stelle;
    }
    if (da != UNZ_OK && da != UNZ_END_OF_LIST_OF_FILE) return Stammbaumfehler::KeinArchiv;
    if (!gefunden) return Stammbaumfehler::OhneStammbaum;
    return unzGoToFilePos64(archiv, &*gefunden) == UNZ_OK ? Stammbaumfehler::Keiner : Stammbaumfehler::KeinArchiv;
}

/// Whether the current file can be unpacked: stored or deflated, and without a password.
Stammbaumfehler AuspackbarkeitPrüfen(unzFile archiv) {
    constexpr uLong Verschlüsselt = 1; // the format's general purpose bit 0
    unz_file_info64 auskunft{};
    if (unzGetCurrentFileInfo64(archiv, &auskunft, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK)
        return Stammbaumfehler::KeinArchiv;
    if (auskunft.flag & Verschlüsselt) return Stammbaumfehler::Verschlüsselt;
    const bool bekannt = auskunft.compression_method == 0 || auskunft.compression_method == Z_DEFLATED;
    return bekannt ? Stammbaumfehler::Keiner : Stammbaumfehler::KeinArchiv;
}

/// Reads the current file until the end: sizes that an archive tells can be lies.
Stammbaumfehler Auspacken(unzFile archiv, std::size_t höchstens, std::string &bytes) {
    if (unzOpenCurrentFile(archiv) != UNZ_OK) return Stammbaumfehler::KeinArchiv;
    std::string inhalt;
    std::array<char, std::size_t{1} << 16> stück{};
    for (;;) {
        const int anzahl = unzReadCurrentFile(archiv, stück.data(), static_cast<unsigned>(stück.size()));
        if (anzahl < 0) return Stammbaumfehler::KeinArchiv;
        if (anzahl == 0) break;
        if (inhalt.size() + static_cast<std::size_t>(anzahl) > höchstens) return Stammbaumfehler::ZuGroß;
        inhalt.append(stück.data(), static_cast<std::size_t>(anzahl));
    }
    if (unzCloseCurrentFile(archiv) != UNZ_OK) return Stammbaumfehler::KeinArchiv; // its check sum
    bytes = std::move(inhalt);
    return Stammbaumfehler::Keiner;
}

Stammbaumfehler AusArchiv(const std::string &gepackt, std::size_t höchstens, std::string &bytes) {
    Speicherdatei datei{gepackt};
    const auto archiv = Geöffnet(datei);
    if (!archiv) return Stammbaumfehler::KeinArchiv;
    auto fehler = StammbaumSuchen(archiv.get());
    if (fehler == Stammbaumfehler::Keiner) fehler = AuspackbarkeitPrüfen(archiv.get());
    return fehler == Stammbaumfehler::Keiner ? Auspacken(archiv.get(), höchstens, bytes) : fehler;
}

} // namespace

std::string Stammbaumbefund::Text(Sprache sprache) const {
    const std::string satz(Sätze[static_cast<std::size_t>(Fehler)].In(sprache));
    if (Fehler != Stammbaumfehler::NichtLesbar) return satz;
    const std::string grund(Grundtext(Datei.Grund).In(sprache));
    return satz + ": " + (grund.empty() ? Datei.Meldung : grund);
}

Stammbaumbefund StammbaumdateiLesen(const std::string &pfad, std::string &bytes, std::size_t höchstens) {
    std::string inhalt;
    const auto gelesen = DateiLesen(pfad, inhalt);
    if (!gelesen.Gelungen()) return {Stammbaumfehler::NichtLesbar, gelesen};
    if (inhalt.starts_with("PK")) return {AusArchiv(inhalt, höchstens, bytes), {}};
    bytes = std::move(inhalt);
    return {};
}

bool IstStammbaumname(std::string_view pfad) { return Kleingeschrieben(pfad).ends_with(".ged"); }

} // namespace kw
