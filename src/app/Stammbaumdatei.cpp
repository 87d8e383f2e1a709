#include "app/Stammbaumdatei.h"

#include "document/Codepage.h"

#include <array>
#include <memory>
#include <optional>
#include <zip.h>

namespace kw {

namespace {

using Archiv = std::unique_ptr<zip_t, decltype(&zip_discard)>;
using Archivdatei = std::unique_ptr<zip_file_t, decltype(&zip_fclose)>;

/// In the order of the failures.
constexpr std::array<Zweisprachig, 6> Sätze{{
    {"", ""},
    {"Die Datei kann nicht gelesen werden", "The file can't be read"},
    {"Das Archiv ist beschädigt oder von unbekannter Art", "The archive is damaged or of an unknown kind"},
    {"Das Archiv ist mit einem Kennwort geschützt", "The archive is protected by a password"},
    {"Das Archiv enthält keinen Stammbaum (.ged)", "The archive holds no family tree (.ged)"},
    {"Der Stammbaum ist zu groß", "The family tree is too large"},
}};

/// Opens what is in memory, which must outlive it; nullptr for what is no archive.
Archiv Geöffnet(const std::string &bytes) {
    zip_source_t *const quelle = zip_source_buffer_create(bytes.data(), bytes.size(), 0, nullptr);
    if (!quelle) return {nullptr, &zip_discard};
    Archiv archiv(zip_open_from_source(quelle, ZIP_RDONLY, nullptr), &zip_discard);
    if (!archiv) zip_source_free(quelle);
    return archiv;
}

std::optional<zip_uint64_t> ErsterStammbaum(zip_t *archiv) {
    for (zip_int64_t i = 0, anzahl = zip_get_num_entries(archiv, 0); i < anzahl; ++i) {
        const auto nummer = static_cast<zip_uint64_t>(i);
        const char *const name = zip_get_name(archiv, nummer, ZIP_FL_ENC_RAW);
        if (name && Kleingeschrieben(name).ends_with(".ged")) return nummer;
    }
    return {};
}

/// Reads until the end: sizes that an archive tells can be lies.
Stammbaumfehler Auspacken(zip_file_t *datei, std::size_t höchstens, std::string &bytes) {
    std::string inhalt;
    std::array<char, std::size_t{1} << 16> stück{};
    for (;;) {
        const auto anzahl = zip_fread(datei, stück.data(), stück.size());
        if (anzahl < 0) return Stammbaumfehler::KeinArchiv;
        if (anzahl == 0) break;
        if (inhalt.size() + static_cast<std::size_t>(anzahl) > höchstens) return Stammbaumfehler::ZuGroß;
        inhalt.append(stück.data(), static_cast<std::size_t>(anzahl));
    }
    bytes = std::move(inhalt);
    return Stammbaumfehler::Keiner;
}

Stammbaumfehler AusArchiv(const std::string &gepackt, std::size_t höchstens, std::string &bytes) {
    const auto archiv = Geöffnet(gepackt);
    if (!archiv) return Stammbaumfehler::KeinArchiv;
    const auto nummer = ErsterStammbaum(archiv.get());
    if (!nummer) return Stammbaumfehler::OhneStammbaum;
    zip_stat_t auskunft{};
    if (zip_stat_index(archiv.get(), *nummer, 0, &auskunft) != 0) return Stammbaumfehler::KeinArchiv;
    if ((auskunft.valid & ZIP_STAT_ENCRYPTION_METHOD) && auskunft.encryption_method != ZIP_EM_NONE)
        return Stammbaumfehler::Verschlüsselt;
    const Archivdatei datei(zip_fopen_index(archiv.get(), *nummer, 0), &zip_fclose);
    return datei ? Auspacken(datei.get(), höchstens, bytes) : Stammbaumfehler::KeinArchiv;
}

} // namespace

std::string Stammbaumbefund::Text(Sprache sprache) const {
    const std::string satz(Sätze[static_cast<std::size_t>(Fehler)].In(sprache));
    return Meldung.empty() ? satz : satz + ": " + Meldung;
}

Stammbaumbefund StammbaumdateiLesen(const std::string &pfad, std::string &bytes, std::size_t höchstens) {
    std::string inhalt;
    const auto gelesen = DateiLesen(pfad, inhalt);
    if (!gelesen.Gelungen()) return {Stammbaumfehler::NichtLesbar, gelesen.Meldung};
    if (inhalt.starts_with("PK")) return {AusArchiv(inhalt, höchstens, bytes), {}};
    bytes = std::move(inhalt);
    return {};
}

} // namespace kw
