#include "familytree/Zeichensatz.h"

#include "familytree/Leerraum.h"
#include "familytree/Marken.h"
#include "familytree/Seitentafeln.h"
#include "familytree/Utf8.h"

#include <algorithm>
#include <optional>

namespace kw {

namespace {

using namespace std::string_view_literals;

/// What a file says of its characters stands within so many.
constexpr std::size_t Kopflänge = 4000;

std::string_view Kopf(std::string_view utf8) {
    std::size_t i = 0;
    for (std::size_t zeichen = 0; i < utf8.size() && zeichen < Kopflänge; ++zeichen)
        i += ErstesUtf8(utf8.substr(i)).Länge;
    return utf8.substr(0, i);
}

/// Whether nothing but blanks stands between `stelle` and the beginning of its line.
bool AmZeilenanfang(std::string_view text, std::size_t stelle) {
    while (stelle > 0) {
        const char c = text[--stelle];
        if (c == '\r' || c == '\n') return true;
        if (LeerraumVorn(text.substr(stelle)) != 1) return false;
    }
    return true;
}

/// The value of the head's CHAR line; nothing when `text` has none.
std::optional<std::string> Ansage(std::string_view text) {
    constexpr auto Marke = "1 CHAR"sv;
    for (auto stelle = text.find(Marke); stelle != std::string_view::npos; stelle = text.find(Marke, stelle + 1)) {
        auto rest = text.substr(stelle + Marke.size());
        if (rest.starts_with("ACTER")) rest.remove_prefix("ACTER"sv.size());
        if (!rest.starts_with(' ') || !AmZeilenanfang(text, stelle)) continue;
        return std::string(Randlos(rest.substr(0, rest.find_first_of("\r\n"))));
    }
    return {};
}

/// UTF-16 shows in the first bytes: a byte order mark, or a zero beside the level's digit.
std::optional<Entziffert> AlsUtf16(std::string &bytes) {
    const std::string_view sicht = bytes;
    const bool großeMarke = sicht.starts_with("\xFE\xFF"), kleineMarke = sicht.starts_with("\xFF\xFE");
    const bool klein = sicht.size() > 1 && sicht[1] == '\0', groß = sicht.starts_with('\0');
    if (!großeMarke && !kleineMarke && !klein && !groß) return {};
    const bool großesEndeVorn = großeMarke || (!kleineMarke && !klein);
    const bool hatMarke = großeMarke || kleineMarke;
    if (hatMarke) bytes.erase(0, 2);
    Entziffert datei{AusUtf16(std::move(bytes), großesEndeVorn), {}, {}};
    datei.Angesagt = Ansage(Kopf(datei.Text)).value_or("");
    while (datei.Text.starts_with("\xEF\xBB\xBF")) datei.Text.erase(0, 3);
    if (hatMarke) datei.Benutzt = großesEndeVorn ? "UTF-16BE BOM" : "UTF-16LE BOM";
    else datei.Benutzt = großesEndeVorn ? "UTF-16BE" : "UTF-16LE";
    return datei;
}

/// A code page that is known by how its name begins.
struct Seitenname {
    std::string_view Anfang;
    std::string_view Enthalten; ///< and what it must have anywhere
    Seitentafel (*Tafel)();
    std::string_view Benutzt;
};
constexpr Seitenname Seitennamen[] = {
    {"IBM", "850", Dos850, "cp850"}, {"IBM", "", Dos437, "cp437"},    {"MSDOS", "850", Dos850, "cp850"},
    {"MSDOS", "", Dos437, "cp437"},  {"DOS", "850", Dos850, "cp850"}, {"DOS", "", Dos437, "cp437"},
    {"OEM", "850", Dos850, "cp850"}, {"OEM", "", Dos437, "cp437"},    {"MAC", "", MacRoman, "MacRoman"},
};

/// The code page that the file says it has, unless it is the usual one. "IBM WINDOWS" means that one.
const Seitenname *Angesagte(std::string_view angesagt) {
    const auto *const seite = std::find_if(std::begin(Seitennamen), std::end(Seitennamen), [&](const Seitenname &s) {
        return angesagt.starts_with(s.Anfang) && angesagt.find(s.Enthalten) != std::string_view::npos;
    });
    const bool fremd = seite == std::end(Seitennamen);
    return fremd || (seite->Anfang != "MAC" && angesagt.find("WINDOWS") != std::string_view::npos) ? nullptr : seite;
}

/// `bytes` are UTF-8, and if only after cut characters came together again.
bool AlsUtf8(std::string &bytes) {
    if (IstUtf8(bytes)) return true;
    std::string geheilt = bytes;
    const bool gültig = Utf8Heilen(geheilt);
    if (gültig) bytes = std::move(geheilt);
    return gültig;
}

} // namespace

Entziffert Entziffern(std::string bytes) {
    if (auto datei = AlsUtf16(bytes)) return std::move(*datei);

    Entziffert datei;
    datei.Angesagt = Ansage(std::string_view(bytes).substr(0, Kopflänge)).value_or("");
    const std::string angesagt = InGroßbuchstaben(datei.Angesagt);
    const auto mit = [&](std::string text, std::string_view benutzt) {
        datei.Text = std::move(text);
        datei.Benutzt = benutzt;
        return std::move(datei);
    };
    if (bytes.starts_with("\xEF\xBB\xBF")) {
        bytes.erase(0, 3);
        if (IstUtf8(bytes) || Utf8Heilen(bytes)) return mit(std::move(bytes), "UTF-8 BOM");
        return mit(Utf8Ersetzt(bytes), "UTF-8 BOM");
    }
    const bool utf8 = AlsUtf8(bytes);
    const bool sagtUtf8 = angesagt.empty() || angesagt.starts_with("UTF") || angesagt.starts_with("UNICODE");
    if (sagtUtf8 && utf8) return mit(std::move(bytes), "UTF-8");
    if (std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; }))
        return mit(std::move(bytes), "ASCII");
    if (angesagt.starts_with("ANSEL")) {
        // Many programs say ANSEL and write UTF-8. ANSEL's own marks hardly ever make UTF-8 by chance.
        if (utf8) return mit(std::move(bytes), "UTF-8 (said ANSEL)");
        return mit(AusAnsel(std::move(bytes)), "ANSEL");
    }
    if (const auto *const seite = Angesagte(angesagt)) return mit(AusSeite(bytes, seite->Tafel()), seite->Benutzt);
    if (utf8) return mit(std::move(bytes), "UTF-8");
    return mit(AusSeite(bytes, Windows1252()), "cp1252");
}

} // namespace kw
